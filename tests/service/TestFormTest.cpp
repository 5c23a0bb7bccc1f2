#include <QDialog>

#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

TEST_F(TestFormTest, TheWindowHasItsNamesAndTexts) {
    Open();
    EXPECT_EQ(form->objectName(), "TestForm");
    EXPECT_EQ(form->windowTitle(), "Test Mode");
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(TextOf(*form, "frmTestChannel"), "Test Channel");
    EXPECT_EQ(TextOf(*form, "lblChannelNo"), "Channel No.");
    EXPECT_EQ(TextOf(*form, "lblCHRx"), "RX");
    EXPECT_EQ(TextOf(*form, "lblCHTx"), "TX");
    EXPECT_EQ(TextOf(*form, "frmTestSignal"), "Test Signalling");
    EXPECT_EQ(TextOf(*form, "lblSignal"), "Signalling");
    EXPECT_EQ(TextOf(*form, "lblSignalRx"), "RX");
    EXPECT_EQ(TextOf(*form, "lblSignalTx"), "TX");
    EXPECT_EQ(TextOf(*form, "cmdWide"), "&Wide");
    EXPECT_EQ(TextOf(*form, "CmdNarrow"), "&Narrow");
    EXPECT_EQ(TextOf(*form, "CmdPTT"), "PTT");
    EXPECT_EQ(TextOf(*form, "CmdTune"), "&Tuning Mode");
    EXPECT_EQ(TextOf(*form, "CmdPrint"), "&Print");
    EXPECT_EQ(TextOf(*form, "cmdClose"), "&Close");
    ExpectSpokenNames(*form);
}

TEST_F(TestFormTest, TheWindowSpeaksChinese) {
    Open(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "测试模式");
    EXPECT_EQ(TextOf(*form, "frmTestChannel"), "测试信道");
    EXPECT_EQ(TextOf(*form, "lblChannelNo"), "信道编号");
    EXPECT_EQ(TextOf(*form, "lblCHRx"), "接收");
    EXPECT_EQ(TextOf(*form, "lblCHTx"), "发射");
    EXPECT_EQ(TextOf(*form, "frmTestSignal"), "测试信令");
    EXPECT_EQ(TextOf(*form, "lblSignal"), "信令");
    EXPECT_EQ(TextOf(*form, "lblSignalRx"), "接收");
    EXPECT_EQ(TextOf(*form, "lblSignalTx"), "发射");
    EXPECT_EQ(TextOf(*form, "cmdWide"), "宽带(W)");
    EXPECT_EQ(TextOf(*form, "CmdNarrow"), "窄带(N)");
    EXPECT_EQ(TextOf(*form, "CmdPTT"), "PTT");
    EXPECT_EQ(TextOf(*form, "CmdTune"), "调谐模式(T)");
    EXPECT_EQ(TextOf(*form, "CmdPrint"), "打印(P)");
    EXPECT_EQ(TextOf(*form, "cmdClose"), "关闭(&C)");
    ExpectSpokenNames(*form);
}

TEST_F(TestFormTest, TheItemsStandInTheirOrderInBothLanguages) {
    const QStringList english{
        "RF High Power",      "RF Low Power",          "DQT Balance", "Max Deviation",  "QT Fine Deviation",
        "DQT Fine Deviation", "DTMF Fine Deviation",   "Sensitivity", "Squelch(Tight)", "Squelch(Open)",
        "MSK Fine Deviation", "Battery Warning Level", "VOX1",        "VOX10",          "RSSI"};
    const QStringList chinese{"RF高功率",  "RF低功率",     "DQT平衡", "最大偏差", "QT细偏差",
                              "DQT细偏差", "DTMF细偏差",   "灵敏度",  "最紧静噪", "静噪打开",
                              "MSK频偏差", "电池告警电平", "VOX1",    "VOX10",    "RSSI"};
    for (const auto& [language, expected] :
         {std::pair{Language::English, english}, std::pair{Language::Chinese, chinese}}) {
        Open(language);
        QStringList shown;
        for (int row = 0; row < Items().count(); ++row) {
            shown.append(Items().item(row)->text());
        }
        EXPECT_EQ(shown, expected);
        delete form;
    }
}

TEST_F(TestFormTest, EveryItemIsInViewWithoutScrolling) {
    Open();
    EXPECT_TRUE(Items().viewport()->rect().contains(Items().visualItemRect(Items().item(14))));
}

TEST_F(TestFormTest, OnlyChannelsAboveZeroAndBelowSixHundredAreOffered) {
    Offer(3, "600.00000", "145.00000");
    Offer(4, "599.99999", "999.99999");
    Offer(6, "000.00000", "145.00000");
    Offer(7, "000.00001", "0");
    Offer(8, "999.99999", "145.00000");
    Offer(16, "145.00000", "145.00000");
    Open();
    QStringList shown;
    for (int row = 0; row < Channels().count(); ++row) {
        shown.append(Channels().itemText(row));
    }
    EXPECT_EQ(shown, (QStringList{"1", "2", "4", "5", "7", "16"}));
}

TEST_F(TestFormTest, TheFirstOfferedChannelIsChosenAndSentOnLoad) {
    Offer(1, "0", "0");
    Load();
    EXPECT_EQ(Channels().currentText(), "2");
    EXPECT_EQ(rig.service.TestChannelNo, 2);
    EXPECT_EQ(TextOf(*form, "LabRxFreq"), "136.05000MHz");
    EXPECT_EQ(TextOf(*form, "LabTxFreq"), "136.10000MHz");
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent, (Commands{"10 02", "06", "11 01"}));
}

TEST_F(TestFormTest, WithoutAChannelToOfferASingleOneStandsInTheList) {
    for (const int channel : {1, 2, 5}) {
        Offer(channel, "0", "0");
    }
    for (const auto& [language, none] : {std::pair{Language::English, "None"}, std::pair{Language::Chinese, "无"}}) {
        rig.service.TestChannelNo = 9;
        Load(language);
        EXPECT_EQ(Channels().count(), 1);
        EXPECT_EQ(Channels().currentText(), "1");
        EXPECT_EQ(rig.service.TestChannelNo, 1);
        EXPECT_EQ(TextOf(*form, "LabRxFreq"), "FFF.FFFFFMHz");
        EXPECT_EQ(TextOf(*form, "LabTxFreq"), none);
        delete form;
    }
}

TEST_F(TestFormTest, AChosenChannelIsShownAndSentAlone) {
    Open();
    EXPECT_EQ(TextOf(*form, "LabRxFreq"), "145.12500MHz");
    EXPECT_EQ(TextOf(*form, "LabTxFreq"), "155.00000MHz");
    Press(Channels(), Qt::Key_Down, 2);
    EXPECT_EQ(Channels().currentText(), "5");
    EXPECT_EQ(rig.service.TestChannelNo, 5);
    EXPECT_EQ(TextOf(*form, "LabRxFreq"), "173.95000MHz");
    EXPECT_EQ(TextOf(*form, "LabTxFreq"), "173.90000MHz");
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent, (Commands{"10 05", "06"}));
}

struct SignallingRow {
    const char* item;
    const char* receive;
    const char* transmit;
    const char* command;
};

TEST_F(TestFormTest, EverySignallingIsShownAndSent) {
    const std::vector<SignallingRow> rows{
        {"1", "None", "None", "11 01"},
        {"2", "None", "100Hz SW", "11 02"},
        {"3", "QT 67.0Hz", "QT 67.0Hz", "11 03"},
        {"4", "QT 151.4Hz", "QT 151.4Hz", "11 04"},
        {"5", "QT 250.3Hz", "QT 250.3Hz", "11 05"},
        {"6", "DQT D023N", "DQT D023N", "11 06"},
        {"7", "DQT D754I", "DQT D754I", "11 07"},
        {"8", "DTMF DEC(159D)", "DTMF ENC(159D)", "11 08"},
        {"9", "None", "DTMF Tone 9", "11 09"},
    };
    Open();
    ASSERT_EQ(Signallings().count(), 9);
    EXPECT_EQ(Signallings().currentIndex(), 0);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (row != 0) {
            Press(Signallings(), Qt::Key_Down);
            rig.clock.Advance(50);
            EXPECT_EQ(rig.TakeSent(), Commands{rows[row].command});
        }
        EXPECT_EQ(FromQString(Signallings().currentText()), rows[row].item);
        EXPECT_EQ(TextOf(*form, "LabRxSignal"), rows[row].receive);
        EXPECT_EQ(TextOf(*form, "LabTxSignal"), rows[row].transmit);
    }
    Press(Signallings(), Qt::Key_Home);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.TakeSent(), Commands{"11 01"});
    EXPECT_EQ(TextOf(*form, "LabTxSignal"), "None");
}

TEST_F(TestFormTest, SignallingsWithAChineseNameShowIt) {
    const std::vector<SignallingRow> rows{{"1", "无", "无", ""},
                                          {"2", "无", "100Hz SW", ""},
                                          {"3", "QT 67.0Hz", "QT 67.0Hz", ""},
                                          {"4", "QT 151.4Hz", "QT 151.4Hz", ""},
                                          {"5", "QT 250.3Hz", "QT 250.3Hz", ""},
                                          {"6", "DQT D023N", "DQT D023N", ""},
                                          {"7", "DQT D754I", "DQT D754I", ""},
                                          {"8", "DTMF DEC(159D)", "DTMF ENC(159D)", ""},
                                          {"9", "无", "DTMF 音调 9", ""}};
    Open(Language::Chinese);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (row != 0) {
            Press(Signallings(), Qt::Key_Down);
        }
        EXPECT_EQ(TextOf(*form, "LabRxSignal"), rows[row].receive);
        EXPECT_EQ(TextOf(*form, "LabTxSignal"), rows[row].transmit);
    }
}

TEST_F(TestFormTest, TheWindowKeepsItsSizeWhateverItShows) {
    for (const Language language : {Language::English, Language::Chinese}) {
        Open(language);
        const QSize size = form->size();
        for (int signalling = 2; signalling <= 9; ++signalling) {
            Press(Signallings(), Qt::Key_Down);
            QCoreApplication::processEvents();
            EXPECT_EQ(form->size(), size) << signalling;
        }
        delete form;
    }
}

TEST_F(TestFormTest, AllButtonsHaveOneHeight) {
    Open(Language::Chinese);
    const QSize size = In<QPushButton>(*form, "cmdClose").size();
    for (const char* name : {"cmdWide", "CmdNarrow", "CmdPTT", "CmdTune", "CmdPrint"}) {
        EXPECT_EQ(In<QPushButton>(*form, name).height(), size.height()) << name;
    }
}

TEST_F(TestFormTest, GettingActiveIsTold) {
    Load();
    QSignalSpy activated(form, &TestForm::Activated);
    QWidget other;
    ShowActive(other);
    EXPECT_EQ(activated.count(), 0);
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    EXPECT_EQ(activated.count(), 1);
}

TEST_F(TestFormTest, PrintAsksAndPrintsOnePage) {
    Open();
    rig.messages.Expect({"Confirmation", "All tuning data print out.", MessageIcon::Question, MessageButtons::OkCancel,
                         MessageAnswer::Cancel},
                        MessageAnswer::Ok);
    Click(*form, "CmdPrint");
    EXPECT_EQ(rig.pages.Documents().size(), 1U);
    EXPECT_EQ(rig.pages.Pages().size(), 1U);
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(TestFormTest, ASecondClickOnPrintDuringTheFirstAsksNothingMore) {
    Open();
    rig.messages.Expect({"Confirmation", "All tuning data print out.", MessageIcon::Question, MessageButtons::OkCancel,
                         MessageAnswer::Cancel},
                        MessageAnswer::Cancel);
    rig.clock.At(100, [this] { Click(*form, "CmdPrint"); });
    Click(*form, "CmdPrint");
    EXPECT_EQ(rig.messages.Shown().size(), 1U);
}

TEST_F(TestFormTest, PrintAsksNothingMoreWhileThePrintingSystemIsAsked) {
    Open();
    const Message question{"Confirmation", "All tuning data print out.", MessageIcon::Question,
                           MessageButtons::OkCancel, MessageAnswer::Cancel};
    rig.pages.HoldAnswers();
    rig.messages.Expect(question, MessageAnswer::Ok);
    Click(*form, "CmdPrint");
    Click(*form, "CmdPrint");
    EXPECT_TRUE(rig.pages.Documents().empty());
    rig.pages.Answer();
    EXPECT_EQ(rig.pages.Documents().size(), 1U);
    rig.messages.Expect(question, MessageAnswer::Ok);
    Click(*form, "CmdPrint");
    EXPECT_EQ(rig.pages.Documents().size(), 2U);
}

TEST_F(TestFormTest, ClosedWhileThePrintingSystemIsAskedItPrintsNothing) {
    Open();
    rig.pages.HoldAnswers();
    rig.messages.Expect({"Confirmation", "All tuning data print out.", MessageIcon::Question, MessageButtons::OkCancel,
                         MessageAnswer::Cancel},
                        MessageAnswer::Ok);
    Click(*form, "CmdPrint");
    form->close();
    LetLeave();
    rig.pages.Answer();
    EXPECT_TRUE(rig.pages.Documents().empty());
}

TEST_F(TestFormTest, ClosedBeforeTheQuestionItPrintsNothing) {
    Open();
    rig.clock.At(100, [this] { form->close(); });
    Click(*form, "CmdPrint");
    EXPECT_TRUE(rig.messages.Shown().empty());
    EXPECT_TRUE(rig.pages.Documents().empty());
}

TEST_F(TestFormTest, AQuestionThatIsUpKeepsTheWindowEnabledUntilItIsAnswered) {
    Open();
    rig.service.TuneItem = 8;
    Items().setCurrentRow(7);
    Click(*form, "CmdTune");
    rig.messages.Expect({"Confirmation", "All tuning data print out.", MessageIcon::Question, MessageButtons::OkCancel,
                         MessageAnswer::Cancel},
                        [this] {
                            QDialog box(form);
                            box.setModal(true);
                            box.show();
                            rig.clock.Advance(500);
                            EXPECT_TRUE(form->isEnabled());
                            EXPECT_EQ(form->findChild<TuningForm*>(), nullptr);
                            return MessageAnswer::Cancel;
                        });
    Click(*form, "CmdPrint");
    ASSERT_TRUE(QTest::qWaitFor([this] { return form->findChild<TuningForm*>() != nullptr; }));
    EXPECT_FALSE(form->isEnabled());
    EXPECT_TRUE(form->findChild<TuningForm*>()->isEnabled());
}

TEST_F(TestFormTest, EnterPressesTheButtonThatHasTheKeyboard) {
    Open();
    Press(In<QPushButton>(*form, "cmdWide"), Qt::Key_Return);
    rig.clock.Advance(50);
    Press(In<QPushButton>(*form, "CmdNarrow"), Qt::Key_Enter);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"46", "47"}));
    Press(Items(), Qt::Key_Return); // there is no default button
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"46", "47"}));
}

} // namespace
} // namespace zelvor
