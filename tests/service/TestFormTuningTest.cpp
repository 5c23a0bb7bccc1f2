#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

using TestFormTuningTest = TestFormTest;

TEST_F(TestFormTuningTest, TuningNeedsAChosenItem) {
    Open();
    auto& cmdTune = In<QPushButton>(*form, "CmdTune");
    EXPECT_FALSE(cmdTune.isEnabled());
    Click(*form, "CmdTune");
    rig.clock.Advance(200);
    EXPECT_TRUE(rig.sent.empty());
    ClickItem(4);
    EXPECT_EQ(rig.service.TuneItem, 4);
    EXPECT_TRUE(cmdTune.isEnabled());
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(TestFormTuningTest, AnItemIsChosenByTheArrowKeysToo) {
    Open();
    ClickItem(1);
    Press(Items(), Qt::Key_Down, 6);
    EXPECT_EQ(rig.service.TuneItem, 7);
    EXPECT_TRUE(In<QPushButton>(*form, "CmdTune").isEnabled());
}

TEST_F(TestFormTuningTest, ADoubleClickOpensTheItemsDialog) {
    Open();
    ClickItem(8);
    const QPoint place = Items().visualItemRect(Items().item(7)).center();
    QTest::mouseDClick(Items().viewport(), Qt::LeftButton, {}, place);
    rig.clock.Advance(300);
    EXPECT_EQ(rig.sent, (Commands{"05", "06", "1F 0D"}));
    ASSERT_NE(Tuning(), nullptr);
    EXPECT_EQ(Tuning()->windowTitle(), "Sensitivity");
}

TEST_F(TestFormTuningTest, EnterOnAChosenItemOpensItsDialog) {
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        Open();
        Press(Items(), enter);
        rig.clock.Advance(300);
        EXPECT_TRUE(rig.sent.empty()); // nothing is chosen yet
        ClickItem(7);
        Press(Items(), Qt::Key_Down);
        Press(Items(), enter);
        rig.clock.Advance(300);
        EXPECT_EQ(rig.sent, (Commands{"05", "06", "1F 0D"}));
        ASSERT_NE(Tuning(), nullptr);
        EXPECT_EQ(Tuning()->windowTitle(), "Sensitivity");
        delete form;
    }
}

struct DialogRow {
    int item;
    const char* select;
    const char* wideName;
    const char* wideTitle;
    const char* wideChinese;
    const char* narrowName;
    const char* narrowTitle;
    const char* narrowChinese;
};

const std::vector<DialogRow> Dialogs{
    {1, "12 0D", "TunningForm1", "RF High Power", "RF高功率", "TunningForm1", "RF High Power", "RF高功率"},
    {2, "14 0D", "TunningForm1", "RF Low Power", "RF低功率", "TunningForm1", "RF Low Power", "RF低功率"},
    {3, "18 0D", "TunningForm3", "DQT Balance(Wide)", "DQT平衡(宽带)", "TunningForm4", "DQT Balance(Narrow)",
     "DQT平衡(窄带)"},
    {4, "17 0D", "TunningForm3", "Max Deviation(Wide)", "最大频差(宽带)", "TunningForm4", "Max Deviation(Narrow)",
     "最大频差(窄带)"},
    {5, "19 0D", "TunningForm3", "QT Fine Deviation(Wide)", "QT细频差(宽带)", "TunningForm4",
     "QT Fine Deviation(Narrow)", "QT细频差(窄带)"},
    {6, "1A 0D", "TunningForm3", "DQT Fine Deviation(Wide)", "DQT细频差(宽带)", "TunningForm4",
     "DQT Fine Deviation(Narrow)", "DQT细频差(窄带)"},
    {7, "1D 0D", "TunningForm4", "DTMF Fine Deviation(Wide)", "DTMF细频差(宽带)", "TunningForm4",
     "DTMF Fine Deviation(Narrow)", "DTMF细频差(窄带)"},
    {8, "1F 0D", "TunningForm3", "Sensitivity", "灵敏度", "TunningForm3", "Sensitivity", "灵敏度"},
    {9, "0D 0D", "TunningForm3", "Squelch(Tight)(Wide)", "最紧静噪(宽带)", "TunningForm4", "Squelch(Tight)(Narrow)",
     "最紧静噪(窄带)"},
    {10, "0C 0D", "TunningForm3", "Squelch(Open)(Wide)", "静噪打开(宽带)", "TunningForm4", "Squelch(Open)(Narrow)",
     "静噪打开(窄带)"},
    {11, "1B 0D", "TunningForm4", "MSK Fine Deviation(Wide)", "MSK频偏差(宽带)", "TunningForm4",
     "MSK Fine Deviation(Narrow)", "MSK频偏差(窄带)"},
    {12, "1C 0D", "TunningForm2", "Battery Warning Level", "电池告警电平", "TunningForm2", "Battery Warning Level",
     "电池告警电平"},
    {13, "21 0D", "TunningForm2", "VOX1", "VOX1", "TunningForm2", "VOX1", "VOX1"},
    {14, "23 0D", "TunningForm2", "VOX10", "VOX10", "TunningForm2", "VOX10", "VOX10"},
    {15, "22 0D", "TunningForm2", "RSSI", "RSSI", "TunningForm2", "RSSI", "RSSI"},
};

class TestFormDialogs : public TestFormTest, public testing::WithParamInterface<Language> {
protected:
    void ExpectDialog(const DialogRow& row, const char* name, const char* title) {
        ClickItem(row.item);
        Click(*form, "CmdTune");
        rig.clock.Advance(300);
        EXPECT_EQ(rig.TakeSent(), (Commands{"05", "06", row.select}));
        ASSERT_NE(Tuning(), nullptr);
        EXPECT_EQ(FromQString(Tuning()->objectName()), name);
        EXPECT_EQ(FromQString(Tuning()->windowTitle()), title);
        EXPECT_TRUE(Tuning()->isVisible());
        EXPECT_TRUE(Tuning()->isEnabled());
        EXPECT_FALSE(form->isEnabled());
        QTest::keyPress(Tuning(), Qt::Key_Escape);
        LetLeave();
        RemoveClosed();
        EXPECT_EQ(Tuning(), nullptr);
        EXPECT_TRUE(form->isEnabled());
        rig.TakeSent();
    }
};

TEST_P(TestFormDialogs, EachItemAndWidthHasItsDialog) {
    const bool chinese = GetParam() == Language::Chinese;
    Open(GetParam());
    for (const DialogRow& row : Dialogs) {
        ExpectDialog(row, row.wideName, chinese ? row.wideChinese : row.wideTitle);
    }
    Click(*form, "CmdNarrow");
    rig.clock.Advance(100);
    rig.TakeSent();
    for (const DialogRow& row : Dialogs) {
        ExpectDialog(row, row.narrowName, chinese ? row.narrowChinese : row.narrowTitle);
    }
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, TestFormDialogs, testing::Values(Language::English, Language::Chinese));

TEST_F(TestFormTuningTest, TheDialogShowsTheValuesThatTheRadioHasJustTold) {
    Open();
    ClickItem(1); // byte n of the record is 100 + n
    Click(*form, "CmdTune");
    rig.clock.Advance(300);
    ASSERT_NE(Tuning(), nullptr);
    std::string shown;
    for (const char* box : {"txtTuneValue(0)", "txtTuneValue(1)", "txtTuneValue(2)", "txtTuneValue(3)",
                            "txtTuneValue(4)", "txtTuneValue(5)"}) {
        shown += TextOf(*Tuning(), box) + " ";
    }
    EXPECT_EQ(shown, "111 112 113 114 115 116 ");
}

TEST_F(TestFormTuningTest, TuningWhileKeyedDropsTheTransmitterFirst) {
    Open();
    PressPtt();
    rig.TakeSent();
    ClickItem(2);
    Click(*form, "CmdTune");
    rig.clock.Advance(300);
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "05", "06", "14 0D"}));
    EXPECT_EQ(Lamps(), IdleLamps);
}

TEST_F(TestFormTuningTest, TheWindowWaitsForItsTuningDialog) {
    Open();
    ClickItem(1);
    Click(*form, "CmdTune");
    rig.clock.Advance(300);
    rig.TakeSent();
    Click(*form, "CmdPTT");
    CloseByFrame(*form);
    form->close();
    rig.clock.Advance(300);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(unloaded->count(), 0);
    EXPECT_TRUE(rig.sent.empty());
    Tuning()->close();
    LetLeave();
    RemoveClosed();
    EXPECT_TRUE(form->isEnabled());
    rig.TakeSent();
    PressPtt();
    EXPECT_EQ(rig.TakeSent(), Commands{"08 0D"});
    PressPtt();
    rig.TakeSent();
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormTuningTest, GivingUpInTheDialogLeavesTestModeUsable) {
    Open();
    ClickItem(1);
    Click(*form, "CmdTune");
    rig.clock.Advance(300);
    rig.TakeSent();
    rig.replies["08 0D"] = "";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Click(*Tuning(), "CmdPTT");
    rig.clock.Advance(300);
    RemoveClosed();
    EXPECT_EQ(Tuning(), nullptr);
    EXPECT_TRUE(form->isEnabled());
    rig.replies.clear();
    rig.TakeSent();
    PressPtt();
    EXPECT_EQ(rig.sent, Commands{"08 0D"});
    EXPECT_EQ(Lamps(), TransmitLamps);
}

TEST_F(TestFormTuningTest, ARadioThatDoesNotTellItsTuningDataOpensNoDialog) {
    Open();
    rig.replies["05"] = "";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    ClickItem(1);
    Click(*form, "CmdTune");
    rig.clock.Advance(500);
    EXPECT_EQ(Tuning(), nullptr);
    ExpectGone();
}

TEST_F(TestFormTuningTest, AClickWithCtrlDoesNotTakeTheChoiceAway) {
    Open();
    ClickItem(4);
    const QPoint place = Items().visualItemRect(Items().item(3)).center();
    QTest::mouseClick(Items().viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Items().item(3)->isSelected());
    EXPECT_EQ(rig.service.TuneItem, 4);
}

TEST_F(TestFormTuningTest, TheKeyboardIsWhereItWasAfterATuningDialog) {
    Open();
    ClickItem(8);
    In<QPushButton>(*form, "CmdTune").setFocus();
    Click(*form, "CmdTune");
    rig.clock.Advance(300);
    ASSERT_NE(Tuning(), nullptr);
    Click(*Tuning(), "CmdCancel");
    LetLeave();
    RemoveClosed();
    ASSERT_EQ(Tuning(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    EXPECT_TRUE(In<QPushButton>(*form, "CmdTune").hasFocus());
}

} // namespace
} // namespace zelvor
