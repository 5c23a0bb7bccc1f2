#include <QMainWindow>
#include <QRubberBand>
#include <QToolBar>
#include <QToolButton>

#include "shell/DockingRule.h"
#include "shell/ShellTest.h"
#include "shell/Toolbar1.h"

namespace zelvor {
namespace {

struct ExpectedButton {
    int index;
    const char* english;
    const char* chinese;
};
constexpr std::array<ExpectedButton, 7> ExpectedButtons{{
    {1, "New", "新建"},
    {2, "Open", "打开"},
    {3, "Save", "保存"},
    {5, "Print", "打印"},
    {7, "Read", "读取"},
    {9, "Write", "写入"},
    {11, "About", "关于"},
}};

class ToolbarTest : public ShellTest {
protected:
    [[nodiscard]] Toolbar1* Toolbar() const { return Find<Toolbar1>("Toolbar1"); }
    [[nodiscard]] QWidget* Client() const { return window->centralWidget(); }

    /// Takes the toolbar by its grip, and drops it at a point of the client area.
    void DragTo(QPoint clientPosition) const {
        auto* grip = Find<QWidget>("ToolbarGrip");
        const QPoint start = grip->rect().center();
        const QPoint end = grip->mapFrom(window.get(), Client()->mapTo(window.get(), clientPosition));
        QTest::mousePress(grip, Qt::LeftButton, {}, start);
        QTest::mouseMove(grip, (start + end) / 2);
        QTest::mouseMove(grip, end);
        QTest::mouseRelease(grip, Qt::LeftButton, {}, end);
    }

    void ExpectTips(bool chinese) const {
        for (const ExpectedButton& expected : ExpectedButtons) {
            auto* button = window->findChild<QToolButton*>(QString("Toolbar1(%1)").arg(expected.index));
            ASSERT_NE(button, nullptr) << expected.index;
            EXPECT_EQ(button->toolTip().toStdString(), chinese ? expected.chinese : expected.english);
            EXPECT_FALSE(button->icon().isNull());
            EXPECT_NE(Entry("Toolbar1(" + std::to_string(expected.index) + ")"), nullptr);
        }
    }
};

TEST_F(ToolbarTest, EveryButtonHasItsNameAndEnglishToolTip) {
    OpenMainWindow();
    ExpectTips(false);
}

TEST_F(ToolbarTest, EveryButtonHasItsNameAndChineseToolTip) {
    OpenMainWindowInChinese();
    ExpectTips(true);
}

TEST_F(ToolbarTest, TheGapsAreSeparators) {
    OpenMainWindow();
    for (const int index : {4, 6, 8, 10}) {
        EXPECT_TRUE(Entry("Toolbar1(" + std::to_string(index) + ")")->isSeparator()) << index;
    }
}

TEST_F(ToolbarTest, IsDockedWhereItIsDropped) {
    OpenMainWindow();
    const int width = Client()->width();
    const int height = Client()->height();
    DragTo({width - 10, height / 2});
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::RightToolBarArea);
    EXPECT_EQ(Toolbar()->orientation(), Qt::Vertical);
    DragTo({10, Client()->height() / 2});
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::LeftToolBarArea);
    DragTo({Client()->width() / 2, Client()->height() - 10});
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::BottomToolBarArea);
    EXPECT_EQ(Toolbar()->orientation(), Qt::Horizontal);
    DragTo({Client()->width() / 2, 10});
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::TopToolBarArea);
    EXPECT_TRUE(Toolbar()->isVisible());
}

TEST_F(ToolbarTest, FloatsAtTheDropPointElsewhere) {
    OpenMainWindow();
    const QPoint dropPoint = Client()->mapTo(window.get(), QPoint(300, 200));
    DragTo({300, 200});
    EXPECT_EQ(Toolbar()->Alignment(), ToolbarAlignment::None);
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::NoToolBarArea);
    EXPECT_TRUE(Toolbar()->isVisible());
    EXPECT_EQ(Toolbar()->pos(), dropPoint);
    fakes.files.ExpectOpen({"", "QPK Data Files(*.dat)|*.dat", ""}, std::nullopt);
    ClickToolbar(2);
}

TEST_F(ToolbarTest, FloatsAgainElsewhereAndComesBack) {
    OpenMainWindow();
    DragTo({300, 200});
    DragTo({100, 300});
    EXPECT_EQ(Client()->mapFrom(window.get(), Toolbar()->pos()), QPoint(100, 300));
    DragTo({Client()->width() / 2, 10});
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::TopToolBarArea);
}

TEST_F(ToolbarTest, TheRuleIsToldTheDropInTwips) {
    OpenMainWindow();
    // 400 twips are 26.7 logical pixels.
    Toolbar()->DropAt({26, 200});
    EXPECT_EQ(Toolbar()->Alignment(), ToolbarAlignment::Left);
    Toolbar()->DropAt({27, 200});
    EXPECT_EQ(Toolbar()->Alignment(), ToolbarAlignment::None);
}

TEST_F(ToolbarTest, TheLeftEdgeReachesNearerToTheBottom) {
    OpenMainWindow();
    Toolbar()->DropAt({10, Client()->height() - 1});
    EXPECT_EQ(Toolbar()->Alignment(), ToolbarAlignment::Left);
    Toolbar()->DropAt({Client()->width() - 10, Client()->height() - 1});
    EXPECT_EQ(Toolbar()->Alignment(), ToolbarAlignment::None);
}

TEST_F(ToolbarTest, ADropOnItselfLeavesItAtItsPlace) {
    OpenMainWindow();
    auto* grip = Find<QWidget>("ToolbarGrip");
    QTest::mousePress(grip, Qt::LeftButton, {}, {4, 10});
    QTest::mouseMove(grip, {60, 12});
    QTest::mouseRelease(grip, Qt::LeftButton, {}, {60, 12});
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::TopToolBarArea);
}

TEST_F(ToolbarTest, ADropOutsideOfTheWindowLeavesItAtItsPlace) {
    OpenMainWindow();
    DragTo({Client()->width() + 500, 200});
    EXPECT_EQ(window->toolBarArea(Toolbar()), Qt::TopToolBarArea);
}

TEST_F(ToolbarTest, TheOutlineOfADragIsGoneAfterIt) {
    OpenMainWindow();
    auto* grip = Find<QWidget>("ToolbarGrip");
    QTest::mousePress(grip, Qt::LeftButton, {}, {4, 10});
    QTest::mouseMove(grip, {200, 200});
    EXPECT_EQ(window->findChildren<QRubberBand*>().size(), 1);
    QTest::mouseRelease(grip, Qt::LeftButton, {}, {200, 200});
    EXPECT_EQ(window->findChildren<QRubberBand*>().size(), 0);
}

TEST_F(ToolbarTest, FollowsTheEdgesOfAMainWindowThatGetsSmaller) {
    OpenMainWindow();
    DragTo({Client()->width() / 2, Client()->height() / 2});
    ASSERT_EQ(Toolbar()->Alignment(), ToolbarAlignment::None);
    window->resize(500, 300);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->size() == QSize(500, 300); }));
    EXPECT_TRUE(Client()->geometry().contains(Toolbar()->geometry()));
}

} // namespace
} // namespace zelvor
