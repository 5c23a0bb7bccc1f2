#include "controls/BoundCheck.h"

#include <QMenuBar>

#include "BoundControlFixture.h"

namespace zelvor {
namespace {

constexpr CheckField Plain{.key = "test.plain", .label = Text::Beep, .address = 0x100};
constexpr CheckField BlankIsOff{.key = "test.blankisoff", .label = Text::Beep, .address = 0x101, .erasedIsOff = true};

class BoundCheckTest : public BoundControlTest<BoundCheck> {
protected:
    void ShowField(const CheckField& field, Language language = Language::English) {
        Show("chkTest", field, image, language);
        control->Load();
        control->setFocus();
    }
};

TEST_F(BoundCheckTest, IsCaptionedWithTheFieldsLabel) {
    ShowField(Plain);
    EXPECT_EQ(control->objectName(), "chkTest");
    EXPECT_EQ(control->text(), "Beep");
    ShowField(Plain, Language::Chinese);
    EXPECT_EQ(control->text(), "哔音");
}

TEST_F(BoundCheckTest, EveryByteButZeroShowsAMarkAndIsStoredAsOneWhenLeft) {
    for (const int byte : {0, 1, 2, 128, 254, 255}) {
        image.Set(0x100, static_cast<std::uint8_t>(byte));
        ShowField(Plain);
        EXPECT_EQ(control->isChecked(), byte != 0) << byte;
        EXPECT_EQ(At(0x100), byte);
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(0x100), byte == 0 ? 0 : 1) << byte;
    }
}

TEST_F(BoundCheckTest, ABlankByteShowsNoMarkWhereTheFieldSaysSo) {
    ShowField(BlankIsOff);
    EXPECT_FALSE(control->isChecked());
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x101), 0);
    image.Set(0x101, 254);
    ShowField(BlankIsOff);
    EXPECT_TRUE(control->isChecked());
}

TEST_F(BoundCheckTest, AMarkIsStoredWhenTheBoxIsLeftByEnterOrByTab) {
    for (const Qt::Key leave : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        image.Set(0x100, 0);
        ShowField(Plain);
        Key(Qt::Key_Space);
        EXPECT_TRUE(control->isChecked());
        EXPECT_EQ(At(0x100), 0);
        Key(leave);
        EXPECT_TRUE(after->hasFocus());
        EXPECT_EQ(At(0x100), 1);
    }
}

TEST_F(BoundCheckTest, LoadingTellsOfAChangeOfTheMarkOnly) {
    image.Set(0x100, 0);
    ShowField(Plain);
    const QSignalSpy toggled(control, &BoundCheck::toggled);
    control->Load();
    EXPECT_EQ(toggled.count(), 0);
    image.Set(0x100, 1);
    control->Load();
    EXPECT_EQ(toggled.count(), 1);
}

/// A box with a byte that it shows as a mark and would store as 1, and another window of the program.
class BoundCheckBesideAWindow : public BoundCheckTest {
protected:
    void SetUp() override {
        image.Set(0x100, 0x37);
        ShowField(Plain);
        ASSERT_TRUE(control->hasFocus());
    }
    void BringToFront(QWidget& top) {
        top.show();
        top.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&top));
    }
    QWidget other;
};

TEST_F(BoundCheckBesideAWindow, IsNotLeftWhereTheOtherOnlyComesToTheFront) {
    const QSignalSpy told(control, &BoundCheck::FocusLeft);
    BringToFront(other);
    EXPECT_EQ(At(0x100), 0x37);
    BringToFront(*window);
    EXPECT_TRUE(control->hasFocus());
    EXPECT_EQ(At(0x100), 0x37);
    EXPECT_EQ(told.count(), 0);
    after->setFocus();
    EXPECT_EQ(At(0x100), 1);
    EXPECT_EQ(told.count(), 1);
}

TEST_F(BoundCheckBesideAWindow, IsLeftByACommandMeanwhile) {
    BringToFront(other);
    CommitPendingEdit();
    EXPECT_EQ(At(0x100), 1);
}

TEST_F(BoundCheckBesideAWindow, IsLeftByAClickOnAnotherControlAsTheWindowComesBack) {
    BringToFront(other);
    after->setFocus();
    BringToFront(*window);
    EXPECT_EQ(At(0x100), 1);
}

TEST_F(BoundCheckBesideAWindow, IsNotLeftForTheMenuBar) {
    QMenuBar menus(window.get());
    menus.addMenu("Menu");
    menus.show();
    menus.setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(At(0x100), 0x37);
    control->setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(At(0x100), 0x37);
}

} // namespace
} // namespace zelvor
