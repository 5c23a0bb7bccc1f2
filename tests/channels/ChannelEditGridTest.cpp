#include "ChannelEditFixture.h"

namespace zelvor {
namespace {

using Cells = std::vector<std::string>;

/// Grid and dialog side by side, typed into in turn.
class ChannelEditGridTest : public ChannelEditTest {
protected:
    void EditCell(int row, int column, const char* typed) {
        EnterGrid();
        GoTo(row, column);
        Key(Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_Delete);
        Type(typed);
        Key(Qt::Key_Return);
    }
    /// Steps the value of a list cell; its editor stays open.
    void StepCell(int row, int column, Qt::Key key) {
        EnterGrid();
        GoTo(row, column);
        Key(Qt::Key_Return);
        Key(key);
    }
};

TEST_F(ChannelEditGridTest, AFrequencyTypedIntoTheGridShowsInTheDialogWithAllDefaults) {
    ShowBoth();
    EditCell(1, 1, "145");
    EXPECT_EQ(Rx().text(), "145.00000");
    EXPECT_EQ(Tx().text(), "");
    EXPECT_TRUE(Tx().isEnabled());
    EXPECT_EQ(Shown("ComDecode"), "None");
    EXPECT_EQ(Shown("ComEncode"), "None");
    EXPECT_FALSE(Combo("ComEncode").isEnabled());
    EXPECT_EQ(Shown("ComSelSignal"), "None");
    EXPECT_EQ(Shown("ComTxPower"), "High");
    EXPECT_EQ(Shown("ComWideNarrow"), "Wide");
    EXPECT_EQ(Shown("ComPTTID"), "Off");
    EXPECT_EQ(Shown("ComAutoDial"), "1");
    EXPECT_TRUE(Check("ChkScanAdd").isChecked());
    EXPECT_TRUE(Check("ChkScanAdd").isEnabled());
    EXPECT_FALSE(Check("ChkShift").isChecked());
    EXPECT_FALSE(Check("ChkYaKuo").isChecked());
    EXPECT_EQ(Row(1), (Cells{"145.00000", "", "None", "None", "High", "Wide", "Yes", "None", "Off"}));
}

TEST_F(ChannelEditGridTest, ACompleteFrequencyLeavesTheSignallingOpenWhileTheDialogIsUp) {
    ShowBoth();
    EditCell(1, 1, "145.12500");
    EXPECT_EQ(Combo("ComSelSignal").currentIndex(), -1);
    EXPECT_EQ(Row(1), (Cells{"145.12500", "", "None", "None", "High", "Wide", "Yes", "", "Off"}));
}

TEST_F(ChannelEditGridTest, RetypingAFrequencyBesideTheDialogClearsTheHiddenFields) {
    PutAll(OtherRecord);
    ShowBoth();
    EditCell(1, 1, "146.50000");
    EXPECT_EQ(Shown("ComSelSignal"), "DTMF");
    EXPECT_FALSE(Check("ChkShift").isChecked());
    EXPECT_FALSE(Check("ChkYaKuo").isChecked());
    EXPECT_EQ(Shown("ComAutoDial"), "1");
    EXPECT_EQ(Record(1), (std::vector<int>{0x00, 0x00, 0x65, 0x14, 0x00, 0x00, 0x01, 0x15, 0xE8, 0x03, 0x13, 0xA8, 0x3A,
                                           0x8F, 0xB1, 0xF8}));
}

TEST_F(ChannelEditGridTest, DeletingAFrequencyInTheGridBlanksTheDialog) {
    PutAll(OtherRecord);
    document.Image.Set(0x17E, 0xFF);
    ShowBoth();
    EditCell(1, 1, "");
    EXPECT_EQ(Rx().text(), "");
    EXPECT_FALSE(Tx().isEnabled());
    EXPECT_FALSE(Combo("ComSPMute").isEnabled());
    EXPECT_EQ(Record(1), std::vector<int>(16, 0xFF));
    EXPECT_EQ(document.Image.At(0x17E), 0xFF);
}

TEST_F(ChannelEditGridTest, TheTransmitColumnAndTheDialogStayInStep) {
    PutAll(SimplexRecord);
    ShowBoth();
    EditCell(1, 2, "");
    EXPECT_EQ(Tx().text(), "");
    EXPECT_FALSE(Combo("ComEncode").isEnabled());
    EXPECT_EQ(Shown("ComEncode"), "None");
    EditCell(1, 2, "150.0031");
    EXPECT_EQ(Tx().text(), "150.00500");
    EXPECT_TRUE(Combo("ComEncode").isEnabled());
}

TEST_F(ChannelEditGridTest, EveryListColumnShowsItsChoiceInTheDialog) {
    struct Step {
        int column;
        Qt::Key key;
        const char* list;
        std::string shown;
    };
    const Step steps[] = {
        {3, Qt::Key_Down, "ComDecode", "67.0"},     {4, Qt::Key_Down, "ComEncode", "67.0"},
        {5, Qt::Key_Down, "ComTxPower", "Low"},     {5, Qt::Key_Up, "ComTxPower", "High"},
        {6, Qt::Key_Up, "ComWideNarrow", "Narrow"}, {6, Qt::Key_Down, "ComWideNarrow", "Wide"},
        {8, Qt::Key_Down, "ComSelSignal", "DTMF"},  {8, Qt::Key_Down, "ComSelSignal", "Corvane"},
        {8, Qt::Key_Up, "ComSelSignal", "DTMF"},    {8, Qt::Key_Up, "ComSelSignal", "None"},
        {9, Qt::Key_Down, "ComPTTID", "On"},        {9, Qt::Key_Up, "ComPTTID", "Off"},
    };
    PutAll(SimplexRecord);
    ShowBoth(2);
    for (const Step& step : steps) {
        StepCell(2, step.column, step.key);
        EXPECT_EQ(Cell(2, step.column), step.shown);
        EXPECT_EQ(Shown(step.list), step.shown) << step.column;
    }
    StepCell(2, 7, Qt::Key_Up);
    EXPECT_TRUE(Check("ChkScanAdd").isChecked());
    StepCell(2, 7, Qt::Key_Down);
    EXPECT_FALSE(Check("ChkScanAdd").isChecked());
}

TEST_F(ChannelEditGridTest, CorvanePttIdsOfTheGridShowInTheDialog) {
    document.Image.Set(0x133, 1);
    PutAll(SimplexRecord);
    ShowBoth();
    const char* shown[] = {"Own",          "Fleet List 1", "Fleet List 2", "Fleet List 3", "Fleet List 4",
                           "Fleet List 5", "Fleet List 6", "Fleet List 7", "Fleet List 8"};
    for (const char* text : shown) {
        StepCell(1, 9, Qt::Key_Down);
        EXPECT_EQ(Shown("ComPTTID"), text);
    }
}

TEST_F(ChannelEditGridTest, AToneChosenInTheGridChangesTheDependentLists) {
    PutAll(SimplexRecord);
    ShowBoth();
    StepCell(1, 3, Qt::Key_Down);
    EXPECT_EQ(Entries("ComSPMute"), (Cells{"QT/DQT"}));
    StepCell(1, 8, Qt::Key_Down);
    EXPECT_EQ(Combo("ComBusyLock").count(), 4);
    EditCell(1, 3, "");
    EXPECT_EQ(Shown("ComDecode"), "None");
    EXPECT_EQ(Entries("ComSPMute"), (Cells{"Carrier", "Carrier + Opt.Sig.", "Carrier or Opt.Sig."}));
}

TEST_F(ChannelEditGridTest, BothWindowsAreTypedIntoInTurnAndStayInStep) {
    PutRecord(16, SimplexRecord);
    ShowBoth(3);
    Enter("txtRxFreq");
    Type("145.5");
    EditCell(3, 2, "146"); // the click into the grid commits the dialog's box
    EXPECT_EQ(Row(3), (Cells{"145.50000", "146.00000", "None", "None", "High", "Wide", "Yes", "None", "Off"}));
    Pick("ComDecode", 1);
    EXPECT_EQ(Cell(3, 3), "67.0");
    StepCell(3, 4, Qt::Key_Down);
    EXPECT_EQ(Shown("ComEncode"), "67.0");
    Pick("ComSelSignal", 1);
    Pick("ComBusyLock", 3);
    StepCell(3, 5, Qt::Key_Down);
    Enter("ChkShift");
    Key(Qt::Key_Space);
    StepCell(3, 6, Qt::Key_Up);
    Pick("ComAutoDial", 3);
    EditCell(3, 3, "D23");
    EXPECT_EQ(Shown("ComDecode"), "D230N");
    GoToChannel(4);
    EditCell(3, 1, "145.6");
    EXPECT_EQ(Text("txtChannel").text(), "3");
    GoToChannel(3);
    Enter("ChkYaKuo");
    Key(Qt::Key_Space);
    EXPECT_EQ(Row(3), (Cells{"145.60000", "146.00000", "D230N", "67.0", "Low", "Narrow", "Yes", "DTMF", "Off"}));
    // Retyping the frequency beside the dialog cleared Beat Shift and the Autodial Memory.
    EXPECT_EQ(Record(3), (std::vector<int>{0x00, 0x00, 0x56, 0x14, 0x00, 0x00, 0x60, 0x14, 0x98, 0x28, 0x9E, 0x02, 0x1B,
                                           0x8F, 0xB0, 0xF8}));
    EXPECT_EQ(Record(4), std::vector<int>(16, 0xFF));
    EXPECT_EQ(document.Image.At(0x17E), 0x04);
}

TEST_F(ChannelEditGridTest, TheDialogsEditStaysInItsChannelWhileTheGridsCursorIsElsewhere) {
    PutAll(SimplexRecord);
    ShowBoth(2);
    GoToChannel(9);
    Pick("ComTxPower", 1);
    Replace("ComDecode", "D023N");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Row(9), (Cells{"145.12500", "145.12500", "D023N", "None", "Low", "Wide", "No", "None", "Off"}));
    EXPECT_EQ(Row(2), (Cells{"145.12500", "145.12500", "None", "None", "High", "Wide", "No", "None", "Off"}));
    ExpectCursor(2, 1);
    EXPECT_EQ(Byte(2, 13), 0xBF);
    EXPECT_EQ(Byte(9, 13), 0x9F);
    StepCell(2, 6, Qt::Key_Up);
    EXPECT_EQ(Row(2), (Cells{"145.12500", "145.12500", "None", "None", "High", "Narrow", "No", "None", "Off"}));
    EXPECT_EQ(Byte(9, 13), 0x9F);
}

TEST_F(ChannelEditGridTest, AClosedDialogIsLeftAlone) {
    PutAll(SimplexRecord);
    ShowBoth();
    Close();
    EditCell(1, 1, "146");
    EXPECT_EQ(Rx().text(), "145.12500");
}

} // namespace
} // namespace zelvor
