#include <QLayout>
#include <random>

#include "OptionalFormFixture.h"

namespace zelvor {
namespace {

using Addresses = std::vector<int>;

constexpr const char* AllLists[] = {"cboMICSens", "cboVoiceAnnu", "cboPTTIDType", "cboPTTID", "cboVOXDelayTime"};
constexpr const char* AllChecks[] = {"chkBattSave",        "chkBeep",       "chkScramblerAct",
                                     "chkScramblerBackup", "chkVOXFunc",    "chkCancel",
                                     "chkVOXProceedTone",  "chkVOXInhibit", "chkCloneMode"};

TEST_F(OptionalFormTest, ShowsTheValuesOfANewDocument) {
    Show();
    EXPECT_EQ(Text("txtTOT"), "60");
    EXPECT_EQ(Spin("updTOT"), 4);
    EXPECT_EQ(Text("txtTOTPreAlert"), "Off");
    EXPECT_EQ(Spin("updTOTPreAlert"), 0);
    EXPECT_EQ(Text("txtSQLevel"), "5");
    EXPECT_EQ(Spin("updSQLevel"), 5);
    EXPECT_EQ(Text("txtVOXGainLevel"), "5");
    EXPECT_EQ(Spin("updVOXGainLevel"), 5);
    EXPECT_EQ(List("cboMICSens").currentText(), "Normal");
    EXPECT_EQ(List("cboVoiceAnnu").currentText(), "Off");
    EXPECT_EQ(List("cboPTTIDType").currentText(), "DTMF");
    EXPECT_EQ(List("cboPTTID").currentText(), "BOT");
    EXPECT_EQ(List("cboVOXDelayTime").currentText(), "0.5");
    for (const char* name : AllChecks) {
        EXPECT_EQ(Check(name).isChecked(), std::string(name) == "chkBeep") << name;
    }
    EXPECT_EQ(Text("txtPTTCode(0)"), "12345");
    EXPECT_EQ(Text("txtPTTCode(1)"), "");
}

TEST_F(OptionalFormTest, AnErasedImageShowsTicksEmptyBoxesAndNoEntries) {
    document.Image.Fill(0xFF);
    Show();
    EXPECT_EQ(Text("txtTOT"), "3825");
    EXPECT_EQ(Spin("updTOT"), 0);
    EXPECT_EQ(Text("txtTOTPreAlert"), "");
    EXPECT_EQ(Spin("updTOTPreAlert"), 0);
    EXPECT_EQ(Text("txtSQLevel"), "0");
    EXPECT_EQ(Spin("updSQLevel"), 0);
    EXPECT_EQ(Text("txtVOXGainLevel"), "");
    EXPECT_EQ(Spin("updVOXGainLevel"), 0);
    for (const char* name : AllLists) {
        EXPECT_EQ(Chosen(name), -1) << name;
    }
    for (const char* name : AllChecks) {
        EXPECT_TRUE(Check(name).isChecked()) << name;
    }
    EXPECT_EQ(Text("txtPTTCode(0)"), "");
    EXPECT_EQ(Text("txtPTTCode(1)"), "");
    EXPECT_EQ(document.Image, DataImage());
}

struct Caption {
    const char* name;
    const char* text;
};

TEST_F(OptionalFormTest, TextsAreEnglishInEnglish) {
    Show();
    EXPECT_EQ(form->windowTitle(), "Optional Features");
    const Caption labels[] = {{"lblTOT", "Time Out Timer(TOT)[s]"},
                              {"lblTOTPreAlert", "TOT Pre-Alert[s]"},
                              {"lblSQLevel", "Squelch Level"},
                              {"lblMicSens", "Mic Sensitivity"},
                              {"lblVoiceAnnu", "Voice Annunciation"},
                              {"lblPTTIDType", "PTT ID Type"},
                              {"lblPTTID", "PTT ID"},
                              {"lblPTTCode(0)", "Begin of TX"},
                              {"lblPTTCode(1)", "End of TX"},
                              {"lblVOXGainLevel", "VOX Gain Level"},
                              {"lblVOXDelayTime", "VOX Delay Time[s]"}};
    for (const Caption& label : labels) {
        EXPECT_EQ(Find<QLabel>(label.name).text(), label.text);
    }
    const Caption checks[] = {{"chkBattSave", "Battery Save"},
                              {"chkBeep", "Beep"},
                              {"chkScramblerAct", "Scrambler Activation"},
                              {"chkScramblerBackup", "Scrambler Backup"},
                              {"chkVOXFunc", "VOX Function"},
                              {"chkCancel", "Cancel Operation"},
                              {"chkVOXProceedTone", "VOX Proceed Tone"},
                              {"chkVOXInhibit", "VOX inhibit on Receive"},
                              {"chkCloneMode", "Clone Mode"}};
    for (const Caption& check : checks) {
        EXPECT_EQ(Check(check.name).text(), check.text);
    }
    EXPECT_EQ(Find<QGroupBox>("fraPTTID").title(), "PTT ID");
    EXPECT_EQ(Find<QGroupBox>("fraVOX").title(), "VOX");
    EXPECT_EQ(Find<QGroupBox>("fraMode").title(), "Mode");
    EXPECT_EQ(Entries("cboMICSens"), (QStringList{"Normal", "High"}));
    EXPECT_EQ(Entries("cboVoiceAnnu"), (QStringList{"Off", "English", "Chinese"}));
    EXPECT_EQ(Entries("cboPTTIDType"), (QStringList{"DTMF", "Corvane"}));
    EXPECT_EQ(Entries("cboPTTID"), (QStringList{"BOT", "EOT", "Both"}));
    EXPECT_EQ(Entries("cboVOXDelayTime"), (QStringList{"0.3", "0.5", "1", "1.5", "2", "3"}));
}

TEST_F(OptionalFormTest, TextsAreChineseInChinese) {
    Put(0x13A, {0});
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "可选功能");
    const Caption labels[] = {{"lblTOT", "超时定时器(TOT)[秒]"},
                              {"lblTOTPreAlert", "超时定时器预警[秒]"},
                              {"lblSQLevel", "静噪电平"},
                              {"lblMicSens", "麦克风灵敏度"},
                              {"lblVoiceAnnu", "语音通知"},
                              {"lblPTTIDType", "PTT ID类型"},
                              {"lblPTTID", "PTT ID"},
                              {"lblPTTCode(0)", "发射开始"},
                              {"lblPTTCode(1)", "发射结束"},
                              {"lblVOXGainLevel", "VOX增益电平"},
                              {"lblVOXDelayTime", "VOX延迟时间[秒]"}};
    for (const Caption& label : labels) {
        EXPECT_EQ(Find<QLabel>(label.name).text(), label.text);
    }
    const Caption checks[] = {{"chkBattSave", "电池省电"},
                              {"chkBeep", "哔音"},
                              {"chkScramblerAct", "扰频器激活"},
                              {"chkScramblerBackup", "扰频器备份"},
                              {"chkVOXFunc", "VOX功能"},
                              {"chkCancel", "取消操作"},
                              {"chkVOXProceedTone", "VOX可进行音调"},
                              {"chkVOXInhibit", "接收时禁止VOX"},
                              {"chkCloneMode", "复制模式"}};
    for (const Caption& check : checks) {
        EXPECT_EQ(Check(check.name).text(), check.text);
    }
    EXPECT_EQ(Find<QGroupBox>("fraPTTID").title(), "PTT ID");
    EXPECT_EQ(Find<QGroupBox>("fraVOX").title(), "VOX(声控发射)");
    EXPECT_EQ(Find<QGroupBox>("fraMode").title(), "模式");
    EXPECT_EQ(Entries("cboMICSens"), (QStringList{"常规", "高"}));
    EXPECT_EQ(Entries("cboVoiceAnnu"), (QStringList{"关", "英文", "中文"}));
    EXPECT_EQ(Entries("cboPTTIDType"), (QStringList{"DTMF(双音多频)", "Corvane(科瓦讯)"}));
    EXPECT_EQ(Entries("cboPTTID"), (QStringList{"发射开始", "发射结束", "两者"}));
    EXPECT_EQ(Entries("cboVOXDelayTime"), (QStringList{"0.3", "0.5", "1", "1.5", "2", "3"}));
    EXPECT_EQ(Text("txtTOTPreAlert"), "关");
    EXPECT_EQ(Text("txtVOXGainLevel"), "关");
}

TEST_F(OptionalFormTest, NoTextIsCutOffAndEveryFieldHasItsPlace) {
    for (const Language language : {Language::English, Language::Chinese}) {
        Show(language);
        ExpectNoTextCutOff();
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            EXPECT_LE(label->sizeHint().width(), label->width()) << label->objectName().toStdString();
        }
        for (const QCheckBox* check : form->findChildren<QCheckBox*>()) {
            EXPECT_LE(check->sizeHint().width(), check->width()) << check->objectName().toStdString();
        }
        auto& panel = Find<QWidget>("picOpt");
        EXPECT_LE(panel.layout()->minimumSize().height(), panel.height());
        EXPECT_LE(panel.layout()->minimumSize().width(), panel.width());
        EXPECT_LT(panel.height(), Find<QPushButton>("cmdClose").y());
    }
}

TEST_F(OptionalFormTest, EveryControlHasAnAccessibleName) {
    Load();
    const Caption names[] = {{"txtTOT", "Time Out Timer(TOT)[s]"},   {"updTOT", "Time Out Timer(TOT)[s]"},
                             {"txtTOTPreAlert", "TOT Pre-Alert[s]"}, {"txtSQLevel", "Squelch Level"},
                             {"cboMICSens", "Mic Sensitivity"},      {"cboVoiceAnnu", "Voice Annunciation"},
                             {"cboPTTIDType", "PTT ID Type"},        {"cboPTTID", "PTT ID"},
                             {"txtPTTCode(0)", "Begin of TX"},       {"txtPTTCode(1)", "End of TX"},
                             {"txtVOXGainLevel", "VOX Gain Level"},  {"cboVOXDelayTime", "VOX Delay Time[s]"}};
    for (const Caption& name : names) {
        EXPECT_EQ(Find<QWidget>(name.name).accessibleName(), name.text);
    }
}

TEST_F(OptionalFormTest, IsFourHundredTenBySixHundredPixels) {
    Load();
    EXPECT_EQ(form->size(), QSize(410, 600)); // 6150 by 9000 twips
    EXPECT_EQ(form->Window(), ChildWindow::OptionalFeatures);
    EXPECT_EQ(form->objectName(), "OptionalForm");
    const Caption frames[] = {
        {"fraPTTID", "txtPTTCode(1)"}, {"fraVOX", "chkVOXProceedTone"}, {"fraMode", "chkCloneMode"}};
    for (const Caption& frame : frames) {
        EXPECT_TRUE(Find<QWidget>("picOpt").isAncestorOf(&Find<QWidget>(frame.name)));
        EXPECT_TRUE(Find<QWidget>(frame.name).isAncestorOf(&Find<QWidget>(frame.text)));
    }
}

TEST_F(OptionalFormTest, EnterAndTabMoveThroughAllFieldsInOrder) {
    Put(0x132, {2}); // both codes
    Put(0x139, {1}); // VOX
    PutCode(0x150, "9");
    const char* order[] = {
        "txtTOT",          "txtTOTPreAlert",  "txtSQLevel",      "cboMICSens",         "cboVoiceAnnu",
        "chkBattSave",     "chkBeep",         "chkScramblerAct", "chkScramblerBackup", "cboPTTIDType",
        "cboPTTID",        "txtPTTCode(0)",   "txtPTTCode(1)",   "chkVOXFunc",         "chkVOXInhibit",
        "txtVOXGainLevel", "cboVOXDelayTime", "chkCancel",       "chkVOXProceedTone",  "chkCloneMode",
        "cmdClose",        "cmdHelp",         "txtTOT"};
    const DataImage before = document.Image;
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
        Show();
        for (const char* name : order) {
            EXPECT_TRUE(Find<QWidget>(name).hasFocus())
                << name << ' ' << QApplication::focusWidget()->objectName().toStdString();
            const bool isButton = std::string(name).starts_with("cmd");
            if (std::string(name).starts_with("txt")) {
                EXPECT_EQ(Box(name).selectedText(), Box(name).text()) << name;
            }
            Key(isButton ? Qt::Key_Tab : key);
        }
        EXPECT_EQ(Differences(document.Image, before), Addresses{});
    }
}

TEST_F(OptionalFormTest, HelpOpensThePageInTheLanguage) {
    Show();
    EXPECT_EQ(form->HelpPage(), "optfeatures.htm");
    Click("cmdHelp");
    Show(Language::Chinese);
    Click("cmdHelp");
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_NE(services.help.Topics()[0].find("\\Zelvor_e.chm::/html/optfeatures.htm"), std::string::npos);
    EXPECT_NE(services.help.Topics()[1].find("\\Zelvor_c.chm::/html/optfeatures.htm"), std::string::npos);
}

TEST_F(OptionalFormTest, BothWaysToCloseCommitWhatIsBeingEditedAndAskToBeUnloaded) {
    Show();
    const QSignalSpy unload(form.get(), &ChildForm::UnloadRequested);
    Box("txtTOT").setFocus();
    Type("30");
    Click("cmdClose");
    EXPECT_EQ(unload.count(), 1);
    EXPECT_EQ(At(0x130), 2);
    Box("txtSQLevel").setFocus();
    Type("8");
    form->CloseFromFrame();
    EXPECT_EQ(unload.count(), 2);
    EXPECT_EQ(At(0x134), 8);
}

TEST_F(OptionalFormTest, AWindowThatIsDestroyedDropsWhatIsBeingEdited) {
    Show();
    Box("txtTOT").setFocus();
    Type("30");
    form.reset();
    EXPECT_EQ(At(0x130), 4);
    Show();
    Take("cboMICSens", 1);
    form.reset();
    EXPECT_EQ(At(0x13D), 0);
}

/// What opening stores: a code with gaps is closed up to its start, what lies behind stays.
void CloseUp(DataImage& image, int address) {
    int end = address;
    for (int i = address; i < address + 16; ++i) {
        if (image.At(i) != 0xFF) {
            image.Set(end++, image.At(i));
        }
    }
}

TEST_F(OptionalFormTest, OpensOnAnyImageAndStoresNothingButCodesWithoutTheirGaps) {
    const unsigned seed = 5101;
    std::mt19937 random(seed);
    std::vector<DataImage> images(2, DataImage());
    images[0].Fill(0x00);
    for (int i = 0; i < 2000; ++i) {
        images.push_back(RandomImage(random));
        images.back().Set(0x133, static_cast<std::uint8_t>(i % 4));
        images.back().Set(0x132, static_cast<std::uint8_t>(i / 4 % 4));
        for (int gaps = i % 7; gaps > 0; --gaps) {
            images.back().Set(0x140 + static_cast<int>(random() % 32), 0xFF);
        }
    }
    for (std::size_t i = 0; i < images.size(); ++i) {
        document.Image = images[i];
        Load(i % 2 == 0 ? Language::English : Language::Chinese);
        DataImage expected = images[i];
        CloseUp(expected, 0x140);
        CloseUp(expected, 0x150);
        ASSERT_EQ(Differences(document.Image, expected), Addresses{}) << "seed " << seed << ", image " << i;
        form->CloseFromFrame();
        form.reset();
        ASSERT_EQ(Differences(document.Image, expected), Addresses{}) << "seed " << seed << ", image " << i;
    }
}

TEST_F(OptionalFormTest, WalkingThroughTheFieldsOfAnyImageSettlesAtOnceAndStaysInTheBlock) {
    const unsigned seed = 5102;
    std::mt19937 random(seed);
    for (int i = 0; i < 100; ++i) {
        DataImage image = RandomImage(random);
        image.Set(0x133, static_cast<std::uint8_t>(i % 3));
        image.Set(0x132, static_cast<std::uint8_t>(i / 3 % 4));
        document.Image = image;
        Show();
        for (int step = 0; step < 23; ++step) {
            Key(Qt::Key_Tab);
        }
        const DataImage settled = document.Image;
        for (int step = 0; step < 23; ++step) {
            Key(Qt::Key_Tab);
        }
        EXPECT_EQ(Differences(document.Image, settled), Addresses{}) << "seed " << seed << ", image " << i;
        for (const int address : Differences(settled, image)) {
            EXPECT_TRUE(address >= 0x12C && address <= 0x15F && address != 0x12E && address != 0x13F)
                << address << ", seed " << seed << ", image " << i;
        }
    }
}

} // namespace
} // namespace zelvor
