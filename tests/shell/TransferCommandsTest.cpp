#include <QDialog>
#include <QMdiSubWindow>
#include <QTableWidget>
#include <QTimer>
#include <algorithm>

#include "link/ScriptedRadio.h"
#include "platform/DataFiles.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

const Message ReadDone{"", "Reading Completed", MessageIcon::Information, MessageButtons::Ok, MessageAnswer::Ok};
const Message WriteDone{"", "Writing Completed", MessageIcon::Information, MessageButtons::Ok, MessageAnswer::Ok};
const Message NoAnswer{"Error", "please check all connections and communication port settings.", MessageIcon::Critical,
                       MessageButtons::RetryCancel, MessageAnswer::Retry};

class TransferCommandsTest : public ShellTest {
protected:
    /// Presses cmdOK and lets the transfer run to its end.
    void Transfer(const std::string& entry) {
        ChooseDialog(entry, [this](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName(), "ConnectForm");
            Click(dialog, "cmdOK");
            fakes.clock.Advance(10000);
        });
    }

    /// A radio of model 5618, market M, with channel 1 on 450.12500 MHz, receive only.
    void ConnectRadio() {
        radio_.Memory.fill(0xFF);
        radio_.Identity = {0x50, 0x35, 0x36, 0x31, 0x38, 33, 0xF8, 0xFF};
        std::copy(radio_.Identity.begin(), radio_.Identity.end(), radio_.Memory.begin() + 0x1B8);
        const std::array<std::uint8_t, 8> frequencies{0x00, 0x25, 0x01, 0x45, 0, 0, 0, 0};
        std::copy(frequencies.begin(), frequencies.end(), radio_.Memory.begin() + 0x010);
        fakes.ports.OnMake = [this](FakeSerialPort& port) { radio_.Attach(port); };
    }

    [[nodiscard]] QMdiSubWindow* GridFrame() const {
        return qobject_cast<QMdiSubWindow*>(Child("ChannelForm")->parentWidget());
    }

    using Names = std::vector<std::string>;

    /// The image in a backup; all 0xFF where there is none.
    [[nodiscard]] DataImage Backup(const std::string& name) {
        return ReadDataFile(fakes.store, "/backups/" + name).image;
    }

    ScriptedRadio radio_{fakes.clock, fakes.ports};
};

TEST_F(TransferCommandsTest, AReadBecomesANewDocumentThatCountsAsChanged) {
    OpenMainWindow();
    ConnectRadio();
    document.Rename("/somewhere/Other.dat");
    document.Priority.SetError(true);
    document.Flags.OwnIdError = document.Flags.TxCodeError = true;
    fakes.messages.Expect(ReadDone, MessageAnswer::Ok);
    Transfer("MnuProgramRead");
    EXPECT_EQ(document.Image.At(0x1BD), 33);
    EXPECT_EQ(Find<QTableWidget>("ChannelGrid")->item(0, 0)->text(), "450.12500");
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(window->windowTitle(), "Zelvor [5618: UHF: 450-490 MHz(M)] [ File Name:Zelvor.dat]");
    EXPECT_TRUE(document.IsDocumentChanged());
    EXPECT_FALSE(document.Priority.PriorityChannelError());
    EXPECT_FALSE(document.Flags.OwnIdError);
    EXPECT_FALSE(document.Flags.TxCodeError);
}

TEST_F(TransferCommandsTest, AReadThenExitOffersToSave) {
    OpenMainWindow();
    ConnectRadio();
    fakes.messages.Expect(ReadDone, MessageAnswer::Ok);
    Transfer("MnuProgramRead");
    fakes.messages.Expect({"Confirmation", "Do you wish to exit Zelvor program？", MessageIcon::Question,
                           MessageButtons::YesNo, MessageAnswer::Yes},
                          MessageAnswer::Yes);
    fakes.messages.Expect({"Zelvor", "Do you wish to save the changes in \"Zelvor.DAT\" ?", MessageIcon::Exclamation,
                           MessageButtons::YesNoCancel, MessageAnswer::Yes},
                          MessageAnswer::Cancel);
    EXPECT_FALSE(window->close());
}

TEST_F(TransferCommandsTest, AReadClosesTheEditorsAndPlacesTheGrid) {
    OpenMainWindow();
    ConnectRadio();
    Choose("MnuViewTreeView");
    GridFrame()->move(90, 40);
    GridFrame()->showMinimized();
    fakes.messages.Expect(ReadDone, MessageAnswer::Ok);
    Transfer("MnuProgramRead");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Navigator));
    EXPECT_FALSE(GridFrame()->isMinimized());
    EXPECT_EQ(GridFrame()->pos(), QPoint(0, 0));
}

TEST_F(TransferCommandsTest, ATransferShowsAndListsAGridThatWasClosed) {
    OpenMainWindow();
    ConnectRadio();
    CloseFrame("ChannelForm");
    windows.Cursor.SetCurrentChannel(7);
    fakes.messages.Expect(ReadDone, MessageAnswer::Ok);
    Transfer("MnuProgramRead");
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Channels));
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 1 ]");
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 1);
}

TEST_F(TransferCommandsTest, AFailedReadClosesTheEditorsAsWell) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    fakes.messages.Expect(NoAnswer, MessageAnswer::Cancel);
    Transfer("MnuProgramRead");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST_F(TransferCommandsTest, CancelBeforeTheTransferKeepsTheEditors) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    GridFrame()->move(90, 40);
    ChooseDialog("MnuProgramRead", [](QWidget& dialog) { Click(dialog, "cmdCancel"); });
    EXPECT_TRUE(IsChildShown("TreeViewForm"));
    EXPECT_EQ(GridFrame()->pos(), QPoint(90, 40));
}

TEST_F(TransferCommandsTest, ReadAndWriteStartFromTheToolbarAsWell) {
    OpenMainWindow();
    QStringList captions;
    for (const int index : {7, 9}) {
        QTimer::singleShot(0, window.get(), [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            captions.append(dialog->windowTitle());
            Click(*dialog, "cmdCancel");
        });
        ClickToolbar(index);
    }
    EXPECT_EQ(captions, QStringList({"Read data from radio", "Write data to radio"}));
}

TEST_F(TransferCommandsTest, AWriteLeavesTheDocumentItsNameAndClearsTheComplaints) {
    OpenMainWindow();
    ConnectRadio();
    document.Image.Set(0x1BD, 33);
    document.Rename("/somewhere/Other.dat");
    fakes.messages.Expect(WriteDone, MessageAnswer::Ok);
    Transfer("MnuProgramWrite");
    EXPECT_EQ(document.FileName(), "/somewhere/Other.dat");
    EXPECT_EQ(fakes.ports.Record("MSComm1").sent.empty(), false);
}

TEST_F(TransferCommandsTest, AWriteIsRefusedWhileAnEditorsSettingIsIncorrect) {
    OpenMainWindow();
    document.Priority.SetError(true);
    fakes.messages.Expect({"Error", "The following setting is incorrect.\r\n\r\n\"Priority Channel\"",
                           MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok},
                          MessageAnswer::Ok);
    Choose("MnuProgramWrite");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(fakes.ports.Record("MSComm1").log.empty());
}

TEST_F(TransferCommandsTest, AReadIsKeptAsABackupOnceTheUserHasSeenItsEnd) {
    OpenMainWindow();
    ConnectRadio();
    radio_.Memory[0x3FF] = 0x5A;
    fakes.clock.SetNow({2026, 11, 22, 1, 45, 2});
    fakes.messages.Expect(ReadDone, [this] {
        EXPECT_EQ(fakes.backups.FileNames(), Names{});
        return MessageAnswer::Ok;
    });
    Transfer("MnuProgramRead");
    EXPECT_EQ(fakes.backups.FileNames(), Names{"2026-11-22T014502-5618-M-read.dat"});
    const DataImage::Bytes kept = Backup("2026-11-22T014502-5618-M-read.dat").ToAddressOrder();
    EXPECT_TRUE(std::equal(kept.begin(), kept.end(), radio_.Memory.begin()));
}

TEST_F(TransferCommandsTest, AWriteIsKeptAsABackupBeforeItsPortIsOpened) {
    OpenMainWindow();
    ConnectRadio();
    document.Image.Set(0x1BD, 33);
    document.Image.Set(0x01C, 0x77); // a write sets this byte in the document
    const DataImage before = document.Image;
    fakes.clock.SetNow({2026, 11, 22, 1, 45, 2});
    Names logWhenKept;
    fakes.backups.OnHold = [&] { logWhenKept = fakes.ports.Record("MSComm1").log; };
    fakes.messages.Expect(WriteDone, MessageAnswer::Ok);
    Transfer("MnuProgramWrite");
    EXPECT_EQ(fakes.backups.FileNames(), Names{"2026-11-22T014502-5618-M-write.dat"});
    EXPECT_EQ(Backup("2026-11-22T014502-5618-M-write.dat"), before);
    ASSERT_FALSE(logWhenKept.empty());
    EXPECT_EQ(logWhenKept.back(), "close");
    EXPECT_EQ(std::count(logWhenKept.begin(), logWhenKept.end(), "open"), 1); // the dialog's trial
}

TEST_F(TransferCommandsTest, ARetriedWriteIsKeptOnce) {
    OpenMainWindow();
    ConnectRadio();
    document.Image.Set(0x1BD, 33);
    radio_.Spoil(9, Fault::Drop);
    fakes.messages.Expect(NoAnswer, MessageAnswer::Retry);
    fakes.messages.Expect(WriteDone, MessageAnswer::Ok);
    Transfer("MnuProgramWrite");
    EXPECT_EQ(radio_.FaultsFired(), 1);
    EXPECT_EQ(fakes.backups.FileNames().size(), 1U);
}

TEST_F(TransferCommandsTest, NothingIsKeptOfATransferThatDoesNotBegin) {
    OpenMainWindow();
    for (const char* entry : {"MnuProgramRead", "MnuProgramWrite"}) {
        ChooseDialog(entry, [](QWidget& dialog) { Click(dialog, "cmdCancel"); });
    }
    EXPECT_EQ(fakes.backups.FileNames(), Names{});
}

TEST_F(TransferCommandsTest, NothingIsKeptOfAReadThatFails) {
    OpenMainWindow();
    ConnectRadio();
    radio_.Spoil(20, Fault::Drop);
    fakes.messages.Expect(NoAnswer, MessageAnswer::Cancel);
    Transfer("MnuProgramRead");
    EXPECT_EQ(fakes.backups.FileNames(), Names{});
}

TEST_F(TransferCommandsTest, ABackupThatCannotBeKeptChangesNothing) {
    OpenMainWindow();
    ConnectRadio();
    fakes.messages.Expect(ReadDone, MessageAnswer::Ok);
    Transfer("MnuProgramRead");
    const Names readLog = fakes.ports.Record("MSComm1").log;
    fakes.messages.Expect(WriteDone, MessageAnswer::Ok);
    Transfer("MnuProgramWrite");
    const Names writeLog = fakes.ports.Record("MSComm1").log;
    fakes.backups.Refuse();
    fakes.messages.Expect(ReadDone, MessageAnswer::Ok);
    Transfer("MnuProgramRead");
    EXPECT_EQ(fakes.ports.Record("MSComm1").log, readLog);
    fakes.messages.Expect(WriteDone, MessageAnswer::Ok);
    Transfer("MnuProgramWrite");
    EXPECT_EQ(fakes.ports.Record("MSComm1").log, writeLog);
    EXPECT_EQ(fakes.backups.FileNames().size(), 2U);
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
}

} // namespace
} // namespace zelvor
