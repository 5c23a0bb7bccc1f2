#include "shell/FileCommandsTest.h"

namespace zelvor {
namespace {

const Message NewQuestion{"Warning", "All data will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                          MessageAnswer::Cancel};
const Message NewQuestionInChinese{"警告", "所有数据将被清除.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                                   MessageAnswer::Cancel};
const Message WrongFile{"Error", "Incorrect File Type.", MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok};
const Message WrongFileInChinese{"错误", "文件类型不正确。", MessageIcon::Critical, MessageButtons::Ok,
                                 MessageAnswer::Ok};

constexpr int FleetByte = 0x170;
constexpr int IdByte = 0x172;
constexpr int PttIdTypeByte = 0x133;

class DocumentCommandsTest : public FileCommandsTest {
protected:
    /// Head, then a memory of 0xFF with model 5618, market M, and channel 1 on 450.12500 MHz, receive only.
    [[nodiscard]] static QByteArray FileOfModel5618() {
        QByteArray bytes("RQ6152");
        bytes.append(10, '\xFF').append(1024, '\xFF');
        bytes[16 + 0x1BD] = 33;
        bytes[16 + 0x1BE] = '\xF8';
        bytes.replace(16 + 0x010, 4, QByteArray::fromHex("00250145"));
        bytes.replace(16 + 0x014, 4, QByteArray::fromHex("00000000"));
        return bytes;
    }

    std::string WriteFile(const char* name, const QByteArray& bytes) {
        fakes.store.Put(PathOf(name), bytes.toStdString());
        return PathOf(name);
    }

    void Open(const std::string& path) {
        fakes.files.ExpectOpen({"", "QPK Data Files(*.dat)|*.dat", Commands().LastDirectory()}, path);
        Choose("MnuFileOpen");
    }

    [[nodiscard]] QString Cell(int row, int column) const {
        const QTableWidgetItem* item = Find<QTableWidget>("ChannelGrid")->item(row - 1, column - 1);
        return item == nullptr ? QString() : item->text();
    }
};

// New

TEST_F(DocumentCommandsTest, NewAsksAndClearsEverything) {
    OpenMainWindow();
    FillImage();
    document.Rename("/somewhere/Other.dat");
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    Choose("MnuFileNew");
    for (int k = 1; k <= 16; ++k) {
        for (int j = 0; j < 16; ++j) {
            ASSERT_EQ(document.Image.At(k * 16 + j), 0xFF) << "channel " << k << " byte " << j;
        }
    }
    EXPECT_EQ(document.Image.At(0x1BD), 1);
    EXPECT_EQ(document.Image.At(0x1BE), 0xF8);
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
    EXPECT_FALSE(document.IsDocumentChanged());
}

TEST_F(DocumentCommandsTest, NewIsAskedInChinese) {
    OpenMainWindowInChinese();
    fakes.messages.Expect(NewQuestionInChinese, MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " 信道信息 [ 信道 - 1 ]");
}

TEST_F(DocumentCommandsTest, NewCancelledChangesNothing) {
    OpenMainWindow();
    FillImage();
    const DataImage before = document.Image;
    document.Rename("/somewhere/Other.dat");
    Choose("MnuViewTreeView");
    fakes.messages.Expect(NewQuestion, MessageAnswer::Cancel);
    Choose("MnuFileNew");
    EXPECT_EQ(document.Image, before);
    EXPECT_EQ(document.FileName(), "/somewhere/Other.dat");
    EXPECT_TRUE(IsChildShown("TreeViewForm"));
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 1 ]");
}

TEST_F(DocumentCommandsTest, NewNeverOffersToSaveAChangedDocument) {
    OpenMainWindow();
    document.Image.Set(0x100, 0x12);
    ASSERT_TRUE(document.IsDocumentChanged());
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    ClickToolbar(1);
    EXPECT_EQ(fakes.messages.Shown().size(), 1U);
    EXPECT_FALSE(document.IsDocumentChanged());
}

TEST_F(DocumentCommandsTest, NewListsTheGridWithoutBlanksRoundTheDash) {
    OpenMainWindow();
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel-1 ]");
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isVisible());
}

TEST_F(DocumentCommandsTest, NewListsTheGridSoWhereverTheCursorWas) {
    OpenMainWindow();
    Find<QTableWidget>("ChannelGrid")->setCurrentCell(4, 6);
    ASSERT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 5 ]");
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel-1 ]");
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 1);
    EXPECT_EQ(windows.Cursor.CurrentCol(), 1);
}

TEST_F(DocumentCommandsTest, NewClosesTheNavigatorAndPutsTheGridInItsPlace) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    auto* frame = qobject_cast<QMdiSubWindow*>(Child("ChannelForm")->parentWidget());
    frame->showMaximized();
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Navigator));
    EXPECT_FALSE(frame->isMaximized());
    EXPECT_EQ(frame->pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST_F(DocumentCommandsTest, NewBringsBackAMinimisedAndMovedGrid) {
    OpenMainWindow();
    auto* frame = qobject_cast<QMdiSubWindow*>(Child("ChannelForm")->parentWidget());
    frame->move(120, 60);
    frame->showMinimized();
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_FALSE(frame->isMinimized());
    EXPECT_EQ(frame->pos(), QPoint(0, 0));
}

TEST_F(DocumentCommandsTest, NewShowsAHiddenGridAndTheWindowMenu) {
    OpenMainWindow();
    CloseFrame("ChannelForm");
    ASSERT_FALSE(Entry("MnuWindow")->isVisible());
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isVisible());
}

TEST_F(DocumentCommandsTest, NewHidesAnOpenCellEditor) {
    OpenMainWindow();
    const QWidget* editor = TypeIntoFirstCell("145");
    fakes.messages.Expect(NewQuestion, MessageAnswer::Ok);
    QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(document.Image.At(0x010), 0xFF);
}

// Open

TEST_F(DocumentCommandsTest, OpenTakesTheFileAsTheDocument) {
    OpenMainWindow();
    const std::string path = WriteFile("Fleet.dat", FileOfModel5618());
    Open(path);
    EXPECT_EQ(document.Image.At(0x1BD), 33);
    EXPECT_EQ(document.Image.At(0x010), 0x00);
    EXPECT_EQ(document.Image.At(0x013), 0x45);
    EXPECT_EQ(document.FileName(), path);
    EXPECT_EQ(window->windowTitle(), "Zelvor [5618: UHF: 450-490 MHz(M)] [ File Name:Fleet.dat]");
    EXPECT_FALSE(document.IsDocumentChanged());
    EXPECT_EQ(Cell(1, 1), "450.12500");
    EXPECT_EQ(Cell(2, 1), "");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel-1 ]");
    EXPECT_EQ(Find<QTableWidget>("ChannelGrid")->currentRow(), 0);
    EXPECT_EQ(Find<QTableWidget>("ChannelGrid")->currentColumn(), 0);
}

TEST_F(DocumentCommandsTest, OpenRemembersTheFolderOfTheFile) {
    OpenMainWindow();
    Open(WriteFile("Fleet.dat", FileOfModel5618()));
    EXPECT_EQ(Commands().LastDirectory(), QDir(directory.path()).canonicalPath().toStdString());
    fakes.files.ExpectOpen({"", "QPK Data Files(*.dat)|*.dat", Commands().LastDirectory()}, std::nullopt);
    ClickToolbar(2);
}

TEST_F(DocumentCommandsTest, OpenUsesTheChineseFilterInChinese) {
    OpenMainWindowInChinese();
    fakes.files.ExpectOpen({"", "QPK 数据文件 (*.dat)|*.dat", ""}, WriteFile("车队.dat", FileOfModel5618()));
    Choose("MnuFileOpen");
    EXPECT_EQ(window->windowTitle(), "Zelvor [5618: UHF: 450-490 MHz(M)] [ 文件名:车队.dat]");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " 信道信息 [ 信道 - 1 ]");
}

TEST_F(DocumentCommandsTest, OpenCancelledChangesNothing) {
    OpenMainWindow();
    FillImage();
    const DataImage before = document.Image;
    Choose("MnuViewTreeView");
    fakes.files.ExpectOpen({"", "QPK Data Files(*.dat)|*.dat", ""}, std::nullopt);
    Choose("MnuFileOpen");
    EXPECT_EQ(document.Image, before);
    EXPECT_TRUE(IsChildShown("TreeViewForm"));
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 1 ]");
}

TEST_F(DocumentCommandsTest, AFileWithAnotherHeadIsRefusedAfterTheChildWindowsAreClosed) {
    OpenMainWindow();
    FillImage();
    const DataImage image = document.Image;
    const DataImage saved = document.Snapshot();
    Choose("MnuViewTreeView");
    fakes.messages.Expect(WrongFile, MessageAnswer::Ok);
    Open(WriteFile("Wrong.dat", FileOfModel5618().replace(0, 6, "RQ6153")));
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_EQ(document.Image, image);
    EXPECT_EQ(document.Snapshot(), saved);
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(Commands().LastDirectory(), "");
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST_F(DocumentCommandsTest, AFileOfWrongLengthIsRefused) {
    OpenMainWindow();
    const DataImage before = document.Image;
    for (const int length : {0, 6, 16, 1039, 1041}) {
        SCOPED_TRACE(length);
        fakes.messages.Expect(WrongFile, MessageAnswer::Ok);
        Open(WriteFile("Wrong.dat", FileOfModel5618().leftJustified(length, '\0', true)));
        EXPECT_EQ(document.Image, before);
    }
}

TEST_F(DocumentCommandsTest, AWrongFileIsRefusedInChinese) {
    OpenMainWindowInChinese();
    fakes.messages.Expect(WrongFileInChinese, MessageAnswer::Ok);
    fakes.files.ExpectOpen({"", "QPK 数据文件 (*.dat)|*.dat", ""}, WriteFile("Wrong.dat", "x"));
    Choose("MnuFileOpen");
}

TEST_F(DocumentCommandsTest, AFileRemovedMeanwhileIsNoMessageAndNoChange) {
    OpenMainWindow();
    FillImage();
    const DataImage before = document.Image;
    Choose("MnuViewTreeView");
    Open(PathOf("Gone.dat"));
    EXPECT_TRUE(fakes.messages.Shown().empty());
    EXPECT_EQ(document.Image, before);
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
}

TEST_F(DocumentCommandsTest, ADirectoryInPlaceOfAFileIsNoChange) {
    OpenMainWindow();
    const DataImage before = document.Image;
    Open(directory.path().toStdString());
    EXPECT_EQ(document.Image, before);
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
}

// The pending complaint about the own ID

struct OwnIdCase {
    int fleet;
    int id;
    int pttIdType;
    bool stays;
};

TEST_F(DocumentCommandsTest, OpenReviewsTheComplaintAboutTheOwnId) {
    OpenMainWindow();
    const std::vector<OwnIdCase> cases{
        {0, 10, 1, true},   {255, 10, 1, true}, {5, 255, 1, true},    {5, 10, 1, false},   {5, 254, 1, false},
        {254, 0, 1, false}, {0, 255, 0, false}, {255, 255, 2, false}, {0, 10, 255, false},
    };
    for (const OwnIdCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.fleet << " " << c.id << " " << c.pttIdType);
        QByteArray bytes = FileOfModel5618();
        bytes[16 + FleetByte] = static_cast<char>(c.fleet);
        bytes[16 + IdByte] = static_cast<char>(c.id);
        bytes[16 + PttIdTypeByte] = static_cast<char>(c.pttIdType);
        document.Flags.OwnIdError = true;
        Open(WriteFile("OwnId.dat", bytes));
        EXPECT_EQ(document.Flags.OwnIdError, c.stays);
    }
}

TEST_F(DocumentCommandsTest, OpenNeverRaisesAComplaint) {
    OpenMainWindow();
    QByteArray bytes = FileOfModel5618();
    bytes[16 + PttIdTypeByte] = 1;
    Open(WriteFile("OwnId.dat", bytes));
    EXPECT_FALSE(document.Flags.OwnIdError);
}

} // namespace
} // namespace zelvor
