#include "DTMFFormFixture.h"

#include <QHeaderView>
#include <QScrollBar>

#include "data/BlankImage.h"

namespace zelvor {
namespace {

TEST_F(DTMFFormTest, ShowsEveryFieldAndChangesNothingByOpening) {
    const DataImage before = document.Image;
    Show();
    EXPECT_EQ(Text("txtDTMFSpeed"), "8");
    EXPECT_EQ(Spin("updDTMFSpeed"), 1);
    EXPECT_EQ(Text("txtFstDigitTime"), "100");
    EXPECT_EQ(Spin("updFstDigitTime"), 1);
    EXPECT_EQ(Text("txtFstDigitDelay"), "160");
    EXPECT_EQ(Spin("updFstDigitDelay"), 16);
    EXPECT_EQ(Text("txtTone"), "500");
    EXPECT_EQ(Spin("updTone"), 2);
    EXPECT_EQ(Text("txtDCodeAssign"), "7s");
    EXPECT_EQ(Spin("updDCodeAssign"), 7);
    EXPECT_TRUE(Check("chkDTMFSideTone").isChecked());
    EXPECT_EQ(Text("txtIDCode"), "12345");
    EXPECT_EQ(List("cboGroupCode").currentText(), "B");
    EXPECT_EQ(Text("txtAutoResetTimer"), "5");
    EXPECT_EQ(Spin("updAutoResetTimer"), 5);
    EXPECT_EQ(List("cboCallAlert").currentText(), "Continuous");
    EXPECT_EQ(List("cboTranspond").currentText(), "ID Code");
    EXPECT_TRUE(Check("chkClear").isChecked());
    EXPECT_EQ(Text("txtStunCode"), "7A*");
    EXPECT_EQ(List("cboStunType").currentText(), "TX/RX Inhibit");
    EXPECT_EQ(Cell(1), "");
    EXPECT_EQ(Cell(2), "55512");
    EXPECT_EQ(document.Image, before);
}

TEST_F(DTMFFormTest, ANewDocumentShowsItsDefaults) {
    Put(0x1BD, {0x01, 0xF8});
    InitAllFrameData(document.Image);
    Load();
    EXPECT_EQ(Text("txtDTMFSpeed"), "6");
    EXPECT_EQ(Text("txtFstDigitTime"), "0");
    EXPECT_EQ(Text("txtFstDigitDelay"), "100");
    EXPECT_EQ(Text("txtTone"), "0");
    EXPECT_EQ(Text("txtDCodeAssign"), "D Code");
    EXPECT_TRUE(Check("chkDTMFSideTone").isChecked());
    EXPECT_EQ(Text("txtIDCode"), "000");
    EXPECT_EQ(List("cboGroupCode").currentText(), "Off");
    EXPECT_EQ(Text("txtAutoResetTimer"), "10");
    EXPECT_EQ(List("cboCallAlert").currentText(), "Normal");
    EXPECT_EQ(List("cboTranspond").currentText(), "Off");
    EXPECT_FALSE(Check("chkClear").isChecked());
    EXPECT_EQ(Text("txtStunCode"), "");
    EXPECT_EQ(List("cboStunType").currentText(), "TX Inhibit");
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(Cell(row), "");
    }
}

TEST_F(DTMFFormTest, AnErasedImageShowsTheFieldsOwnBlanks) {
    document.Image.Fill(0xFF);
    Load();
    EXPECT_EQ(Text("txtDTMFSpeed"), "6");
    EXPECT_EQ(Text("txtFstDigitTime"), "0");
    EXPECT_EQ(Text("txtFstDigitDelay"), "100");
    EXPECT_EQ(Spin("updFstDigitDelay"), 10);
    EXPECT_EQ(Text("txtTone"), "0");
    EXPECT_EQ(Text("txtDCodeAssign"), "D Code");
    EXPECT_TRUE(Check("chkDTMFSideTone").isChecked());
    EXPECT_EQ(Text("txtIDCode"), "");
    EXPECT_EQ(List("cboGroupCode").currentIndex(), -1);
    EXPECT_EQ(Text("txtAutoResetTimer"), "10");
    EXPECT_EQ(Spin("updAutoResetTimer"), 10);
    EXPECT_EQ(List("cboCallAlert").currentIndex(), -1);
    EXPECT_EQ(List("cboTranspond").currentIndex(), -1);
    EXPECT_FALSE(Check("chkClear").isChecked());
    EXPECT_EQ(Text("txtStunCode"), "");
    EXPECT_EQ(List("cboStunType").currentIndex(), 0);
    EXPECT_EQ(document.Image, DataImage());
}

TEST_F(DTMFFormTest, TextsAreEnglishInEnglish) {
    Show();
    EXPECT_EQ(form->windowTitle(), "DTMF");
    EXPECT_EQ(Tabs().tabText(0), "Encode");
    EXPECT_EQ(Tabs().tabText(1), "Decode");
    EXPECT_EQ(Tabs().tabText(2), "Autodial Memory");
    const char* texts[][2] = {{"lblDTMFSpeed", "DTMF Speed [digit/s]"},
                              {"lblFstDigitTime", "First Digit Time [ms]"},
                              {"lblFstDigitDelay", "First Digit Delay [ms]"},
                              {"lblTone", "* and # Tone [ms]"},
                              {"lblDCodeAssign", "D Code Assignment"},
                              {"lblIDCode", "ID Code"},
                              {"lblGroupCode", "Group Code"},
                              {"lblAutoResetTimer", "Auto Reset Timer [s]"},
                              {"lblCallAlert", "Call Alert"},
                              {"lblTranspond", "Transpond"},
                              {"lblStunCode", "Stun Code"},
                              {"lblStunType", "Stun Type"}};
    for (const auto& [name, text] : texts) {
        EXPECT_EQ(Find<QLabel>(name).text(), text);
    }
    EXPECT_EQ(Check("chkDTMFSideTone").text(), "DTMF Side Tone");
    EXPECT_EQ(Check("chkClear").text(), "Clear to Transpond");
    EXPECT_EQ(Find<QGroupBox>("fraStun").title(), "Stun");
    EXPECT_EQ(Entries("cboGroupCode"), (QStringList{"Off", "A", "B", "C", "D", "#", "*"}));
    EXPECT_EQ(Entries("cboCallAlert"), (QStringList{"Off", "Normal", "Continuous"}));
    EXPECT_EQ(Entries("cboTranspond"), (QStringList{"Off", "Alert", "ID Code"}));
    EXPECT_EQ(Entries("cboStunType"), (QStringList{"TX Inhibit", "TX/RX Inhibit"}));
    EXPECT_EQ(Find<QLabel>("corner").text(), "No.");
    EXPECT_EQ(Grid().horizontalHeaderItem(0)->text(), "Autodial Memory");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
}

TEST_F(DTMFFormTest, TextsAreChineseInChinese) {
    Put(0x114, {0});
    Put(0x117, {0});
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "DTMF(双音多频)");
    EXPECT_EQ(Tabs().tabText(0), "编码");
    EXPECT_EQ(Tabs().tabText(1), "解码");
    EXPECT_EQ(Tabs().tabText(2), "自动拨号存储器");
    const char* texts[][2] = {{"lblDTMFSpeed", "DTMF速率[数字/秒]"},
                              {"lblFstDigitTime", "首位数码时间[毫秒]"},
                              {"lblFstDigitDelay", "首位数码延迟[毫秒]"},
                              {"lblTone", "*和#音[毫秒]"},
                              {"lblDCodeAssign", "D键设定"},
                              {"lblIDCode", "ID码"},
                              {"lblGroupCode", "组呼码"},
                              {"lblAutoResetTimer", "自动复位定时器[秒]"},
                              {"lblCallAlert", "呼叫告警"},
                              {"lblTranspond", "自动应答"},
                              {"lblStunCode", "遥毙码"},
                              {"lblStunType", "遥毙类型"}};
    for (const auto& [name, text] : texts) {
        EXPECT_EQ(Find<QLabel>(name).text(), text);
    }
    EXPECT_EQ(Check("chkDTMFSideTone").text(), "DTMF侧音");
    EXPECT_EQ(Check("chkClear").text(), "清除自动应答");
    EXPECT_EQ(Find<QGroupBox>("fraStun").title(), "Stun");
    EXPECT_EQ(Entries("cboGroupCode"), (QStringList{"关", "A", "B", "C", "D", "#", "*"}));
    EXPECT_EQ(Entries("cboCallAlert"), (QStringList{"关", "常规", "连续"}));
    EXPECT_EQ(Entries("cboTranspond"), (QStringList{"关", "告警", "ID码"}));
    EXPECT_EQ(Entries("cboStunType"), (QStringList{"TX Inhibit", "TX/RX Inhibit"}));
    EXPECT_EQ(Text("txtDCodeAssign"), "D 码");
    EXPECT_EQ(Text("txtAutoResetTimer"), "关");
    EXPECT_EQ(Find<QLabel>("corner").text(), "编号");
    EXPECT_EQ(Grid().horizontalHeaderItem(0)->text(), "自动拨号存储器");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "关闭(&C)");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "帮助(&H)");
}

TEST_F(DTMFFormTest, NoTextIsCutOffOnAnyTab) {
    for (const Language language : {Language::English, Language::Chinese}) {
        Show(language);
        for (const int tab : {0, 1, 2}) {
            ClickTab(tab);
            ExpectNoTextCutOff();
            for (const QLabel* label : Tabs().currentWidget()->findChildren<QLabel*>()) {
                EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
            }
            for (const QWidget* control : Tabs().currentWidget()->findChildren<QWidget*>()) {
                if (control->isVisible() && control->parentWidget() == Tabs().currentWidget()) {
                    EXPECT_TRUE(Tabs().currentWidget()->rect().contains(control->geometry()))
                        << control->objectName().toStdString();
                }
            }
        }
    }
}

TEST_F(DTMFFormTest, EachFieldIsOnItsTabAndTheWindowOpensOnTheFirst) {
    Show();
    EXPECT_EQ(form->Window(), ChildWindow::Dtmf);
    EXPECT_EQ(form->objectName(), "DTMFForm");
    EXPECT_EQ(form->size(), QSize(419, 338));
    EXPECT_TRUE(Find<QWidget>("picDTMF").isAncestorOf(&Tabs()));
    ASSERT_EQ(Tabs().count(), 3);
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_TRUE(Box("txtDTMFSpeed").hasFocus());
    const std::vector<std::vector<const char*>> fields{
        {"txtDTMFSpeed", "updDTMFSpeed", "txtFstDigitTime", "updFstDigitTime", "txtFstDigitDelay", "updFstDigitDelay",
         "txtTone", "updTone", "txtDCodeAssign", "updDCodeAssign", "chkDTMFSideTone"},
        {"txtIDCode", "cboGroupCode", "txtAutoResetTimer", "updAutoResetTimer", "cboCallAlert", "cboTranspond",
         "chkClear", "fraStun", "txtStunCode", "cboStunType"},
        {"msgAutodial"}};
    for (std::size_t shown = 0; shown < fields.size(); ++shown) {
        ClickTab(static_cast<int>(shown));
        for (std::size_t tab = 0; tab < fields.size(); ++tab) {
            for (const char* name : fields[tab]) {
                EXPECT_EQ(Find<QWidget>(name).isVisible(), tab == shown) << name;
            }
        }
    }
    EXPECT_TRUE(Find<QWidget>("fraStun").isAncestorOf(&Box("txtStunCode")));
    EXPECT_TRUE(Find<QWidget>("fraStun").isAncestorOf(&List("cboStunType")));
}

TEST_F(DTMFFormTest, TabAndEnterGoThroughTheFieldsOfTheVisibleTabInOrder) {
    const std::vector<std::vector<const char*>> stops{
        {"txtDTMFSpeed", "txtFstDigitTime", "txtFstDigitDelay", "txtTone", "txtDCodeAssign", "chkDTMFSideTone"},
        {"txtIDCode", "cboGroupCode", "txtAutoResetTimer", "cboCallAlert", "cboTranspond", "chkClear", "txtStunCode",
         "cboStunType"},
        {"msgAutodial"}};
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        Show();
        for (int tab = 0; tab < 3; ++tab) {
            ClickTab(tab);
            ASSERT_TRUE(Tabs().tabBar()->hasFocus());
            Key(key);
            for (const char* name : stops[static_cast<std::size_t>(tab)]) {
                EXPECT_TRUE(Find<QWidget>(name).hasFocus()) << name;
                Key(tab == 2 ? Qt::Key_Tab : key); // Enter in the grid opens its editor
            }
            EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus());
            Key(Qt::Key_Tab);
            EXPECT_TRUE(Find<QPushButton>("cmdHelp").hasFocus());
            Key(Qt::Key_Tab);
            EXPECT_TRUE(Tabs().tabBar()->hasFocus());
        }
    }
}

TEST_F(DTMFFormTest, EveryControlHasAnAccessibleName) {
    Show();
    EXPECT_EQ(Box("txtDTMFSpeed").accessibleName(), "DTMF Speed [digit/s]");
    EXPECT_EQ(Find<UpDown>("updTone").accessibleName(), "* and # Tone [ms]");
    EXPECT_EQ(Box("txtIDCode").accessibleName(), "ID Code");
    EXPECT_EQ(List("cboGroupCode").accessibleName(), "Group Code");
    EXPECT_EQ(Box("txtStunCode").accessibleName(), "Stun Code");
    EXPECT_EQ(List("cboStunType").accessibleName(), "Stun Type");
    EXPECT_EQ(Grid().accessibleName(), "Autodial Memory");
    ClickTab(2);
    Focus("msgAutodial");
    Key(Qt::Key_Return);
    EXPECT_EQ(Editor().accessibleName(), "Autodial Memory");
}

TEST_F(DTMFFormTest, HelpOpensThePageOfTheLanguage) {
    Show();
    Click("cmdHelp");
    Show(Language::Chinese);
    Click("cmdHelp");
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_TRUE(services.help.Topics()[0].ends_with("\\Zelvor_e.chm::/html/dtmf.htm"));
    EXPECT_TRUE(services.help.Topics()[1].ends_with("\\Zelvor_c.chm::/html/dtmf.htm"));
    EXPECT_EQ(form->HelpPage(), "dtmf.htm");
}

TEST_F(DTMFFormTest, BothWaysToCloseStoreWhatIsBeingEditedAndAskToBeUnloaded) {
    for (const bool byButton : {true, false}) {
        document.Image.Set(0x110, 1);
        Show();
        const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
        Retype("15");
        if (byButton) {
            Find<QPushButton>("cmdClose").click(); // as its shortcut does: the focus stays in the box
        } else {
            form->CloseFromFrame();
        }
        EXPECT_EQ(unloaded.count(), 1);
        EXPECT_EQ(At(0x110), 3);
    }
}

TEST_F(DTMFFormTest, AnEditStillOpenWhenTheWindowGoesIsDropped) {
    const DataImage before = document.Image;
    Show();
    Retype("15");
    form.reset();
    ShowAt(1, "txtIDCode");
    Retype("9");
    form.reset();
    EXPECT_EQ(document.Image, before);
    EXPECT_TRUE(services.messages.Shown().empty());
}

TEST_F(DTMFFormTest, ThePanelScrollsInASmallWindow) {
    Show();
    form->resize(300, 200);
    EXPECT_TRUE(Find<QWidget>("Picture2").isVisible());
    EXPECT_EQ(Find<QScrollBar>("HScroll1").maximum(), 419 - (300 - 16));
    EXPECT_EQ(Find<QScrollBar>("VScroll1").maximum(), 338 - (200 - 16));
}

TEST_F(DTMFFormTest, FieldsAndLabelsOfEveryPageAreOnOneRaster) {
    ExpectOneRasterOnEveryPage();
}

} // namespace
} // namespace zelvor
