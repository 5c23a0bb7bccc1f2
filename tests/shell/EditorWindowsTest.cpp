#include "ShellTest.h"

#include <QApplication>
#include <QLineEdit>

namespace zelvor {
namespace {

class EditorWindowsTest : public ShellTest {
protected:
    void OpenAllEditors() {
        OpenMainWindow();
        Choose("MnuEditScanInformation");
        Choose("MnuEditTestFrequency");
        Choose("MnuEditEmbeddedMessage");
        ClickButton("ChannelForm", "cmdChannelEdit");
    }
    bool IsListed(int entry) { return Entry("MnuWindowSub(" + std::to_string(entry) + ")")->isVisible(); }
    QString Listed(int entry) { return TextOf("MnuWindowSub(" + std::to_string(entry) + ")"); }
    bool IsMarked(int entry) { return Entry("MnuWindowSub(" + std::to_string(entry) + ")")->isChecked(); }
};

TEST_F(EditorWindowsTest, MenuEntriesOpenThemAndListThemByTheirCaptions) {
    OpenAllEditors();
    for (const char* name : {"ScanForm", "TestChannelForm", "EmbedInfoForm", "ChannelEditForm"}) {
        EXPECT_TRUE(IsChildShown(name)) << name;
    }
    EXPECT_EQ(Listed(3), " Scan Information");
    EXPECT_EQ(Listed(6), " Test Frequency");
    EXPECT_EQ(Listed(7), " Embedded Message");
    EXPECT_EQ(Listed(8), " Channel Edit");
    for (const int entry : {3, 6, 7, 8}) {
        EXPECT_TRUE(IsListed(entry)) << entry;
        EXPECT_EQ(IsMarked(entry), entry == 8) << entry;
    }
    EXPECT_TRUE(windows.IsOpen(ChildWindow::ChannelEdit));
}

TEST_F(EditorWindowsTest, TheChannelEditDialogShowsTheCursorsChannelAtEveryOpening) {
    OpenMainWindow();
    QTest::keyClick(Child("ChannelGrid"), Qt::Key_Down);
    ClickButton("ChannelForm", "cmdChannelEdit");
    EXPECT_EQ(Find<QLineEdit>("txtChannel")->text(), "2");
    EXPECT_EQ(Find<QLineEdit>("txtChannel")->selectedText(), "2");
    QTest::keyClick(Child("ChannelGrid"), Qt::Key_Down);
    EXPECT_EQ(Find<QLineEdit>("txtChannel")->text(), "3");
    ClickButton("ChannelForm", "cmdChannelEdit");
    EXPECT_EQ(Find<QLineEdit>("txtChannel")->text(), "3");
}

TEST_F(EditorWindowsTest, NewUnloadsThemAllButTheGrid) {
    OpenAllEditors();
    fakes.messages.Expect({"Warning", "All data will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                           MessageAnswer::Cancel},
                          MessageAnswer::Ok);
    Choose("MnuFileNew");
    for (const char* name : {"ScanForm", "TestChannelForm", "EmbedInfoForm", "ChannelEditForm"}) {
        EXPECT_EQ(Child(name), nullptr) << name;
    }
    EXPECT_EQ(windows.Open(), (std::array<bool, 10>{true}));
    EXPECT_TRUE(IsChildShown("ChannelForm"));
}

TEST_F(EditorWindowsTest, TheirCloseButtonsUnloadThem) {
    OpenAllEditors();
    ClickButton("ScanForm", "cmdClose");
    ClickButton("TestChannelForm", "cmdClose");
    ClickButton("EmbedInfoForm", "cmdClose");
    ClickButton("ChannelEditForm", "cmdOK");
    for (const char* name : {"ScanForm", "TestChannelForm", "EmbedInfoForm", "ChannelEditForm"}) {
        EXPECT_EQ(Child(name), nullptr) << name;
    }
    for (const int entry : {3, 6, 7, 8}) {
        EXPECT_FALSE(IsListed(entry)) << entry;
    }
    EXPECT_EQ(windows.Open(), (std::array<bool, 10>{true}));
}

TEST_F(EditorWindowsTest, ClosingTheGridsFrameHidesTheDialogWithIt) {
    OpenAllEditors();
    CloseFrame("ChannelForm");
    EXPECT_FALSE(IsChildShown("ChannelForm"));
    EXPECT_FALSE(IsChildShown("ChannelEditForm"));
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Channels));
    EXPECT_FALSE(windows.IsOpen(ChildWindow::ChannelEdit));
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Scan));
}

TEST_F(EditorWindowsTest, AWindowHiddenByCloseAllComesBackWithItsContents) {
    OpenMainWindow();
    Choose("MnuEditEmbeddedMessage");
    auto* line = Find<QLineEdit>("txtMsg(0)");
    line->setFocus();
    QTest::keyClicks(line, "HELLO");
    Choose("MnuWindowCloseAll");
    EXPECT_FALSE(IsChildShown("EmbedInfoForm"));
    Choose("MnuEditEmbeddedMessage");
    EXPECT_TRUE(IsChildShown("EmbedInfoForm"));
    EXPECT_EQ(Find<QLineEdit>("txtMsg(0)")->text(), "HELLO");
}

TEST_F(EditorWindowsTest, ANewDocumentIsShownAtItsFirstChannelWhateverTheDialogShowed) {
    OpenMainWindow();
    ClickButton("ChannelForm", "cmdChannelEdit");
    for (int n = 1; n < 5; ++n) {
        QTest::keyClick(Find<QLineEdit>("txtChannel"), Qt::Key_Up);
    }
    ASSERT_EQ(Child("ChannelForm")->windowTitle(), " Channel Information [ Channel - 5 ]");
    fakes.messages.Expect({"Warning", "All data will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                           MessageAnswer::Cancel},
                          MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_EQ(Child("ChannelForm")->windowTitle(), " Channel Information [ Channel - 1 ]");
    EXPECT_EQ(Listed(0), " Channel Information [ Channel-1 ]");
    ClickButton("ChannelForm", "cmdChannelEdit");
    EXPECT_EQ(Find<QLineEdit>("txtChannel")->text(), "1");
}

TEST_F(EditorWindowsTest, ANewDocumentAfterCloseAllMarksTheGrid) {
    OpenMainWindow();
    Choose("MnuEditScanInformation");
    Choose("MnuWindowCloseAll");
    fakes.messages.Expect({"Warning", "All data will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                           MessageAnswer::Cancel},
                          MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_TRUE(IsListed(0));
    EXPECT_TRUE(IsMarked(0));
}

TEST_F(EditorWindowsTest, TheOtherDialogsAlsoCommitAnOpenCellFirst) {
    OpenMainWindow();
    for (const char* entry : {"MnuHelpAbout", "MnuSetupCommunicationPort"}) {
        auto* grid = Find<QWidget>("ChannelGrid");
        grid->setFocus();
        for (const char character : std::string("146.5")) {
            QTest::keyClick(QApplication::focusWidget(), character);
        }
        ASSERT_TRUE(Find<QLineEdit>("txtInputBox")->isVisible()) << entry;
        ChooseDialog(entry, [&](QWidget& dialog) {
            EXPECT_FALSE(Find<QLineEdit>("txtInputBox")->isVisible()) << entry;
            EXPECT_EQ(document.Image.At(0x012), 0x65) << entry;
            dialog.close();
        });
        EXPECT_TRUE(grid->hasFocus()) << entry;
    }
}

} // namespace
} // namespace zelvor
