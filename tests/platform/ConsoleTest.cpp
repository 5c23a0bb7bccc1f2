#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#ifdef Q_OS_UNIX
#include <csignal>
#else
#include <windows.h>
#endif

namespace zelvor {
namespace {

struct Said {
    QByteArray output;
    QByteArray errors;
};

Said SaidBy(const QStringList& words, const QString& folder = QDir::tempPath()) {
    QProcess program;
    program.setWorkingDirectory(folder);
    program.start(CONSOLE_PROGRAM, words);
    EXPECT_TRUE(program.waitForFinished(20000)) << program.errorString().toStdString();
    return {program.readAllStandardOutput(), program.readAllStandardError()};
}

TEST(Console, GivesAndTakesTextsInUtf8AndNothingElse) {
    const Said said = SaidBy({QStringLiteral("对讲机 1.dat"), "a b", "--x=é", "\"quoted\"", "back\\slash\\"});
    EXPECT_EQ(said.output, "对讲机 1.dat\na b\n--x=é\n\"quoted\"\nback\\slash\\\n");
    EXPECT_EQ(said.errors, "信道\n"); // no terminal
}

TEST(Console, MayGiveNoArguments) {
    EXPECT_EQ(SaidBy({}).output, "");
}

TEST(Console, LeavesPatternsToTheShellOrPutsTheFilesInTheirPlace) {
    const QTemporaryDir folder;
    for (const char* name : {"二.dat", "a1.dat", "a2.dat", "b.csv"}) {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const QStringList words{"a?.dat", "*.csv", "none*", "--name=*.dat", "key=1*"};
#ifdef Q_OS_WIN
    EXPECT_EQ(SaidBy(words, folder.path()).output, "a1.dat\na2.dat\nb.csv\nnone*\n--name=*.dat\nkey=1*\n");
    const QString all = QDir::toNativeSeparators(folder.filePath("*.dat"));
    const QByteArray path = QDir::toNativeSeparators(folder.path() + u'/').toUtf8();
    EXPECT_EQ(SaidBy({all}).output, path + "a1.dat\n" + path + "a2.dat\n" + path + "二.dat\n");
#else
    EXPECT_EQ(SaidBy(words, folder.path()).output, "a?.dat\n*.csv\nnone*\n--name=*.dat\nkey=1*\n");
#endif
}

/// A running program, which is asked to stop as the system does it.
class StoppedProgram : public testing::Test {
protected:
    void SetUp() override {
#ifdef Q_OS_WIN
        // The wish goes to a group: without one of its own, to this test as well.
        program_.setCreateProcessArgumentsModifier(
            [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= CREATE_NEW_PROCESS_GROUP; });
#endif
        program_.start(CONSOLE_PROGRAM, {"wait"});
        ASSERT_TRUE(program_.waitForReadyRead(20000));
        ASSERT_EQ(program_.readAllStandardOutput(), "ready\n");
    }
    void ExpectItStopsByItself() {
        ASSERT_TRUE(program_.waitForFinished(20000));
        EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program_.readAllStandardOutput(), "stopped\n");
    }

    QProcess program_;
};

#ifdef Q_OS_UNIX

TEST_F(StoppedProgram, NotesCtrlC) {
    kill(static_cast<pid_t>(program_.processId()), SIGINT);
    ExpectItStopsByItself();
}

TEST_F(StoppedProgram, NotesThatItIsToEnd) {
    kill(static_cast<pid_t>(program_.processId()), SIGTERM);
    ExpectItStopsByItself();
}

#else

TEST_F(StoppedProgram, NotesCtrlBreak) {
    if (!GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, static_cast<DWORD>(program_.processId()))) {
        program_.kill();
        program_.waitForFinished();
        GTEST_SKIP() << "The tests run without a console";
    }
    ExpectItStopsByItself();
}

#endif

} // namespace
} // namespace zelvor
