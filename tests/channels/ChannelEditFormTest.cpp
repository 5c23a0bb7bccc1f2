#include "ChannelEditFixture.h"

namespace zelvor {
namespace {

using Texts = std::vector<std::string>;

struct Caption {
    const char* name;
    const char* english;
    const char* chinese;
};
constexpr Caption Labels[] = {
    {"LabChannel", "Channel", "信道"},
    {"LabRxFreq", "Receive Frequency", "接收频率"},
    {"LabTxFreq", "Transmit Frequency", "发射频率"},
    {"LabQTdec", "QT/DQT Decode", "QT/DQT解码"},
    {"LabQTenc", "QT/DQT Encode", "QT/DQT编码"},
    {"LabOptional", "Option Signalling", "可选信令"},
    {"LabSPmute", "SP Unmute", "SP不发音"},
    {"LabTxPower", "TX Power", "发射功率"},
    {"LabWN", "Wide/Narrow", "宽带/窄带"},
    {"LabBusyLock", "Busy Channel Lockout", "繁忙信道锁定"},
    {"LabPTTID", "PTT ID", "PTT ID"},
    {"LabAutoDial", "Autodial Memory", "自动拨号存储器"},
};
constexpr Caption Buttons[] = {
    {"ChkShift", "Beat Shift", "拍频偏移"},
    {"ChkScanAdd", "Scan Add", "扫描添加"},
    {"ChkPriorityChannel", "Priority Channel", "优先信道"},
    {"ChkYaKuo", "Compander", "压扩器"},
    {"cmdOK", "&Close", "关闭(&C)"},
    {"cmdHelp", "&Help", "帮助(&H)"},
};

TEST_F(ChannelEditTest, TheDialogHasItsSizeTitleAndCaptionsInBothLanguages) {
    for (const Language language : {Language::English, Language::Chinese}) {
        const bool english = language == Language::English;
        ShowBoth(1, language);
        EXPECT_EQ(dialog->objectName(), "ChannelEditForm");
        EXPECT_EQ(dialog->size(), QSize(376, 438));
        EXPECT_EQ(dialog->windowTitle(), english ? " Channel Edit" : " 信道编辑");
        for (const Caption& label : Labels) {
            EXPECT_EQ(In<QLabel>(label.name).text(), english ? label.english : label.chinese);
        }
        for (const Caption& button : Buttons) {
            EXPECT_EQ(In<QAbstractButton>(button.name).text(), english ? button.english : button.chinese);
        }
        EXPECT_NE(dialog->findChild<QWidget*>("Frame1"), nullptr);
        EXPECT_TRUE(windows.IsOpen(ChildWindow::ChannelEdit));
        Restart();
    }
}

TEST_F(ChannelEditTest, NoTextIsWiderThanItsPlace) {
    for (const Language language : {Language::English, Language::Chinese}) {
        PutAll(OtherRecord);
        ShowBoth(1, language);
        for (QLabel* label : dialog->findChildren<QLabel*>()) {
            EXPECT_LE(label->sizeHint().width(), label->width()) << label->objectName().toStdString();
        }
        for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) {
            EXPECT_LE(button->minimumSizeHint().width(), button->width()) << button->objectName().toStdString();
        }
        for (QComboBox* list : dialog->findChildren<QComboBox*>()) {
            EXPECT_LE(list->sizeHint().width(), list->width()) << list->objectName().toStdString();
            EXPECT_FALSE(list->accessibleName().isEmpty());
        }
        EXPECT_LE(In<QWidget>("Frame1").sizeHint().height(), In<QWidget>("Frame1").height());
        Restart();
    }
}

TEST_F(ChannelEditTest, TheFixedListsHaveTheirEntriesInEnglish) {
    ShowBoth();
    for (const char* name : {"ComDecode", "ComEncode"}) {
        const Texts tones = Entries(name);
        ASSERT_EQ(tones.size(), 205U);
        EXPECT_EQ(tones[0], "None");
        EXPECT_EQ(tones[1], "67.0");
        EXPECT_EQ(tones[38], "250.3");
        EXPECT_EQ(tones[39], "D023N");
        EXPECT_EQ(tones[121], "D754N");
        EXPECT_EQ(tones[122], "D023I");
        EXPECT_EQ(tones[204], "D754I");
        EXPECT_TRUE(Combo(name).isEditable());
    }
    EXPECT_EQ(Entries("ComSelSignal"), (Texts{"None", "DTMF", "Corvane"}));
    EXPECT_EQ(Entries("ComSPMute"), (Texts{"Carrier"}));
    EXPECT_EQ(Entries("ComTxPower"), (Texts{"High", "Low"}));
    EXPECT_EQ(Entries("ComWideNarrow"), (Texts{"Narrow", "Wide"}));
    EXPECT_EQ(Entries("ComBusyLock"), (Texts{"Off", "Carrier"}));
    EXPECT_EQ(Entries("ComAutoDial"), (Texts{"1", "2", "3", "4", "5", "6", "7", "8"}));
}

TEST_F(ChannelEditTest, TheFixedListsHaveTheirEntriesInChinese) {
    ShowBoth(1, Language::Chinese);
    EXPECT_EQ(Entries("ComDecode")[0], "无");
    EXPECT_EQ(Entries("ComSelSignal"), (Texts{"无", "DTMF", "Corvane"}));
    EXPECT_EQ(Entries("ComSPMute"), (Texts{"载波"}));
    EXPECT_EQ(Entries("ComTxPower"), (Texts{"高", "低"}));
    EXPECT_EQ(Entries("ComWideNarrow"), (Texts{"窄带", "宽带"}));
    EXPECT_EQ(Entries("ComBusyLock"), (Texts{"关", "载波"}));
}

TEST_F(ChannelEditTest, ThePttIdListFollowsThePttIdType) {
    struct Row {
        int type;
        Language language;
        Texts entries;
    };
    const Row rows[] = {
        {0, Language::English, {"Off", "On"}},
        {0, Language::Chinese, {"关", "开"}},
        {1,
         Language::English,
         {"Off", "Own", "Fleet List 1", "Fleet List 2", "Fleet List 3", "Fleet List 4", "Fleet List 5", "Fleet List 6",
          "Fleet List 7", "Fleet List 8"}},
        {1,
         Language::Chinese,
         {"关", "自身", "队列表 1", "队列表 2", "队列表 3", "队列表 4", "队列表 5", "队列表 6", "队列表 7",
          "队列表 8"}},
        {2, Language::English, {}},
        {255, Language::English, {}},
    };
    for (const Row& row : rows) {
        document.Image.Set(0x133, static_cast<std::uint8_t>(row.type));
        ShowBoth(1, row.language);
        EXPECT_EQ(Entries("ComPTTID"), row.entries) << row.type;
        Restart();
    }
}

TEST_F(ChannelEditTest, AProgrammedChannelShowsEveryFieldOfItsRecord) {
    PutRecord(3, OtherRecord);
    document.Image.Set(0x17E, 0x04);
    ShowBoth(3);
    EXPECT_EQ(Text("txtChannel").text(), "3");
    EXPECT_EQ(Text("txtChannel").selectedText(), "3");
    EXPECT_EQ(Rx().text(), "145.62500");
    EXPECT_EQ(Tx().text(), "150.10000");
    EXPECT_EQ(Shown("ComDecode"), "100.0");
    EXPECT_EQ(Shown("ComEncode"), "D023I");
    EXPECT_EQ(Shown("ComSelSignal"), "DTMF");
    EXPECT_EQ(Shown("ComSPMute"), "QT/DQT + Opt.Sig.");
    EXPECT_EQ(Shown("ComTxPower"), "Low");
    EXPECT_EQ(Shown("ComWideNarrow"), "Narrow");
    EXPECT_EQ(Shown("ComBusyLock"), "Option Signalling");
    EXPECT_EQ(Shown("ComPTTID"), "On");
    EXPECT_EQ(Shown("ComAutoDial"), "4");
    EXPECT_TRUE(Check("ChkShift").isChecked());
    EXPECT_TRUE(Check("ChkScanAdd").isChecked());
    EXPECT_TRUE(Check("ChkYaKuo").isChecked());
    EXPECT_TRUE(Combo("ComEncode").isEnabled());
    EXPECT_FALSE(Check("ChkPriorityChannel").isEnabled());
}

TEST_F(ChannelEditTest, ABlankChannelGreysAllButItsReceiveFrequencyAndTheChannelNumber) {
    PutRecord(3, OtherRecord);
    ShowBoth(3);
    GoToChannel(4);
    for (const char* name :
         {"txtTxFreq", "ComDecode", "ComEncode", "ComSelSignal", "ComSPMute", "ComTxPower", "ComWideNarrow",
          "ComBusyLock", "ComPTTID", "ComAutoDial", "ChkShift", "ChkScanAdd", "ChkPriorityChannel", "ChkYaKuo"}) {
        EXPECT_FALSE(In<QWidget>(name).isEnabled()) << name;
    }
    for (const char* name : {"txtRxFreq", "txtChannel", "UpDown1", "cmdOK", "cmdHelp"}) {
        EXPECT_TRUE(In<QWidget>(name).isEnabled()) << name;
    }
    EXPECT_EQ(Rx().text(), "");
    EXPECT_EQ(Tx().text(), "");
    for (const char* name : {"ComDecode", "ComEncode", "ComSelSignal", "ComSPMute", "ComTxPower", "ComWideNarrow",
                             "ComBusyLock", "ComPTTID", "ComAutoDial"}) {
        EXPECT_EQ(Shown(name), "") << name;
        EXPECT_EQ(Combo(name).currentIndex(), -1) << name;
    }
    for (const char* name : {"ChkShift", "ChkScanAdd", "ChkPriorityChannel", "ChkYaKuo"}) {
        EXPECT_FALSE(Check(name).isChecked()) << name;
    }
}

TEST_F(ChannelEditTest, GoingBackToAProgrammedChannelEnablesItsControls) {
    PutRecord(3, OtherRecord);
    ShowBoth(4);
    GoToChannel(3);
    for (const char* name :
         {"txtTxFreq", "ComDecode", "ComEncode", "ComSelSignal", "ComSPMute", "ComTxPower", "ComWideNarrow",
          "ComBusyLock", "ComPTTID", "ComAutoDial", "ChkShift", "ChkScanAdd", "ChkYaKuo"}) {
        EXPECT_TRUE(In<QWidget>(name).isEnabled()) << name;
    }
}

TEST_F(ChannelEditTest, AReceiveOnlyChannelHasNoEncodeTone) {
    PutRecord(2, SimplexWith(7, 0xFF));
    ShowBoth(2);
    EXPECT_EQ(Tx().text(), "");
    EXPECT_TRUE(Tx().isEnabled());
    EXPECT_FALSE(Combo("ComEncode").isEnabled());
    EXPECT_EQ(Shown("ComEncode"), "None");
}

TEST_F(ChannelEditTest, EveryStoredValueOfTheListsIsShown) {
    struct Row {
        int j;
        int value;
        const char* list;
        std::string shown;
    };
    const Row rows[] = {
        {12, 0x00, "ComSelSignal", "None"},
        {12, 0x02, "ComSelSignal", "DTMF"},
        {12, 0x04, "ComSelSignal", "Corvane"},
        {12, 0x06, "ComSelSignal", ""},
        {12, 0x02, "ComSPMute", "Carrier"},
        {12, 0x22, "ComSPMute", "Carrier + Opt.Sig."},
        {12, 0x42, "ComSPMute", "Carrier or Opt.Sig."},
        {12, 0x62, "ComSPMute", ""},
        {12, 0x02, "ComBusyLock", "Off"},
        {12, 0x0A, "ComBusyLock", "Carrier"},
        {12, 0x12, "ComBusyLock", "Option Signalling"},
        {12, 0x1A, "ComBusyLock", "Off"},
        {13, 0x9F, "ComTxPower", "Low"},
        {13, 0xBF, "ComTxPower", "High"},
        {13, 0xAF, "ComWideNarrow", "Narrow"},
        {13, 0xBF, "ComWideNarrow", "Wide"},
        {14, 0xB0, "ComPTTID", "Off"},
        {14, 0xB1, "ComPTTID", "On"},
        {14, 0x31, "ComPTTID", "Off"},
        {15, 0xF8, "ComAutoDial", "1"},
        {15, 0xFF, "ComAutoDial", "8"},
        {15, 0x05, "ComAutoDial", "6"},
    };
    ShowBoth();
    for (const Row& row : rows) {
        PutRecord(1, SimplexWith(row.j, row.value));
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        EXPECT_EQ(Shown(row.list), row.shown) << row.list << " " << row.value;
    }
}

TEST_F(ChannelEditTest, CorvanePttIdsAreShownByTheirLowNibble) {
    document.Image.Set(0x133, 1);
    ShowBoth();
    for (int nibble = 0; nibble < 16; ++nibble) {
        PutRecord(1, SimplexWith(14, 0xB0 + nibble));
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        EXPECT_EQ(Shown("ComPTTID"), CorvanePttIds[nibble]);
    }
}

TEST_F(ChannelEditTest, TheGridsButtonOpensTheDialogOnTheGridsChannelAgain) {
    PutAll(SimplexRecord);
    ShowBoth(2);
    Key(Qt::Key_Up); // in the dialog
    EXPECT_EQ(Text("txtChannel").text(), "3");
    EnterGrid();
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    ClickChannelEdit();
    EXPECT_EQ(Text("txtChannel").text(), "5");
    EXPECT_TRUE(In<QWidget>("txtChannel").hasFocus());
    EXPECT_EQ(Text("txtChannel").selectedText(), "5");
}

TEST_F(ChannelEditTest, TheHelpButtonOpensTheDialogsPage) {
    ShowBoth();
    QTest::mouseClick(&In<QPushButton>("cmdHelp"), Qt::LeftButton);
    ASSERT_EQ(services.help.Topics().size(), 1U);
    EXPECT_TRUE(services.help.Topics().front().ends_with("\\Zelvor_e.chm::/html/chedit.htm"));
    Restart();
    ShowBoth(1, Language::Chinese);
    QTest::mouseClick(&In<QPushButton>("cmdHelp"), Qt::LeftButton);
    EXPECT_TRUE(services.help.Topics().back().ends_with("\\Zelvor_c.chm::/html/chedit.htm"));
}

TEST_F(ChannelEditTest, ASmallDialogScrollsItsContent) {
    ShowBoth();
    EXPECT_FALSE(In<QWidget>("VScroll1").isVisible());
    dialog->resize(300, 200);
    EXPECT_TRUE(In<QWidget>("VScroll1").isVisible());
    EXPECT_TRUE(In<QWidget>("HScroll1").isVisible());
    EXPECT_EQ(In<QWidget>("VScroll1").width(), 16);
}

} // namespace
} // namespace zelvor
