#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

const Message ExitQuestion{"Confirmation", "Do you wish to exit Zelvor program？", MessageIcon::Question,
                           MessageButtons::YesNo, MessageAnswer::Yes};
const Message ExitQuestionInChinese{"确认", "是否退出 Zelvor 程序？", MessageIcon::Question, MessageButtons::YesNo,
                                    MessageAnswer::Yes};
const Message SaveQuestion{"Zelvor", "Do you wish to save the changes in \"Zelvor.DAT\" ?", MessageIcon::Exclamation,
                           MessageButtons::YesNoCancel, MessageAnswer::Yes};
const Message SaveQuestionInChinese{"警告", "文件已更改,是否保存?", MessageIcon::Exclamation,
                                    MessageButtons::YesNoCancel, MessageAnswer::Yes};

using Writes = std::vector<std::pair<std::string, std::string>>;

class ExitTest : public ShellTest {
protected:
    /// A start after an earlier run, so that every write is the exit's.
    void Open() {
        fakes.settings.Preset("LastModel", "50:34:36:31:38:01:F8:FF");
        OpenMainWindow();
    }

    void ExpectStillOpen() const {
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(fakes.settings.Writes().empty());
    }

    void ChangeImage() { document.Image.Set(0x100, 0x12); }

    QTemporaryDir directory;
};

TEST_F(ExitTest, ACleanDocumentNeedsTheOneQuestion) {
    Open();
    QSignalSpy ended(window.get(), &MDIForm1::Ended);
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    Choose("MnuFileExit");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_TRUE(windows.ExitConfirmed);
    EXPECT_EQ(fakes.settings.Writes(), (Writes{{"LastModel", "50:34:36:31:38:01:F8:FF"}, {"Language", "0"}}));
}

TEST_F(ExitTest, CtrlQAsksTheSame) {
    Open();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::No);
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    ExpectStillOpen();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ExitTest, NoKeepsTheProgram) {
    Open();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::No);
    EXPECT_FALSE(window->close());
    ExpectStillOpen();
    EXPECT_FALSE(windows.ExitConfirmed);
}

TEST_F(ExitTest, AsksInChineseAndStoresTheLanguage) {
    OpenMainWindowInChinese();
    ChangeImage();
    fakes.messages.Expect(ExitQuestionInChinese, MessageAnswer::Yes);
    fakes.messages.Expect(SaveQuestionInChinese, MessageAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(fakes.settings.Read("Language"), "1");
}

TEST_F(ExitTest, ALanguageChangedInTheSessionIsStored) {
    Open();
    windows.LanguageFlag = Language::Chinese;
    fakes.messages.Expect(ExitQuestionInChinese, MessageAnswer::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(fakes.settings.Read("Language"), "1");
}

TEST_F(ExitTest, TheModelOfTheDocumentOnScreenIsStored) {
    Open();
    document.Image.Set(0x1BD, 33);
    document.Image.Set(0x1BE, 0xFC);
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    fakes.messages.Expect(SaveQuestion, MessageAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(fakes.settings.Read("LastModel").substr(15, 5), "21:FC");
}

TEST_F(ExitTest, AChangeOfThePttIdTypeAloneIsNoChange) {
    Open();
    document.Image.Set(0x133, document.Image.At(0x133) == 1 ? 0 : 1);
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(document.Snapshot().At(0x133), document.Image.At(0x133));
}

TEST_F(ExitTest, TheOfferToSaveRefusedEndsTheProgramUnsaved) {
    Open();
    ChangeImage();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    fakes.messages.Expect(SaveQuestion, MessageAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ExitTest, TheOfferToSaveCancelledKeepsTheProgramAndTheConfirmation) {
    Open();
    ChangeImage();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    fakes.messages.Expect(SaveQuestion, MessageAnswer::Cancel);
    EXPECT_FALSE(window->close());
    ExpectStillOpen();
    EXPECT_TRUE(windows.ExitConfirmed);
}

TEST_F(ExitTest, TheOfferToSaveTakenSavesUnderANewName) {
    Open();
    ChangeImage();
    const QString path = directory.filePath("Last.dat");
    const QString oldDirectory = QDir::currentPath();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    fakes.messages.Expect(SaveQuestion, MessageAnswer::Yes);
    fakes.files.ExpectSave({"Zelvor.dat", "QPK Data Files(*.dat)|*.dat", ""}, path.toStdString());
    EXPECT_TRUE(window->close());
    EXPECT_EQ(fakes.store.Content(path.toStdString()).size(), 1040U);
    QDir::setCurrent(oldDirectory);
}

TEST_F(ExitTest, AFileThatCannotBeWrittenKeepsTheProgram) {
    Open();
    ChangeImage();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    fakes.messages.Expect(SaveQuestion, MessageAnswer::Yes);
    const std::string path = directory.filePath("missing/Last.dat").toStdString();
    fakes.store.Refuse(path);
    fakes.files.ExpectSave({"Zelvor.dat", "QPK Data Files(*.dat)|*.dat", ""}, path);
    EXPECT_FALSE(window->close());
    ExpectStillOpen();
}

TEST_F(ExitTest, TheSaveDialogCancelledKeepsTheProgramAndLetsTheGridBeUnloadedFromThenOn) {
    Open();
    CloseFrame("ChannelForm");
    EXPECT_NE(Child("ChannelForm"), nullptr) << "before, closing only hides";
    Choose("MnuEditChannelInformation");
    ChangeImage();
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    fakes.messages.Expect(SaveQuestion, MessageAnswer::Yes);
    fakes.files.ExpectSave({"Zelvor.dat", "QPK Data Files(*.dat)|*.dat", ""}, std::nullopt);
    EXPECT_FALSE(window->close());
    ExpectStillOpen();
    CloseFrame("ChannelForm");
    EXPECT_EQ(Child("ChannelForm"), nullptr);
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Channels));
    EXPECT_FALSE(Entry("MnuWindow")->isVisible());
}

TEST_F(ExitTest, AGridMadeAgainShowsTheDocument) {
    Open();
    windows.ExitConfirmed = true;
    const std::uint8_t frequency[] = {0x00, 0x25, 0x51, 0x14, 0x00, 0x00, 0x00, 0x00};
    for (int i = 0; i < 8; ++i) {
        document.Image.Set(0x010 + i, frequency[i]);
    }
    CloseFrame("ChannelForm");
    ASSERT_EQ(Child("ChannelForm"), nullptr);
    Choose("MnuEditChannelInformation");
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_EQ(Find<QTableWidget>("ChannelGrid")->item(0, 0)->text(), "145.12500");
}

TEST_F(ExitTest, OpenChildWindowsAreNotAsked) {
    Open();
    Choose("MnuViewTreeView");
    fakes.messages.Expect(ExitQuestion, MessageAnswer::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_NE(Child("TreeViewForm"), nullptr);
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Navigator));
}

} // namespace
} // namespace zelvor
