// A printing system that accepts connections and answers nothing, behind the system's own library.

#include <QLibrary>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/PrintChoice.h"

namespace zelvor {
namespace {

using namespace std::chrono_literals;

/// Listens, and leaves all further to the system: whoever connects may send, and gets nothing.
class SilentSocket {
public:
    explicit SilentSocket(const std::string& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::ranges::copy(path.substr(0, sizeof address.sun_path - 1), address.sun_path);
        isListening_ = bind(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                       listen(descriptor_, SOMAXCONN) == 0;
    }
    SilentSocket(const SilentSocket&) = delete;
    SilentSocket& operator=(const SilentSocket&) = delete;
    ~SilentSocket() { close(descriptor_); }

    [[nodiscard]] bool IsListening() const { return isListening_; }
    [[nodiscard]] bool IsConnected() const {
        pollfd waiting{.fd = descriptor_, .events = POLLIN, .revents = 0};
        return poll(&waiting, 1, 0) == 1;
    }
    void HangUp() const { close(accept(descriptor_, nullptr, nullptr)); }

private:
    int descriptor_ = socket(AF_UNIX, SOCK_STREAM, 0);
    bool isListening_ = false;
};

class UnansweringSpooler : public testing::Test {
protected:
    void SetUp() override {
        if (!QLibrary("cups", 2).load()) {
            GTEST_SKIP() << "This machine has no CUPS library";
        }
        ASSERT_TRUE(socket_.IsListening());
        qputenv("CUPS_SERVER", path_.toUtf8());
    }
    void TearDown() override {
        if (before_.isNull()) {
            qunsetenv("CUPS_SERVER");
        } else {
            qputenv("CUPS_SERVER", before_);
        }
    }
    /// Somebody waits for an answer; otherwise the test proves nothing.
    [[nodiscard]] bool IsAsked() const {
        return QTest::qWaitFor([this] { return socket_.IsConnected(); }, 20'000);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath("cups.sock");
    SilentSocket socket_{path_.toStdString()};
    QByteArray before_ = qgetenv("CUPS_SERVER");
};

TEST_F(UnansweringSpooler, IsNoAnswerAndDoesNotHoldTheWindow) {
    PrintChoice choice({}, AskForPrinters, 500ms);
    std::optional<PageTarget> found;
    choice.FindTarget([&found](const PageTarget& target) { found = target; });
    EXPECT_FALSE(found.has_value());
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(10);
    ASSERT_TRUE(QTest::qWaitFor([&found] { return found.has_value(); }, 20'000));
    EXPECT_EQ(found->kind, PageTarget::Kind::NoAnswer);
    EXPECT_GE(ticks, 5);
    EXPECT_TRUE(IsAsked());
}

TEST_F(UnansweringSpooler, DoesNotHoldTheProgramsEnd) {
    QProcess program;
    program.start(PRINTER_ASKER, {});
    ASSERT_TRUE(IsAsked());
    ASSERT_TRUE(QTest::qWaitFor([&program] { return program.state() == QProcess::NotRunning; }, 20'000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
}

// It answers in the very moment of the end: the thread goes on while the program is taken down.
TEST_F(UnansweringSpooler, DoesNotCrashTheProgramsEndByAnsweringThen) {
    for (int time = 0; time < 5; ++time) {
        QProcess program;
        program.start(PRINTER_ASKER, {});
        ASSERT_TRUE(IsAsked());
        QTest::qWait(290 + 5 * time);
        socket_.HangUp();
        ASSERT_TRUE(QTest::qWaitFor([&program] { return program.state() == QProcess::NotRunning; }, 20'000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    }
}

} // namespace
} // namespace zelvor
