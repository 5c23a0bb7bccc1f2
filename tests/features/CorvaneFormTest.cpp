#include "CorvaneFormFixture.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMdiArea>

#include "controls/ChildFrame.h"
#include "data/BlankImage.h"

namespace zelvor {
namespace {

TEST_F(CorvaneFormTest, ShowsEveryFieldOfTheBlock) {
    const DataImage before = document.Image;
    Show();
    EXPECT_EQ(Text("txtFleet"), "149");
    EXPECT_EQ(Spin("updFleet"), 50);
    EXPECT_EQ(Text("txtID"), "2499");
    EXPECT_EQ(Spin("updID"), 1500);
    EXPECT_EQ(List("cboBaudRate").currentText(), "1200");
    EXPECT_EQ(Text("txtDelayTime"), "400");
    EXPECT_EQ(Spin("updDelayTime"), 400);
    EXPECT_EQ(Text("txtMsgModeTimer"), "10");
    EXPECT_EQ(Spin("updMsgModeTimer"), 10);
    EXPECT_TRUE(Find<QCheckBox>("chkSideTone").isChecked());
    EXPECT_EQ(document.Image, before);
}

TEST_F(CorvaneFormTest, ANewDocumentShowsNoOwnNumberAndItsDefaults) {
    Put(0x1BD, {0x01, 0xF8});
    InitAllFrameData(document.Image);
    Load();
    EXPECT_EQ(Text("txtFleet"), "");
    EXPECT_EQ(Spin("updFleet"), 0);
    EXPECT_EQ(Text("txtID"), "");
    EXPECT_EQ(Spin("updID"), 0);
    EXPECT_EQ(List("cboBaudRate").currentText(), "1200");
    EXPECT_EQ(Text("txtDelayTime"), "400");
    EXPECT_EQ(Text("txtMsgModeTimer"), "10");
    EXPECT_TRUE(Find<QCheckBox>("chkSideTone").isChecked());
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(Cell(row, 1), "");
        EXPECT_EQ(Cell(row, 2), "");
    }
}

TEST_F(CorvaneFormTest, AnErasedImageShowsTheFieldsOwnBlanks) {
    document.Image.Fill(0xFF);
    Load();
    EXPECT_EQ(Text("txtFleet"), "");
    EXPECT_EQ(Spin("updFleet"), 0);
    EXPECT_EQ(Text("txtID"), "");
    EXPECT_EQ(Spin("updID"), 0);
    EXPECT_EQ(List("cboBaudRate").currentIndex(), -1);
    EXPECT_EQ(Text("txtDelayTime"), "400");
    EXPECT_EQ(Spin("updDelayTime"), 400);
    EXPECT_EQ(Text("txtMsgModeTimer"), "300");
    EXPECT_EQ(Spin("updMsgModeTimer"), 300);
    EXPECT_FALSE(Find<QCheckBox>("chkSideTone").isChecked());
    EXPECT_EQ(document.Image, DataImage());
}

TEST_F(CorvaneFormTest, TextsAreEnglishInEnglish) {
    Show();
    EXPECT_EQ(form->windowTitle(), " Corvane");
    EXPECT_EQ(Tabs().tabText(0), "Corvane");
    EXPECT_EQ(Tabs().tabText(1), "Fleet List");
    const char* texts[][2] = {{"lblFleet", "Fleet(own)"},
                              {"lblID", "ID(own)"},
                              {"lblBaudRate", "Corvane Baud Rate [bps]"},
                              {"lblDelayTime", "Data TX Modulation Delay Timer [ms]"},
                              {"lblMsgModeTimer", "Message Mode Timer [s]"}};
    for (const auto& [name, text] : texts) {
        EXPECT_EQ(Find<QLabel>(name).text(), text);
    }
    EXPECT_EQ(Find<QCheckBox>("chkSideTone").text(), "PTT ID Side Tone");
    EXPECT_EQ(Entries("cboBaudRate"), (QStringList{"1200", "2400"}));
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
    ExpectNoTextCutOff();
    ClickTab(1);
    EXPECT_EQ(Find<QLabel>("corner").text(), "No.");
    EXPECT_EQ(Grid().horizontalHeaderItem(0)->text(), "Fleet");
    EXPECT_EQ(Grid().horizontalHeaderItem(1)->text(), "ID");
    ExpectNoTextCutOff();
}

TEST_F(CorvaneFormTest, TextsAreChineseInChinese) {
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), " Corvane(科瓦讯)");
    EXPECT_EQ(Tabs().tabText(0), "科瓦讯");
    EXPECT_EQ(Tabs().tabText(1), "队列表");
    const char* texts[][2] = {{"lblFleet", "队列(自身)"},
                              {"lblID", "ID(自身)"},
                              {"lblBaudRate", "科瓦讯波特率[bps]"},
                              {"lblDelayTime", "2数据发射调制延迟时间[毫秒]"},
                              {"lblMsgModeTimer", "信息模式定时器[秒]"}};
    for (const auto& [name, text] : texts) {
        EXPECT_EQ(Find<QLabel>(name).text(), text);
    }
    EXPECT_EQ(Find<QCheckBox>("chkSideTone").text(), "PTT ID 侧音");
    EXPECT_EQ(Entries("cboBaudRate"), (QStringList{"1200", "2400"}));
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "关闭(&C)");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "帮助(&H)");
    ExpectNoTextCutOff();
    ClickTab(1);
    EXPECT_EQ(Find<QLabel>("corner").text(), "编号");
    EXPECT_EQ(Grid().horizontalHeaderItem(0)->text(), "队列");
    EXPECT_EQ(Grid().horizontalHeaderItem(1)->text(), "ID");
    ExpectNoTextCutOff();
}

TEST_F(CorvaneFormTest, HasTwoTabsAndOpensOnTheFirst) {
    Show();
    EXPECT_EQ(form->Window(), ChildWindow::Corvane);
    EXPECT_EQ(form->objectName(), "CorvaneForm");
    EXPECT_TRUE(Find<QWidget>("picCorvane").isAncestorOf(&Tabs()));
    EXPECT_EQ(Tabs().count(), 2);
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_TRUE(Box("txtFleet").isVisible());
    EXPECT_FALSE(Grid().isVisible());
    ClickTab(1);
    EXPECT_FALSE(Box("txtFleet").isVisible());
    EXPECT_TRUE(Grid().isVisible());
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(CorvaneFormTest, EveryControlHasAnAccessibleName) {
    Load();
    EXPECT_EQ(Box("txtFleet").accessibleName(), "Fleet(own)");
    EXPECT_EQ(Find<UpDown>("updFleet").accessibleName(), "Fleet(own)");
    EXPECT_EQ(Box("txtID").accessibleName(), "ID(own)");
    EXPECT_EQ(List("cboBaudRate").accessibleName(), "Corvane Baud Rate [bps]");
    EXPECT_EQ(Box("txtDelayTime").accessibleName(), "Data TX Modulation Delay Timer [ms]");
    EXPECT_EQ(Box("txtMsgModeTimer").accessibleName(), "Message Mode Timer [s]");
    EXPECT_EQ(Grid().accessibleName(), "Fleet List");
    ShowList();
    Open(1, 2);
    EXPECT_EQ(Editor().accessibleName(), "ID");
}

TEST_F(CorvaneFormTest, EnterAndTabMoveThroughAllFieldsInOrderAndSelectTheirTexts) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
        const DataImage before = document.Image;
        Show();
        EXPECT_TRUE(Box("txtFleet").hasFocus());
        EXPECT_EQ(Box("txtFleet").selectedText(), "149");
        Key(key);
        EXPECT_TRUE(Box("txtID").hasFocus());
        EXPECT_EQ(Box("txtID").selectedText(), "2499");
        Key(key);
        EXPECT_TRUE(List("cboBaudRate").hasFocus());
        Key(key);
        EXPECT_TRUE(Box("txtDelayTime").hasFocus());
        EXPECT_EQ(Box("txtDelayTime").selectedText(), "400");
        Key(key);
        EXPECT_TRUE(Box("txtMsgModeTimer").hasFocus());
        EXPECT_EQ(Box("txtMsgModeTimer").selectedText(), "10");
        Key(key);
        EXPECT_TRUE(Find<QCheckBox>("chkSideTone").hasFocus());
        Key(key);
        EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus());
        Key(Qt::Key_Tab);
        EXPECT_TRUE(Find<QPushButton>("cmdHelp").hasFocus());
        Key(Qt::Key_Tab);
        EXPECT_TRUE(Tabs().tabBar()->hasFocus());
        Key(key);
        EXPECT_TRUE(Box("txtFleet").hasFocus());
        EXPECT_EQ(document.Image, before);
    }
}

TEST_F(CorvaneFormTest, InTheMainWindowTheFocusStartsOnTheFirstFieldAndNotOnItsTab) {
    QMdiArea area;
    area.resize(700, 500);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    auto* frame = new ChildFrame(new CorvaneForm(document, windows, services.Get()));
    area.addSubWindow(frame);
    frame->show();
    const QWidget* first = frame->findChild<QWidget*>("txtFleet");
    EXPECT_TRUE(first->hasFocus());
    frame->Form()->setFocus();
    EXPECT_TRUE(first->hasFocus());
    for (int stop = 0; stop < 9; ++stop) {
        Key(Qt::Key_Tab);
    }
    EXPECT_TRUE(first->hasFocus());
}

TEST_F(CorvaneFormTest, TheFleetListIsATabStopOnItsOwnTabOnly) {
    for (const bool ofList : {false, true}) {
        Show();
        ClickTab(ofList ? 1 : 0);
        bool stopped = false;
        for (int i = 0; i < 12; ++i) {
            Key(Qt::Key_Tab);
            stopped = stopped || Grid().hasFocus();
            EXPECT_FALSE(ofList && Box("txtID").hasFocus());
        }
        EXPECT_EQ(stopped, ofList);
    }
}

TEST_F(CorvaneFormTest, HelpOpensThePageInTheLanguage) {
    Show();
    EXPECT_EQ(form->HelpPage(), "corvane.htm");
    Click("cmdHelp");
    Show(Language::Chinese);
    Click("cmdHelp");
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_TRUE(services.help.Topics()[0].ends_with("\\Zelvor_e.chm::/html/corvane.htm"));
    EXPECT_TRUE(services.help.Topics()[1].ends_with("\\Zelvor_c.chm::/html/corvane.htm"));
}

TEST_F(CorvaneFormTest, BothWaysToCloseStoreWhatIsBeingEditedAndAskToBeUnloaded) {
    Show();
    const QSignalSpy unload(form.get(), &ChildForm::UnloadRequested);
    Focus("txtDelayTime");
    Type("77");
    Click("cmdClose");
    EXPECT_EQ(unload.count(), 1);
    EXPECT_EQ(At(0x173), 77);
    Focus("txtMsgModeTimer");
    Type("78");
    form->CloseFromFrame();
    EXPECT_EQ(unload.count(), 2);
    EXPECT_EQ(At(0x176), 78);
}

TEST_F(CorvaneFormTest, AWindowThatIsDestroyedDropsWhatIsBeingEdited) {
    for (const char* name : {"txtFleet", "txtID", "txtDelayTime", "txtMsgModeTimer"}) {
        const DataImage before = document.Image;
        Show();
        Focus(name);
        Type("9");
        Focus(name);
        const DataImage typed = document.Image;
        form.reset();
        EXPECT_EQ(document.Image, typed) << name;
        EXPECT_EQ(document.Image, before) << name;
    }
}

TEST_F(CorvaneFormTest, NoTextBoxHasAContextMenu) {
    ShowList();
    Open(1, 1);
    for (const char* name : {"txtFleet", "txtID", "txtDelayTime", "txtMsgModeTimer", "txtFleetList"}) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), QCursor::pos());
        QApplication::sendEvent(&Box(name), &event);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << name;
    }
}

TEST_F(CorvaneFormTest, FieldsAndLabelsOfEveryPageAreOnOneRaster) {
    ExpectOneRasterOnEveryPage();
}

} // namespace
} // namespace zelvor
