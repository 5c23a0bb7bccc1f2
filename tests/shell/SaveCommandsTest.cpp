#include "shell/FileCommandsTest.h"

namespace zelvor {
namespace {

constexpr const char* Filter = "QPK Data Files(*.dat)|*.dat";

Message OverwriteQuestion(const std::string& name) {
    return {"Warning", "Overwrite Warning!\nSave File Name:" + name, MessageIcon::Exclamation, MessageButtons::OkCancel,
            MessageAnswer::Cancel};
}

class SaveCommandsTest : public FileCommandsTest {
protected:
    [[nodiscard]] QByteArray Content(const std::string& path) const {
        return QByteArray::fromStdString(fakes.store.Content(path));
    }

    /// The head and the 1024 bytes of the memory in address order.
    [[nodiscard]] QByteArray FileOfTheImage() const {
        QByteArray bytes("RQ6152");
        bytes.append(10, '\xFF');
        for (int address = 0; address < 0x400; ++address) {
            bytes.append(static_cast<char>(document.Image.At(address)));
        }
        return bytes;
    }
};

TEST_F(SaveCommandsTest, SaveOfANewDocumentAsksForAName) {
    OpenMainWindow();
    FillImage();
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("First.dat"));
    Choose("MnuFileSave");
    EXPECT_EQ(Content(PathOf("First.dat")), FileOfTheImage());
    EXPECT_EQ(document.FileName(), PathOf("First.dat"));
    EXPECT_EQ(Commands().LastDirectory(), "");
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:First.dat]");
    EXPECT_FALSE(document.IsDocumentChanged());
}

TEST_F(SaveCommandsTest, TheNextSaveAsksWhetherToOverwriteThatName) {
    OpenMainWindow();
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("First.dat"));
    Choose("MnuFileSave");
    FillImage();
    fakes.messages.Expect(OverwriteQuestion("First.dat"), MessageAnswer::Ok);
    ClickToolbar(3);
    EXPECT_EQ(Content(PathOf("First.dat")), FileOfTheImage());
    EXPECT_FALSE(document.IsDocumentChanged());
}

TEST_F(SaveCommandsTest, OverwritingIsAskedInChinese) {
    OpenMainWindowInChinese();
    document.Rename(PathOf("车队.dat"));
    fakes.messages.Expect({"警告", "改写警告!\n保存文件名:车队.dat", MessageIcon::Exclamation, MessageButtons::OkCancel,
                           MessageAnswer::Cancel},
                          MessageAnswer::Ok);
    Choose("MnuFileSave");
    EXPECT_EQ(Content(PathOf("车队.dat")), FileOfTheImage());
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ 文件名:车队.dat]");
}

TEST_F(SaveCommandsTest, OverwritingRefusedWritesNothing) {
    OpenMainWindow();
    document.Rename(PathOf("First.dat"));
    document.Image.Set(0x100, 0x12);
    fakes.messages.Expect(OverwriteQuestion("First.dat"), MessageAnswer::Cancel);
    Choose("MnuFileSave");
    EXPECT_FALSE(fakes.store.Has(PathOf("First.dat")));
    EXPECT_TRUE(document.IsDocumentChanged());
}

TEST_F(SaveCommandsTest, SaveCancelledChangesNothing) {
    OpenMainWindow();
    document.Image.Set(0x100, 0x12);
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, std::nullopt);
    Choose("MnuFileSave");
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_TRUE(document.IsDocumentChanged());
    EXPECT_FALSE(Commands().IsSaveCancelled());
}

TEST_F(SaveCommandsTest, SaveToAPathThatCannotBeWrittenIsSilentAndKeepsTheSnapshot) {
    OpenMainWindow();
    document.Image.Set(0x100, 0x12);
    const DataImage saved = document.Snapshot();
    fakes.store.Refuse(PathOf("missing/First.dat"));
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("missing/First.dat"));
    Choose("MnuFileSave");
    EXPECT_TRUE(fakes.messages.Shown().empty());
    EXPECT_EQ(document.Snapshot(), saved);
    EXPECT_TRUE(document.IsDocumentChanged());
    EXPECT_EQ(document.FileName(), PathOf("missing/First.dat"));
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST_F(SaveCommandsTest, SaveAsStartsFromTheCurrentNameAndRemembersTheFolder) {
    OpenMainWindow();
    FillImage();
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, std::nullopt);
    Choose("MnuFileSaveAs");
    ASSERT_TRUE(Commands().IsSaveCancelled());
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("Second.dat"));
    Choose("MnuFileSaveAs");
    EXPECT_EQ(Content(PathOf("Second.dat")), FileOfTheImage());
    EXPECT_EQ(document.FileName(), PathOf("Second.dat"));
    EXPECT_EQ(Commands().LastDirectory(), QDir(directory.path()).canonicalPath().toStdString());
    EXPECT_FALSE(Commands().IsSaveCancelled());
    EXPECT_FALSE(document.IsDocumentChanged());
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Second.dat]");

    fakes.files.ExpectSave({PathOf("Second.dat"), Filter, Commands().LastDirectory()}, std::nullopt);
    Choose("MnuFileSaveAs");
    EXPECT_TRUE(Commands().IsSaveCancelled());
    EXPECT_EQ(document.FileName(), PathOf("Second.dat"));
}

TEST_F(SaveCommandsTest, SaveAsUsesTheChineseFilterInChinese) {
    OpenMainWindowInChinese();
    fakes.files.ExpectSave({"Zelvor.dat", "QPK 数据文件 (*.dat)|*.dat", ""}, std::nullopt);
    Choose("MnuFileSaveAs");
    EXPECT_TRUE(Commands().IsSaveCancelled());
}

TEST_F(SaveCommandsTest, SaveAsToAPathThatCannotBeWrittenCountsAsCancelled) {
    OpenMainWindow();
    document.Image.Set(0x100, 0x12);
    fakes.store.Refuse(PathOf("missing/Second.dat"));
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("missing/Second.dat"));
    Choose("MnuFileSaveAs");
    EXPECT_TRUE(Commands().IsSaveCancelled());
    EXPECT_TRUE(document.IsDocumentChanged());
    EXPECT_TRUE(fakes.messages.Shown().empty());
}

TEST_F(SaveCommandsTest, ANameWithTheToolkitsPlaceholderIsShownAsItIs) {
    OpenMainWindow();
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("A[*].dat"));
    Choose("MnuFileSave");
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:A[*][*].dat]");
}

TEST_F(SaveCommandsTest, TheTitleSetWhileTheGridIsMaximisedIsThereWhenItIsNormalAgain) {
    OpenMainWindow();
    auto* frame = qobject_cast<QMdiSubWindow*>(Child("ChannelForm")->parentWidget());
    frame->showMaximized();
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("First.dat"));
    Choose("MnuFileSave");
    EXPECT_TRUE(window->windowTitle().startsWith("Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:First.dat]"));
    frame->showNormal();
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:First.dat]");
}

TEST_F(SaveCommandsTest, SaveFromTheToolbarCommitsTheEditInTheGrid) {
    OpenMainWindow();
    TypeIntoFirstCell("145.5");
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("Edited.dat"));
    ClickToolbar(3);
    EXPECT_EQ(Content(PathOf("Edited.dat")).mid(16 + 0x010, 4).toHex(), "00005514");
    EXPECT_FALSE(document.IsDocumentChanged());
}

TEST_F(SaveCommandsTest, SaveByItsShortcutCommitsTheEditInTheGridAndLeavesTheKeyboardThere) {
    OpenMainWindow();
    TypeIntoFirstCell("146");
    fakes.files.ExpectSave({"Zelvor.dat", Filter, ""}, PathOf("Edited.dat"));
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(PathOf("Edited.dat")).mid(16 + 0x010, 4).toHex(), "00006014");
    EXPECT_TRUE(Find<QTableWidget>("ChannelGrid")->hasFocus());
}

TEST_F(SaveCommandsTest, CtrlShiftSSavesUnderAnotherName) {
    OpenMainWindow();
    document.Rename(PathOf("First.dat"));
    fakes.files.ExpectSave({PathOf("First.dat"), Filter, ""}, PathOf("Second.dat"));
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Content(PathOf("Second.dat")), FileOfTheImage());
    EXPECT_FALSE(QFile::exists(directory.filePath("First.dat")));
}

} // namespace
} // namespace zelvor
