// Put into the real program at its start: a user at random on a thread of its own, and what looks after the process.

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <atomic>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "random/CarefulUser.h"
#include "random/FileDialogGuard.h"
#include "random/RandomUser.h"
#include "random/SilenceWatch.h"
#include "random/Stacks.h"
#include "tour/Failure.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::random {

namespace {

constexpr int GaveUpExit = 95;

/// Lives as long as the application object, whose child it is.
class Session : public QObject {
public:
    explicit Session(QObject* application)
        : QObject(application), plan_(SessionPlan::OfEnvironment()),
          stacksFile_(QDir(plan_.home).filePath("stacks.txt").toStdString()) {
        KeepStacksOfCrashes(stacksFile_);
        guard_ = new FileDialogGuard(QDir(plan_.home).filePath("radios"), this);
        connect(qApp, &QCoreApplication::aboutToQuit, this, &Session::EndUser);
        QTimer::singleShot(0, this, &Session::Begin);
    }

private:
    void Begin() {
        watch_ = std::make_unique<SilenceWatch>(stacksFile_);
        user_ = std::thread([this] { RunUser(); });
    }

    void RunUser() {
        try {
            if (plan_.hands == "careful") {
                CarefulUser(plan_, isOver_).Run();
            } else {
                RandomUser(plan_, isOver_).Run();
            }
        } catch (const tour::Failure& failure) {
            std::cout << "The user gave up: " << failure.what() << "; "
                      << tour::WindowThread(std::chrono::seconds(5)).Ask(tour::WindowsInAWord) << std::endl;
            std::_Exit(GaveUpExit);
        }
        hasUserEnded_ = true;
    }

    /// The user may be waiting for an answer of this thread.
    void EndUser() {
        watch_.reset(); // the user may be pausing
        isOver_ = true;
        while (!hasUserEnded_) {
            QCoreApplication::sendPostedEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        user_.join();
        std::cout << "LEFT" << std::endl;
    }

    const SessionPlan plan_;
    const std::string stacksFile_;
    FileDialogGuard* guard_ = nullptr;
    std::unique_ptr<SilenceWatch> watch_;
    std::thread user_;
    std::atomic<bool> isOver_ = false;
    std::atomic<bool> hasUserEnded_ = false;
};

void BeginSession() {
    new Session(QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(BeginSession)

} // namespace zelvor::random
