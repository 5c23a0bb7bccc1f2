#include "ChannelEditFixture.h"

namespace zelvor {
namespace {

TEST_F(ChannelEditTest, UpAtChannelSixteenGoesToOneAndTheGridsCursorStays) {
    PutAll(SimplexRecord);
    ShowBoth(16);
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtChannel").text(), "1");
    EXPECT_EQ(Text("txtChannel").selectedText(), "1");
    ExpectCursor(16, 1);
    EXPECT_EQ(form->windowTitle(), " Channel Information [ Channel - 1 ]");
}

TEST_F(ChannelEditTest, DownAtChannelOneGoesToSixteen) {
    ShowBoth();
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtChannel").text(), "16");
    EXPECT_EQ(Text("txtChannel").selectedText(), "16");
    EXPECT_EQ(In<QWidget>("UpDown1").property("value").toInt(), 16);
    ExpectCursor(1, 1);
}

TEST_F(ChannelEditTest, TheArrowsStepThroughAllChannelsAndShowEach) {
    for (int k = 1; k <= 16; ++k) {
        PutRecord(k, SimplexWith(15, 0xF8 + k % 8));
    }
    const char* autoDial[] = {"2", "3", "4", "5", "6", "7", "8", "1", "2", "3", "4", "5", "6", "7", "8", "1"};
    ShowBoth();
    const DataImage before = document.Image;
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(Text("txtChannel").text(), QString::number(k));
        EXPECT_EQ(Shown("ComAutoDial"), autoDial[k - 1]);
        EXPECT_EQ(windows.Cursor.EditChannel(), k);
        Key(Qt::Key_Up);
    }
    EXPECT_EQ(Text("txtChannel").text(), "1");
    EXPECT_EQ(document.Image, before);
}

TEST_F(ChannelEditTest, TheSpinButtonsWrapToo) {
    ShowBoth();
    auto& spin = In<QWidget>("UpDown1");
    const QPoint up(spin.width() - 8, 6);
    const QPoint down(spin.width() - 8, spin.height() - 6);
    QTest::mouseClick(&spin, Qt::LeftButton, {}, down);
    EXPECT_EQ(Text("txtChannel").text(), "16");
    QTest::mouseClick(&spin, Qt::LeftButton, {}, up);
    EXPECT_EQ(Text("txtChannel").text(), "1");
    QTest::mouseClick(&spin, Qt::LeftButton, {}, up);
    EXPECT_EQ(Text("txtChannel").text(), "2");
    EXPECT_EQ(form->windowTitle(), " Channel Information [ Channel - 2 ]");
}

TEST_F(ChannelEditTest, TheTitleIsChineseInChinese) {
    ShowBoth(1, Language::Chinese);
    Key(Qt::Key_Up);
    EXPECT_EQ(form->windowTitle(), " 信道信息 [ 信道 - 2 ]");
}

TEST_F(ChannelEditTest, TypedNumbersAreForcedIntoTheChannels) {
    struct Row {
        const char* typed;
        const char* shown;
    };
    const Row rows[] = {{"7", "7"}, {"12", "12"}, {"16", "16"}, {"17", "16"}, {"99", "16"},
                        {"0", "1"}, {"05", "15"}, {"a5", "5"},  {"3.", "3"},  {"123", "12"}};
    ShowBoth();
    for (const Row& row : rows) {
        Text("txtChannel").selectAll();
        Type(row.typed);
        EXPECT_EQ(Text("txtChannel").text(), row.shown) << row.typed;
    }
}

TEST_F(ChannelEditTest, AnEmptiedNumberBecomesOneAndIsReplacedByWhatIsTyped) {
    ShowBoth(5);
    Text("txtChannel").selectAll();
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Text("txtChannel").text(), "1");
    Type("12");
    EXPECT_EQ(Text("txtChannel").text(), "12");
}

TEST_F(ChannelEditTest, EnterAndTheLetterLInTheNumberMoveOnToTheReceiveFrequency) {
    ShowBoth();
    Key(Qt::Key_Return);
    EXPECT_TRUE(Rx().hasFocus());
    Enter("txtChannel");
    Type("l");
    EXPECT_TRUE(Rx().hasFocus());
    EXPECT_EQ(Text("txtChannel").text(), "1");
}

TEST_F(ChannelEditTest, TheWholeDialogIsWalkedWithEnter) {
    PutAll(OtherRecord);
    ShowBoth();
    for (const char* name : {"txtRxFreq", "txtTxFreq", "ComDecode", "ComEncode", "ComSelSignal", "ComSPMute",
                             "ComTxPower", "ComWideNarrow", "ComBusyLock", "ComPTTID", "ComAutoDial"}) {
        Key(Qt::Key_Return);
        EXPECT_TRUE(In<QWidget>(name).hasFocus()) << name;
    }
    for (const char* name : {"ChkShift", "ChkScanAdd", "ChkYaKuo", "cmdOK", "cmdHelp"}) {
        Key(Qt::Key_Tab);
        EXPECT_TRUE(In<QWidget>(name).hasFocus()) << name;
    }
}

TEST_F(ChannelEditTest, TheGridsCursorTakesTheDialogAlong) {
    PutAll(SimplexRecord);
    PutRecord(3, OtherRecord);
    ShowBoth(1);
    EnterGrid();
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtChannel").text(), "2");
    EXPECT_EQ(Rx().text(), "145.12500");
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtChannel").text(), "3");
    EXPECT_EQ(In<QWidget>("UpDown1").property("value").toInt(), 3);
    EXPECT_EQ(Rx().text(), "145.62500");
    EXPECT_EQ(Shown("ComSPMute"), "QT/DQT + Opt.Sig.");
}

TEST_F(ChannelEditTest, OpeningACellTakesTheDialogBackToTheGridsRow) {
    PutAll(SimplexRecord);
    PutRecord(2, OtherRecord);
    ShowBoth(2);
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtChannel").text(), "3");
    EXPECT_EQ(Rx().text(), "145.12500");
    EnterGrid();
    Key(Qt::Key_Return); // the cursor did not move
    EXPECT_EQ(Text("txtChannel").text(), "2");
    EXPECT_EQ(Rx().text(), "145.62500");
    EXPECT_EQ(form->windowTitle(), " Channel Information [ Channel - 2 ]");
}

} // namespace
} // namespace zelvor
