#include "ChannelEditFixture.h"

#include <QSignalSpy>

namespace zelvor {
namespace {

using Cells = std::vector<std::string>;

TEST_F(ChannelEditTest, OpeningAndClosingLeavesAConsistentImageAsItWas) {
    for (const auto& record : {SimplexRecord, OtherRecord}) {
        for (const Language language : {Language::English, Language::Chinese}) {
            PutAll(record);
            document.Image.Set(0x17E, 0xA5);
            document.Image.Set(0x17F, 0x3C);
            const DataImage before = document.Image;
            for (int k = 1; k <= 16; ++k) {
                ShowBoth(k, language);
                Close();
                ASSERT_EQ(document.Image, before) << k;
            }
            EXPECT_EQ(unloads, 16);
            Restart();
            unloads = 0;
        }
    }
}

TEST_F(ChannelEditTest, OpeningNeverChangesAByteWhateverTheRecordHolds) {
    for (int value = 0; value < 256; ++value) {
        PutAll(SimplexWith(12, value));
        PutRecord(2, SimplexWith(13, value));
        PutRecord(3, SimplexWith(14, value));
        PutRecord(4, SimplexWith(15, value));
        const DataImage before = document.Image;
        if (value == 0) {
            ShowBoth();
        }
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        for (int k = 1; k <= 4; ++k) {
            dialog->GoToChannel(k);
        }
        ASSERT_EQ(document.Image, before) << value;
    }
}

TEST_F(ChannelEditTest, ClosingRewritesWhatTheEncoderCarriesOverAndFixes) {
    // Exceptions to "closing changes nothing": bits 5 to 7 of byte 12 come from the channel decoded last, byte 13 gets
    // its fixed bits, byte 14 its canonical form, byte 15 the bits above its three.
    PutAll(SimplexWith(12, 0xA0));
    auto record = SimplexWith(12, 0x4B);
    record[13] = 0x30;
    record[14] = 0xFF;
    record[15] = 0x03;
    PutRecord(1, record);
    ShowBoth();
    Close();
    EXPECT_EQ(Record(1), (std::vector<int>{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0xAB,
                                           0xBF, 0xB1, 0xFB}));
}

TEST_F(ChannelEditTest, ClosingOnABlankChannelWritesItsEmptyTexts) {
    // Exceptions once more: a blank channel's empty texts are no frequency and the tone word 00 00, and its Scan Add
    // mark goes.
    PutAll(SimplexRecord);
    PutRecord(2, {0x12, 0x34, 0x56, 0xFF, 0x11, 0x22, 0x33, 0x44, 0xE8, 0x03, 0x13, 0xA8, 0xFF, 0xFF, 0xFF, 0xFF});
    document.Image.Set(0x17E, 0xFF);
    const DataImage before = document.Image;
    ShowBoth(2);
    EXPECT_EQ(document.Image, before);
    Close();
    EXPECT_EQ(Record(2), (std::vector<int>{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x19,
                                           0xFF, 0xB0, 0xFF}));
    EXPECT_EQ(document.Image.At(0x17E), 0xFD);
    EXPECT_EQ(Row(2), Cells(9, ""));
}

TEST_F(ChannelEditTest, TheButtonCommitsAnEditThatIsStillOpen) {
    PutAll(SimplexRecord);
    ShowBoth();
    Enter("txtTxFreq");
    Type("146");
    In<QPushButton>("cmdOK").click(); // as its access key does: the focus stays in the box
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(Cell(1, 2), "146.00000");
    EXPECT_EQ(Byte(1, 6), 0x60);
    EXPECT_FALSE(windows.IsOpen(ChildWindow::ChannelEdit));
}

TEST_F(ChannelEditTest, ClosingTheFrameCommitsTheOpenEditAndNothingElse) {
    PutAll(SimplexRecord);
    ShowBoth();
    Pick("ComTxPower", 1);
    dialog->CloseFromFrame();
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(Byte(1, 13), 0xBF); // only a commit would write it
    EXPECT_EQ(Cell(1, 5), "Low");
}

TEST_F(ChannelEditTest, AnEditThatIsOpenWhenTheDialogIsUnloadedIsDropped) {
    PutAll(SimplexRecord);
    ShowBoth();
    const DataImage before = document.Image;
    Enter("txtRxFreq");
    Type("9");
    dialog.reset();
    EXPECT_EQ(document.Image, before);
}

TEST_F(ChannelEditTest, ADialogThatNoLongerCountsAsOpenStoresNothing) {
    PutAll(SimplexRecord);
    ShowBoth();
    Enter("txtRxFreq");
    Type("9");
    const DataImage before = document.Image;
    windows.SetOpen(ChildWindow::ChannelEdit, false); // as the main window does before it hides the dialog
    dialog->hide();
    EXPECT_EQ(document.Image, before);
}

TEST_F(ChannelEditTest, TheDialogGoesWithTheGrid) {
    ShowBoth();
    const QSignalSpy unloaded(form.get(), &ChannelForm::ChannelEditUnloadRequested);
    windows.ExitConfirmed = true;
    form->CloseFromFrame();
    EXPECT_EQ(unloaded.count(), 1);
}

} // namespace
} // namespace zelvor
