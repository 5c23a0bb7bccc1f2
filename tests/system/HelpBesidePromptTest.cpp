// The help window has the keyboard when a box comes up, and then the user clicks another window of the program. On a
// real display the click is a real one.

#include <QApplication>
#include <QMainWindow>
#include <QWindow>
#include <algorithm>

#include "SystemTest.h"
#include "random/DisplayHands.h"
#include "tour/Checks.h"
#include "tour/KeyEvents.h"
#include "tour/WindowOnTop.h"
#include "tour/Words.h"

namespace zelvor::test {
namespace {

using random::Spot;
using tour::WindowThread;

// Questions to the window thread.

QWidget* WindowNamed(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == name) {
            return window;
        }
    }
    return nullptr;
}

bool IsHelpActive() {
    return QApplication::activeWindow() != nullptr && QApplication::activeWindow() == WindowNamed("HelpWindow");
}

bool IsCovered(QPoint onScreen) {
    return std::ranges::any_of(QApplication::topLevelWidgets(), [onScreen](const QWidget* window) {
        return window->isVisible() && window->objectName() != "MDIForm1" && window->frameGeometry().contains(onScreen);
    });
}

/// A place of the main window that no other window of the program covers.
Spot MainWindowSpot() {
    constexpr int step = 20;
    const QWidget* window = WindowNamed("MDIForm1");
    QPoint place = window->rect().center();
    for (int x = step; x < window->width(); x += step) {
        for (int y = step; y < window->height(); y += step) {
            if (!IsCovered(window->mapToGlobal(QPoint(x, y)))) {
                place = {x, y};
            }
        }
    }
    return {window->windowHandle(), place, window->mapToGlobal(place)};
}

class HelpBesidePromptTest : public SystemTest {
protected:
    void SetUp() override {
        if (QGuiApplication::platformName() != "xcb") {
            GTEST_SKIP() << "needs a display";
        }
    }
    /// The entry and then the help in one go: the radio has no time to be given up between them.
    void ChooseThenHelp(Qt::Key menu, Qt::Key entry) {
        User().Press(menu, Qt::AltModifier);
        Windows().WaitUntil("an open menu", [] { return QApplication::activePopupWidget() != nullptr; });
        WindowThread::Post([=] {
            tour::SendKey(true, entry, {});
            tour::SendKey(false, entry, {});
            tour::SendKey(true, Qt::Key_F1, {});
            tour::SendKey(false, Qt::Key_F1, {});
        });
    }
    void ClickMainWindow() {
        const Spot spot = Windows().Ask(MainWindowSpot);
        random::DisplayHands hands;
        hands.Click(spot, Qt::LeftButton, {});
        tour::Check("xdotool clicks", hands.Refusals() == 0);
        Windows().Pause(std::chrono::milliseconds(200)); // for the click to come
        Windows().WaitUntil("an answer after the click", [] { return true; });
    }
    void CloseHelp() {
        WindowThread::Post([] { WindowNamed("HelpWindow")->close(); });
        Windows().WaitUntil("the help window to close", [] { return WindowNamed("HelpWindow") == nullptr; });
    }
    void TryASilentRadio(Qt::Key menu, Qt::Key entry) {
        Script([=, this] {
            Start({"hang@1"});
            ChooseThenHelp(menu, entry);
            ExpectPrompt();
            Windows().WaitUntil("the help window", [] { return WindowNamed("HelpWindow") != nullptr; });
            ClickMainWindow();
            Boxes().Answer(QMessageBox::Cancel);
            CloseHelp();
        });
    }
};

TEST_F(HelpBesidePromptTest, AClickOnTheMainWindowReturnsWhereTheRadioGivesNoInformation) {
    TryASilentRadio(Qt::Key_T, Qt::Key_R);
}

TEST_F(HelpBesidePromptTest, AClickOnTheMainWindowReturnsWhereTheRadioDoesNotEnterTestMode) {
    TryASilentRadio(Qt::Key_P, Qt::Key_T);
}

TEST_F(HelpBesidePromptTest, AClickOnTheMainWindowReturnsWhereItWasClosedWhileTheHelpWasActive) {
    Script([this] {
        Start({});
        User().Press(Qt::Key_F1);
        Windows().WaitUntil("the help window", IsHelpActive);
        WindowThread::Post([] { WindowNamed("MDIForm1")->close(); });
        Windows().WaitUntil("the exit question", [] { return QApplication::activeModalWidget() != nullptr; });
        ClickMainWindow();
        Boxes().Answer(QMessageBox::No);
        CloseHelp();
    });
}

} // namespace
} // namespace zelvor::test
