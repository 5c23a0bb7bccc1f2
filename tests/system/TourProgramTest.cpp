// The program zelvor-tour's own command line. Its job is a test by itself.

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelvor::test {
namespace {

class TourProgramTest : public ::testing::Test {
protected:
    int Run(const QStringList& arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("TMPDIR", temporary.path());
        tour.setProcessEnvironment(environment);
        tour.start(ZELVOR_TOUR_PROGRAM, arguments);
        return tour.waitForFinished(60000) && tour.exitStatus() == QProcess::NormalExit ? tour.exitCode() : -1;
    }

    QTemporaryDir temporary;
    QProcess tour;
};

TEST_F(TourProgramTest, RefusesBadArgumentsWithUsageAndCodeTwo) {
    for (const QStringList& arguments : {QStringList{"--nonsense"}, {"stray"}, {"--timeout", "0"}, {"--screenshots"}}) {
        EXPECT_EQ(Run(arguments), 2) << arguments.first().toStdString();
        EXPECT_TRUE(tour.readAllStandardError().contains("--screenshots DIR")) << arguments.first().toStdString();
    }
}

TEST_F(TourProgramTest, EndsAtItsTimeoutWithALineThatSaysSoAndLeavesNothingBehind) {
    EXPECT_EQ(Run({"--timeout", "1"}), 1);
    EXPECT_TRUE(tour.readAllStandardOutput().contains("FAILED  the time is up while waiting for "));
    EXPECT_EQ(QDir(temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(TourProgramTest, ADirectoryThatCannotBeMadeIsAFailure) {
    EXPECT_EQ(Run({"--screenshots", "/proc/none"}), 1);
    EXPECT_TRUE(tour.readAllStandardOutput().contains("FAILED  wrong: screenshot directory /proc/none"));
}

} // namespace
} // namespace zelvor::test
