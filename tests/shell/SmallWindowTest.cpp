#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <array>

#include "../support/InView.h"
#include "controls/ChildForm.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

/// What desktops of 1280 x 800 at 100, 150, 200 and 300 % and of 640 x 480 leave for a main window, in logical pixels
/// and without the title bar.
constexpr std::array Rooms{QSize(1280, 776), QSize(853, 509), QSize(640, 376), QSize(427, 243), QSize(640, 456)};

struct EditWindow {
    const char* name;
    const char* entry;
    int controls; // that the tab key comes to, at least
};
constexpr std::array EditWindows{
    EditWindow{"ChannelForm", "MnuEditChannelInformation", 4},
    EditWindow{"OptionalForm", "MnuEditOptionalFeatures", 14},
    EditWindow{"KeyAssign", "MnuEditKeyAssignment", 4},
    EditWindow{"ScanForm", "MnuEditScanInformation", 6},
    EditWindow{"DTMFForm", "MnuEditDTMF", 8},
    EditWindow{"CorvaneForm", "MnuEditCorvane", 8},
    EditWindow{"TestChannelForm", "MnuEditTestFrequency", 3},
    EditWindow{"EmbedInfoForm", "MnuEditEmbeddedMessage", 4},
    EditWindow{"TreeViewForm", "MnuViewTreeView", 3},
};

class SmallWindowTest : public ShellTest, public ::testing::WithParamInterface<std::tuple<QSize, bool>> {
protected:
    void SetUp() override {
        if (std::get<1>(GetParam())) {
            OpenMainWindowInChinese();
        } else {
            OpenMainWindow();
        }
        window->resize(std::get<0>(GetParam()));
        QCoreApplication::processEvents();
        ASSERT_EQ(window->size(), std::get<0>(GetParam()));
    }

    [[nodiscard]] QMdiArea& Area() const { return *window->findChild<QMdiArea*>(); }

    static ScrolledView ViewOf(const QWidget& form) {
        auto* horizontal = form.findChild<QScrollBar*>("HScroll1");
        auto* vertical = form.findChild<QScrollBar*>("VScroll1");
        return {static_cast<const ChildForm&>(form).Content(), horizontal, vertical,
                QSize(vertical->isVisible() ? vertical->x() : form.width(),
                      horizontal->isVisible() ? horizontal->y() : form.height())};
    }

    void LookAt(const EditWindow& edit) {
        QWidget& form = *Child(edit.name);
        const QWidget& frame = *form.parentWidget();
        EXPECT_TRUE(Area().viewport()->rect().contains(frame.geometry())) << edit.name;
        EXPECT_EQ(Area().horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(Area().verticalScrollBar()->maximum(), 0);
        const auto* tabs = form.findChild<QTabWidget*>();
        const int pages = tabs == nullptr ? 1 : tabs->count();
        int controls = 0;
        for (int page = 0; page < pages; ++page) {
            if (tabs != nullptr) {
                ViewOf(form).horizontal->setValue(0);
                ViewOf(form).vertical->setValue(0);
                QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(page).center());
                ASSERT_EQ(tabs->currentIndex(), page) << edit.name;
            }
            controls += ExpectTabKeyShowsControls(ViewOf(form), edit.name);
            ExpectBarsReachEverything(ViewOf(form), edit.name);
        }
        EXPECT_GE(controls, edit.controls) << edit.name;
    }
};

TEST_P(SmallWindowTest, EveryControlOfEveryChildWindowCanBeBroughtIntoView) {
    for (const EditWindow& edit : EditWindows) {
        Entry(edit.entry)->trigger();
        QCoreApplication::processEvents();
        LookAt(edit);
    }
}

TEST_P(SmallWindowTest, EveryControlOfTheChannelEditDialogCanBeBroughtIntoView) {
    ClickButton("ChannelForm", "cmdChannelEdit");
    QCoreApplication::processEvents();
    auto* frequency = Find<QLineEdit>("txtRxFreq");
    frequency->setFocus();
    QTest::keyClicks(frequency, "145");
    QTest::keyClick(frequency, Qt::Key_Tab);
    LookAt({"ChannelEditForm", "", 15});
}

INSTANTIATE_TEST_SUITE_P(Desktops, SmallWindowTest, ::testing::Combine(::testing::ValuesIn(Rooms), ::testing::Bool()));

class WindowSizeTest : public ShellTest {
protected:
    [[nodiscard]] QWidget& Frame(const char* name) const { return *Child(name)->parentWidget(); }
    void GiveArea(QSize size) {
        const QSize around = window->size() - window->findChild<QMdiArea*>()->viewport()->size();
        window->resize(size + around);
        QCoreApplication::processEvents();
    }
};

TEST_F(WindowSizeTest, TheGridFillsAnAreaOfItsWidthWithoutABarForItsBorders) {
    OpenMainWindow();
    GiveArea({800, 600});
    EXPECT_EQ(Frame("ChannelForm").width(), 800);
    EXPECT_FALSE(Child("ChannelForm")->findChild<QScrollBar*>("HScroll1")->isVisible());
}

TEST_F(WindowSizeTest, ALowAreaCostsAWindowTheVerticalBarButNoHorizontalOne) {
    OpenMainWindow();
    GiveArea({640, 400});
    Entry("MnuEditOptionalFeatures")->trigger();
    EXPECT_TRUE(Child("OptionalForm")->findChild<QScrollBar*>("VScroll1")->isVisible());
    EXPECT_FALSE(Child("OptionalForm")->findChild<QScrollBar*>("HScroll1")->isVisible());
    EXPECT_EQ(Child("OptionalForm")->width(), 410 + 16);
}

TEST_F(WindowSizeTest, AWindowGetsItsFirstSizeBackWhereTheAreaGrows) {
    OpenMainWindow();
    Entry("MnuEditScanInformation")->trigger();
    const QSize first = Child("ScanForm")->size();
    GiveArea({300, 200});
    EXPECT_LT(Child("ScanForm")->height(), first.height());
    GiveArea({1000, 700});
    EXPECT_EQ(Child("ScanForm")->size(), first);
}

TEST_F(WindowSizeTest, AWindowThatTheUserHasSizedKeepsItsSize) {
    OpenMainWindow();
    Entry("MnuEditScanInformation")->trigger();
    Frame("ScanForm").resize(250, 220);
    GiveArea({1000, 700});
    EXPECT_EQ(Frame("ScanForm").size(), QSize(250, 220));
    GiveArea({240, 200});
    EXPECT_EQ(Frame("ScanForm").size(), QSize(250, 220));
}

TEST_F(WindowSizeTest, TheTabKeyScrollsTheAreaToAControlOutsideOfIt) {
    OpenMainWindow();
    GiveArea({600, 400});
    Entry("MnuEditKeyAssignment")->trigger();
    Frame("KeyAssign").setGeometry(450, 100, 335, 466);
    QCoreApplication::processEvents();
    auto* help = Child("KeyAssign")->findChild<QPushButton*>("cmdHelp");
    EXPECT_FALSE(IsAllSeen(*help, help->rect()));
    QWidget* close = Child("KeyAssign")->findChild<QPushButton*>("cmdClose");
    close->setFocus();
    QTest::keyClick(close, Qt::Key_Tab);
    ASSERT_TRUE(help->hasFocus());
    EXPECT_TRUE(IsAllSeen(*help, help->rect()));
}

} // namespace
} // namespace zelvor
