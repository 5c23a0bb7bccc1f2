#include <QDialog>
#include <QLibraryInfo>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVersionNumber>
#include <functional>

#include "../support/InView.h"
#include "controls/EditGrid.h"
#include "data/TuneItems.h"
#include "features/CPUForm.h"
#include "link/ComForm.h"
#include "link/ConnectForm.h"
#include "print/frmPrintList.h"
#include "service/DJJInfoForm.h"
#include "service/TestForm.h"
#include "service/TuningForm.h"
#include "shell/AboutForm.h"
#include "shell/LanguageForm.h"
#include "shell/ModelTypeForm.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

using MakeDialog = std::function<QDialog*(const ProgramState&, Services&, QWidget*)>;

QDialog* MakeTuning(int item, bool narrow, const ProgramState& state, Services& services, QWidget* parent) {
    state.service.TuneItem = item;
    state.service.NarrowMode = narrow;
    return MakeTuningForm(state.document, state.link, state.service, state.windows.LanguageFlag, services, parent);
}

/// A dialog, and how many controls the tab key comes to at least.
std::vector<std::pair<MakeDialog, int>> Dialogs() {
    std::vector<std::pair<MakeDialog, int>> dialogs{
        {[](const ProgramState& state, Services&, QWidget* parent) {
             return new AboutForm(state.windows.LanguageFlag, parent);
         },
         1},
        {[](const ProgramState& state, Services& services, QWidget* parent) {
             return new ModelTypeForm(state.document, state.windows.LanguageFlag, services, parent);
         },
         4},
        {[](const ProgramState& state, Services& services, QWidget* parent) {
             return new LanguageForm(state.windows, services, parent);
         },
         4},
        {[](const ProgramState& state, Services& services, QWidget* parent) {
             return new ComForm(state.link, state.windows.LanguageFlag, services, parent);
         },
         3},
        {[](const ProgramState& state, Services& services, QWidget* parent) {
             return new ConnectForm(state.document, state.link, state.windows.LanguageFlag, services,
                                    TransferDirection::Read, parent);
         },
         3},
        {[](const ProgramState& state, Services& services, QWidget* parent) {
             return new frmPrintList(state.document, state.windows.LanguageFlag, services, parent);
         },
         12},
        {[](const ProgramState& state, Services& services, QWidget* parent) {
             return new DJJInfoForm(state.document, state.service, state.windows.LanguageFlag, services, parent);
         },
         2},
        {[](const ProgramState& state, Services& services, QWidget* parent) {
             return new TestForm(state.document, state.link, state.service, state.windows.LanguageFlag, services,
                                 parent);
         },
         6},
    };
    for (int item = 1; item <= TuneItemCount; ++item) {
        for (const bool narrow : {false, true}) {
            dialogs.emplace_back(
                [item, narrow](const ProgramState& state, Services& services, QWidget* parent) {
                    return MakeTuning(item, narrow, state, services, parent);
                },
                3);
        }
    }
    return dialogs;
}

/// A main window on the smallest screen: 1280 x 800 at 300 %.
class SmallScreenTest : public ShellTest, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        const QList<QScreen*> screens = QGuiApplication::screens();
        ASSERT_EQ(screens.size(), 2);
        screen = screens.last();
        ASSERT_EQ(screen->size(), QSize(427, 267));
        if (GetParam()) {
            OpenMainWindowInChinese();
        } else {
            OpenMainWindow();
        }
        window->setGeometry(QRect(screen->geometry().topLeft() + QPoint(0, 20), QSize(427, 240)));
        QCoreApplication::processEvents();
        ASSERT_EQ(window->screen(), screen);
    }

    void LookAt(QDialog& dialog, int leastControls) const {
        const std::string name = dialog.objectName().toStdString();
        // The platform without a screen of newer toolkits puts every window that is moved while it is shown at its
        // origin.
        if (QLibraryInfo::version() < QVersionNumber(6, 5)) {
            EXPECT_EQ(dialog.screen(), screen) << name;
        }
        EXPECT_LE(dialog.width(), 427) << name;
        EXPECT_LE(dialog.height(), 267 - 20) << name; // a title bar's height less
        auto* area = dialog.findChild<QScrollArea*>();
        ASSERT_NE(area, nullptr) << name;
        const ScrolledView view{area->widget(), area->horizontalScrollBar(), area->verticalScrollBar(),
                                area->viewport()->size()};
        int controls = 0;
        auto* tabs = dialog.findChild<QTabWidget*>();
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr) {
                tabs->setCurrentIndex(page);
            }
            controls += ExpectTabKeyShowsControls(view, name);
            ExpectBarsReachEverything(view, name);
        }
        EXPECT_GE(controls, leastControls) << name;
    }

    QScreen* screen = nullptr;
};

TEST_P(SmallScreenTest, EveryControlOfEveryDialogCanBeBroughtIntoView) {
    for (const auto& [make, leastControls] : Dialogs()) {
        const std::unique_ptr<QDialog> dialog(make(State(), fakes.Get(), window.get()));
        dialog->show();
        // The dialog before may have handed the keyboard to the main window meanwhile.
        QCoreApplication::processEvents();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get())) << dialog->objectName().toStdString();
        if (QApplication::focusWidget() == nullptr || !dialog->isAncestorOf(QApplication::focusWidget())) {
            dialog->findChild<QPushButton*>()->setFocus();
        }
        LookAt(*dialog, leastControls);
    }
}

TEST_P(SmallScreenTest, TheMemoryMapScrollsToEveryByteBesideItsButtons) {
    CPUForm dialog(document, windows.LanguageFlag, fakes.Get(), window.get());
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_LE(dialog.width(), 427);
    EXPECT_LE(dialog.height(), 267 - 20);
    auto& grid = *dialog.findChild<EditGrid*>();
    for (const int column : {1, 9, 16, 8, 1}) {
        for (const int row : {1, 64}) {
            grid.MoveTo(row, column);
            const QRect cell = grid.visualItemRect(grid.currentItem());
            EXPECT_TRUE(IsAllSeen(*grid.viewport(), cell)) << row << ' ' << column;
            EXPECT_GT(cell.width(), grid.fontMetrics().horizontalAdvance("DD"));
        }
    }
    for (const char* name : {"cmdOK", "cmdCancel"}) {
        const auto* button = dialog.findChild<QPushButton*>(name);
        EXPECT_TRUE(dialog.rect().contains(button->geometry())) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, SmallScreenTest, ::testing::Bool());

} // namespace
} // namespace zelvor
