// The program zelvor as a process.

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <sys/stat.h>

#include <gtest/gtest.h>

namespace zelvor::test {
namespace {

constexpr int PatienceMilliseconds = 10000;

class ZelvorProgramTest : public ::testing::Test {
protected:
    void Start(const QStringList& arguments = {}) {
        environment.insert("XDG_CONFIG_HOME", config.path());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("LC_ALL", locale);
        zelvor.setProcessEnvironment(environment);
        zelvor.start(ZELVOR_PROGRAM, arguments);
        ASSERT_TRUE(zelvor.waitForStarted(PatienceMilliseconds));
    }

    ~ZelvorProgramTest() override {
        if (zelvor.state() != QProcess::NotRunning) {
            zelvor.kill();
            zelvor.waitForFinished(PatienceMilliseconds);
        }
    }

    [[nodiscard]] QByteArray Settings() const {
        QFile file(config.filePath("Zelvor/Zelvor.ini"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The first run stores the model, which is how the test sees that the program is under way.
    [[nodiscard]] bool WaitForSettings() {
        QElapsedTimer waited;
        waited.start();
        while (!Settings().contains("LastModel") && waited.elapsed() < PatienceMilliseconds) {
            QThread::msleep(10);
        }
        return Settings().contains("LastModel");
    }

    /// What the program says, beside the complaints of the platform without a screen.
    [[nodiscard]] QByteArray Complaints() {
        QByteArray complaints;
        for (const QByteArray& line : zelvor.readAllStandardError().split('\n')) {
            if (!line.isEmpty() && !line.startsWith("This plugin does not support")) {
                complaints += line + '\n';
            }
        }
        return complaints;
    }

    QTemporaryDir config;
    QString locale = "C.UTF-8";
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QProcess zelvor;
};

TEST_F(ZelvorProgramTest, FirstRunStoresTheModelAndNotYetTheLanguage) {
    Start();
    ASSERT_TRUE(WaitForSettings());
    EXPECT_EQ(Settings().trimmed(), "[BackUp]\nLastModel=50:34:36:31:38:01:F8:FF");
}

TEST_F(ZelvorProgramTest, StaysUntilItIsEndedAndSaysNothing) {
    Start();
    ASSERT_TRUE(WaitForSettings());
    EXPECT_FALSE(zelvor.waitForFinished(1000)) << "it ended by itself";
    zelvor.terminate();
    ASSERT_TRUE(zelvor.waitForFinished(PatienceMilliseconds));
    EXPECT_EQ(zelvor.exitCode(), SIGTERM);
    EXPECT_EQ(Complaints(), "");
    EXPECT_EQ(zelvor.readAllStandardOutput(), "");
}

TEST_F(ZelvorProgramTest, SaysNothingOfALocaleThatIsNotUtf8Either) {
    locale = "C";
    Start();
    ASSERT_TRUE(WaitForSettings());
    zelvor.terminate();
    ASSERT_TRUE(zelvor.waitForFinished(PatienceMilliseconds));
    EXPECT_EQ(Complaints(), "");
}

TEST_F(ZelvorProgramTest, AForcedEndStoresNothing) {
    Start();
    ASSERT_TRUE(WaitForSettings());
    QThread::msleep(300); // well into the program's event loop
    zelvor.terminate();
    ASSERT_TRUE(zelvor.waitForFinished(PatienceMilliseconds));
    EXPECT_FALSE(Settings().contains("Language"));
}

TEST_F(ZelvorProgramTest, ReadsNoCommandLine) {
    Start({"--help", "no-such-file.dat"});
    ASSERT_TRUE(WaitForSettings());
    EXPECT_FALSE(zelvor.waitForFinished(500)) << "it ended by itself";
    EXPECT_EQ(Complaints(), "");
    EXPECT_EQ(zelvor.readAllStandardOutput(), "");
}

#ifdef Q_OS_LINUX

TEST_F(ZelvorProgramTest, SaysInBothLanguagesThatThereIsNoFontAndNothingElse) {
    const QString fonts = config.filePath("fonts.conf");
    {
        QFile file(fonts);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig><cachedir>" +
                   config.path().toUtf8() + "</cachedir></fontconfig>");
    }
    environment.insert("FONTCONFIG_FILE", fonts);
    Start();
    ASSERT_TRUE(WaitForSettings());
    EXPECT_FALSE(zelvor.waitForFinished(500)) << "it ended by itself";
    EXPECT_EQ(Complaints(),
              "zelvor: no font is installed, so texts are shown as empty boxes. Please install a font, for example the "
              "packages fonts-dejavu-core and fonts-wqy-zenhei.\n"
              "zelvor: 系统没有安装字体，文字将显示为空框。请安装字体，例如软件包 fonts-dejavu-core 和 "
              "fonts-wqy-zenhei。\n");
}

TEST_F(ZelvorProgramTest, StartsWithAPipeInPlaceOfItsSettings) {
    ASSERT_TRUE(QDir(config.path()).mkdir("Zelvor"));
    ASSERT_EQ(mkfifo(QFile::encodeName(config.filePath("Zelvor/Zelvor.ini")).constData(), 0600), 0);
    Start();
    QElapsedTimer waited;
    waited.start();
    QByteArray said;
    while (!said.contains("This plugin") && waited.elapsed() < PatienceMilliseconds) { // a window came up
        zelvor.waitForReadyRead(100);
        said += zelvor.readAllStandardError();
    }
    EXPECT_TRUE(said.contains("This plugin")) << said.constData();
}

#endif

} // namespace
} // namespace zelvor::test
