#include "DTMFFormFixture.h"

namespace zelvor {
namespace {

/// ID code 12345 and stun code 7A*, on the Decode tab.
class DTMFCodesTest : public DTMFFormTest {
protected:
    void Enter(const char* name, const char* text) {
        Focus(name);
        Retype(text);
        Key(Qt::Key_Tab);
    }
    void ExpectStunType(bool enabled) {
        EXPECT_EQ(List("cboStunType").isEnabled(), enabled);
        EXPECT_EQ(Find<QLabel>("lblStunType").isEnabled(), enabled);
    }
    void ExpectHeldWith(const char* name, const char* text) {
        EXPECT_TRUE(Box(name).hasFocus());
        EXPECT_EQ(Text(name), text);
        EXPECT_EQ(Box(name).selectedText().toStdString(), text);
    }
};

TEST_F(DTMFCodesTest, AnIdCodeIsStoredWhenTheBoxIsLeftAndEndsInErasedBytes) {
    ShowAt(1, "txtIDCode");
    Enter("txtIDCode", "678");
    EXPECT_EQ(Code(0x120), "678.......");
    Enter("txtIDCode", "0123456789");
    EXPECT_EQ(Code(0x120), "0123456789");
    Enter("txtIDCode", "98765");
    EXPECT_EQ(Code(0x120), "98765.....");
    EXPECT_EQ(At(0x12A), 0xFF);
    EXPECT_EQ(At(0x11F), 0xFF);
}

TEST_F(DTMFCodesTest, AnIdCodeEndsOnOpeningBeforeAByteThatIsNoDigit) {
    Put(0x122, {'A'});
    Load();
    EXPECT_EQ(Text("txtIDCode"), "12");
    Put(0x120, {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '0'});
    Load();
    EXPECT_EQ(Text("txtIDCode"), "0123456789");
}

TEST_F(DTMFCodesTest, AnIdCodeOfLessThanThreeDigitsIsRefusedByTabAndBacktabAndEnter) {
    for (const char* text : {"", "1", "12"}) {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return}) {
            ShowAt(1, "txtIDCode");
            Retype(text);
            ExpectInvalid();
            Key(key);
            EXPECT_EQ(services.messages.Pending(), 0);
            ExpectHeldWith("txtIDCode", "12345");
            EXPECT_EQ(Code(0x120), "12345.....");
        }
    }
}

TEST_F(DTMFCodesTest, TheMessageIsChineseInChinese) {
    ShowAt(1, "txtIDCode", Language::Chinese);
    Retype("12");
    ExpectInvalid(Language::Chinese);
    Key(Qt::Key_Tab);
    EXPECT_EQ(services.messages.Pending(), 0);
}

TEST_F(DTMFCodesTest, AClickOnCloseWithAnIllegalCodeShowsTheMessageOnceAndNeitherClosesNorPresses) {
    ShowAt(1, "txtIDCode");
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    Retype("12");
    ExpectInvalid();
    auto& close = Find<QPushButton>("cmdClose");
    QTest::mousePress(&close, Qt::LeftButton);
    EXPECT_FALSE(close.isDown());
    QTest::mouseRelease(&close, Qt::LeftButton);
    EXPECT_EQ(services.messages.Shown().size(), 1U);
    EXPECT_EQ(unloaded.count(), 0);
    ExpectHeldWith("txtIDCode", "12345");
    Click("cmdClose");
    EXPECT_EQ(unloaded.count(), 1);
}

TEST_F(DTMFCodesTest, TheShortcutOfCloseDoesNotCloseWithAnIllegalCodeEither) {
    ShowAt(1, "txtIDCode");
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    Retype("12");
    ExpectInvalid();
    Find<QPushButton>("cmdClose").click(); // as the shortcut does: the focus stays in the box
    EXPECT_EQ(unloaded.count(), 0);
    ExpectHeldWith("txtIDCode", "12345");
    Find<QPushButton>("cmdClose").click();
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_EQ(services.messages.Shown().size(), 1U);
}

TEST_F(DTMFCodesTest, TheFrameClosesAfterTheMessage) {
    ShowAt(1, "txtIDCode");
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    Retype("12");
    ExpectInvalid();
    form->CloseFromFrame();
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_EQ(Code(0x120), "12345.....");
    form->hide();
    form.reset();
    EXPECT_EQ(services.messages.Shown().size(), 1U);
}

TEST_F(DTMFCodesTest, ClicksOnOtherFieldsAndTabsDoNothingWithAnIllegalCode) {
    ShowAt(1, "txtIDCode");
    const DataImage before = document.Image;
    Put(0x119, {7}); // what a list without a selection would store 0xFF over
    const auto refuse = [this](QWidget& control, QPoint at) {
        Retype("12");
        ExpectInvalid();
        QTest::mouseClick(&control, Qt::LeftButton, {}, at);
        EXPECT_EQ(services.messages.Pending(), 0) << control.objectName().toStdString();
        ExpectHeldWith("txtIDCode", "12345");
    };
    refuse(List("cboTranspond"), List("cboTranspond").rect().center());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    refuse(Check("chkClear"), {10, Check("chkClear").height() / 2});
    EXPECT_TRUE(Check("chkClear").isChecked());
    refuse(Box("txtStunCode"), {10, 10});
    refuse(Box("txtAutoResetTimer"), {10, 10});
    refuse(*Tabs().tabBar(), Tabs().tabBar()->tabRect(0).center());
    EXPECT_EQ(Tabs().currentIndex(), 1);
    EXPECT_EQ(At(0x119), 7);
    Put(0x119, {2});
    EXPECT_EQ(document.Image, before);
}

TEST_F(DTMFCodesTest, AnImagesOwnIllegalIdCodeIsTheOneThatComesBack) {
    Put(0x120, {'7', 'X', '9', 0xFF, 0xFF});
    ShowAt(1, "txtIDCode");
    Retype("12");
    ExpectInvalid();
    Key(Qt::Key_Tab);
    ExpectHeldWith("txtIDCode", "7");
    EXPECT_EQ(Code(0x120), "7.........");
    ExpectInvalid();
    Key(Qt::Key_Tab); // also untouched it is no code to leave the box with
    ExpectHeldWith("txtIDCode", "7");
    Enter("txtIDCode", "123");
    EXPECT_EQ(Code(0x120), "123.......");
}

TEST_F(DTMFCodesTest, TheIdCodeOfTheLastLeavingIsTheOneThatComesBack) {
    ShowAt(1, "txtIDCode");
    Enter("txtIDCode", "678");
    Focus("txtIDCode");
    Retype("1");
    ExpectInvalid();
    Key(Qt::Key_Tab);
    ExpectHeldWith("txtIDCode", "678");
}

TEST_F(DTMFCodesTest, AnIdCodeTakesUpToTenDecimalDigits) {
    ShowAt(1, "txtIDCode");
    Retype("1A2b#3*4 5d6-7890X12");
    EXPECT_EQ(Text("txtIDCode"), "1234567890");
    Retype("");
    Paste("1A2b#3*4 5d6-7890X12");
    EXPECT_EQ(Text("txtIDCode"), "1234567890");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Text("txtIDCode"), "123456789");
    Box("txtIDCode").selectAll();
    Type("7");
    EXPECT_EQ(Text("txtIDCode"), "7");
    Retype("12345");
}

TEST_F(DTMFCodesTest, AStunCodeTakesUpToTenDtmfDigits) {
    ShowAt(1, "txtStunCode");
    Retype("1aBeF#2*cD-34567");
    EXPECT_EQ(Text("txtStunCode"), "1AB#2*CD34");
    Retype("");
    Paste("1aBeF#2*cD-34567");
    EXPECT_EQ(Text("txtStunCode"), "1AB#2*CD34");
    Box("txtStunCode").selectAll();
    Type("d");
    EXPECT_EQ(Text("txtStunCode"), "D");
    Retype("123");
}

TEST_F(DTMFCodesTest, AStunCodeIsStoredWhenTheBoxIsLeft) {
    ShowAt(1, "txtStunCode");
    Retype("0123456789");
    EXPECT_EQ(Code(0x1F0), "7A*.......");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Code(0x1F0), "0123456789");
    EXPECT_EQ(At(0x1FA), 1);
    Enter("txtStunCode", "abc");
    EXPECT_EQ(Code(0x1F0), "ABC.......");
}

TEST_F(DTMFCodesTest, EmptyingTheStunCodeErasesItAndDisablesStunTypeWhoseByteStays) {
    ShowAt(1, "txtStunCode");
    ExpectStunType(true);
    Retype("");
    Key(Qt::Key_Tab);
    EXPECT_TRUE(services.messages.Shown().empty());
    EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus()); // past the disabled list
    ExpectStunType(false);
    EXPECT_EQ(Code(0x1F0), "..........");
    EXPECT_EQ(At(0x1FA), 1);
}

TEST_F(DTMFCodesTest, AStunCodeEnablesStunTypeBeforeTabLooksForTheNextField) {
    for (const char* code : {"123", "0123456789"}) {
        for (int address = 0x1F0; address < 0x1FA; ++address) {
            Put(address, {0xFF});
        }
        ShowAt(1, "txtStunCode");
        ExpectStunType(false);
        Retype(code);
        ExpectStunType(false);
        Key(Qt::Key_Tab);
        ExpectStunType(true);
        EXPECT_TRUE(List("cboStunType").hasFocus());
    }
}

TEST_F(DTMFCodesTest, AStunCodeOfOneOrTwoDigitsIsRefused) {
    for (const char* text : {"1", "A#"}) {
        ShowAt(1, "txtStunCode");
        Retype(text);
        ExpectInvalid();
        Key(Qt::Key_Tab);
        EXPECT_EQ(services.messages.Pending(), 0);
        ExpectHeldWith("txtStunCode", "7A*");
        EXPECT_EQ(Code(0x1F0), "7A*.......");
        ExpectStunType(true);
    }
}

TEST_F(DTMFCodesTest, ARefusedFirstStunCodeLeavesStunTypeDisabled) {
    Put(0x1F0, {0xFF, 0xFF, 0xFF});
    ShowAt(1, "txtStunCode");
    Retype("12");
    ExpectInvalid();
    Key(Qt::Key_Tab);
    ExpectHeldWith("txtStunCode", "");
    ExpectStunType(false);
    EXPECT_EQ(Code(0x1F0), "..........");
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus());
}

TEST_F(DTMFCodesTest, AStunCodeOfOtherCharactersIsShownAndStoredBackAsItIs) {
    Put(0x1F0, {0x00, 'z', 0x80, 0x81, ' ', 0x0A, 0xFE});
    const DataImage before = document.Image;
    ShowAt(1, "txtStunCode");
    EXPECT_EQ(Box("txtStunCode").text().size(), 7);
    ExpectStunType(true);
    Key(Qt::Key_Tab);
    EXPECT_EQ(document.Image, before);
}

} // namespace
} // namespace zelvor
