#include "ChannelEditFixture.h"
#include "channels/ScanForm.h"

namespace zelvor {
namespace {

using Texts = std::vector<std::string>;

TEST_F(ChannelEditTest, ATonePlusASignallingOffersThreeAndFourEntries) {
    PutAll(SimplexRecord);
    ShowBoth();
    Pick("ComDecode", 1);
    EXPECT_EQ(Entries("ComSPMute"), (Texts{"QT/DQT"}));
    EXPECT_EQ(Entries("ComBusyLock"), (Texts{"Off", "Carrier", "QT/DQT"}));
    Pick("ComSelSignal", 1);
    EXPECT_EQ(Entries("ComSPMute"), (Texts{"QT/DQT", "QT/DQT + Opt.Sig.", "QT/DQT or Opt.Sig."}));
    EXPECT_EQ(Entries("ComBusyLock"), (Texts{"Off", "Carrier", "QT/DQT", "Option Signalling"}));
    Pick("ComDecode", 0);
    EXPECT_EQ(Entries("ComSPMute"), (Texts{"Carrier", "Carrier + Opt.Sig.", "Carrier or Opt.Sig."}));
    EXPECT_EQ(Entries("ComBusyLock"), (Texts{"Off", "Carrier", "Option Signalling"}));
    Pick("ComSelSignal", 0);
    EXPECT_EQ(Entries("ComSPMute"), (Texts{"Carrier"}));
    EXPECT_EQ(Entries("ComBusyLock"), (Texts{"Off", "Carrier"}));
}

TEST_F(ChannelEditTest, RemovingTheSignallingTakesOptionSignallingBackToOff) {
    PutAll(OtherRecord);
    ShowBoth();
    EXPECT_EQ(Shown("ComBusyLock"), "Option Signalling");
    EXPECT_EQ(Byte(1, 12) & 0x18, 0x18);
    Pick("ComSelSignal", 0);
    EXPECT_EQ(Combo("ComBusyLock").count(), 3);
    EXPECT_EQ(Combo("ComBusyLock").currentIndex(), 0);
    EXPECT_EQ(Byte(1, 12) & 0x18, 0x00);
    EXPECT_EQ(document.Channels.Texts().BusyLockText, "Off");
}

TEST_F(ChannelEditTest, OptionSignallingWithoutAToneIsStoredLikeQtDqtWithOne) {
    PutAll(SimplexWith(12, 0x02)); // DTMF
    ShowBoth();
    Pick("ComBusyLock", 2);
    EXPECT_EQ(Shown("ComBusyLock"), "Option Signalling");
    EXPECT_EQ(Byte(1, 12) & 0x18, 16);
    Pick("ComDecode", 1);
    Close();
    ClickChannelEdit();
    EXPECT_EQ(Shown("ComBusyLock"), "QT/DQT");
}

TEST_F(ChannelEditTest, SpUnmuteIsStoredByItsPlace) {
    PutAll(SimplexWith(12, 0x9B)); // DTMF, busy lock 24, all other bits but SP Unmute's
    ShowBoth();
    constexpr int stored[] = {0x9B, 0xBB, 0xDB};
    Pick("ComDecode", 1);
    for (const int entry : {1, 2, 0}) {
        Pick("ComSPMute", entry);
        EXPECT_EQ(Byte(1, 12), stored[entry]);
    }
    EXPECT_EQ(document.Channels.Texts().SpMuteText, "QT/DQT");
}

TEST_F(ChannelEditTest, BusyLockIsStoredByItsPlace) {
    auto record = OtherRecord;
    record[12] = 0xA3;
    PutAll(record);
    ShowBoth();
    constexpr int stored[] = {0xA3, 0xAB, 0xB3, 0xBB};
    const char* texts[] = {"Off", "Carrier", "QT/DQT", "Option Signalling"};
    for (const int entry : {1, 2, 3, 0}) {
        Pick("ComBusyLock", entry);
        EXPECT_EQ(Byte(1, 12), stored[entry]);
        EXPECT_EQ(document.Channels.Texts().BusyLockText, texts[entry]);
    }
}

TEST_F(ChannelEditTest, AListLeftWithoutASelectionOverwritesTheWholeByte) {
    PutAll(SimplexWith(12, 0x60));
    ShowBoth();
    EXPECT_EQ(Combo("ComSPMute").currentIndex(), -1);
    EXPECT_EQ(Byte(1, 12), 0x60);
    Enter("ComSPMute");
    EXPECT_EQ(Byte(1, 12), 0x60);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Byte(1, 12), 0xFF);
}

TEST_F(ChannelEditTest, SettingAListFromCodeStoresLikeAUsersChoice) {
    PutAll(OtherRecord);
    ShowBoth();
    Combo("ComBusyLock").setCurrentIndex(1);
    EXPECT_EQ(Byte(1, 12), 0x2B);
    Combo("ComBusyLock").setCurrentIndex(-1);
    EXPECT_EQ(Byte(1, 12), 0xFF);
    Combo("ComAutoDial").setCurrentIndex(6);
    EXPECT_EQ(Byte(1, 15), 0xFE);
}

TEST_F(ChannelEditTest, AutodialIs248PlusItsPlace) {
    PutAll(SimplexRecord);
    ShowBoth();
    constexpr int stored[] = {0xF8, 0xF9, 0xFA, 0xFB, 0xFC, 0xFD, 0xFE, 0xFF};
    for (const int entry : {7, 6, 5, 4, 3, 2, 1, 0}) {
        Pick("ComAutoDial", entry);
        EXPECT_EQ(Byte(1, 15), stored[entry]);
    }
    EXPECT_EQ(document.Channels.Texts().AutoDialText, "1");
    Combo("ComAutoDial").setCurrentIndex(-1);
    EXPECT_EQ(Byte(1, 15), 0xF8);
}

TEST_F(ChannelEditTest, BeatShiftAndCompanderAreOneBitEach) {
    PutAll(SimplexRecord);
    ShowBoth();
    Enter("ChkShift");
    Key(Qt::Key_Space);
    EXPECT_EQ(Byte(1, 13), 0xFF);
    EXPECT_TRUE(document.Channels.Texts().BeatShiftFlag);
    Key(Qt::Key_Space);
    EXPECT_EQ(Byte(1, 13), 0xBF);
    EXPECT_FALSE(document.Channels.Texts().BeatShiftFlag);
    Enter("ChkYaKuo");
    Key(Qt::Key_Space);
    EXPECT_EQ(Byte(1, 12), 0x01);
    EXPECT_TRUE(document.Channels.Texts().CompanderFlag);
    Key(Qt::Key_Space);
    EXPECT_EQ(Byte(1, 12), 0x00);
}

TEST_F(ChannelEditTest, ScanAddIsTheChannelsBitAndTheGridsColumn) {
    struct Row {
        int k;
        int address;
        int bit;
    };
    const Row rows[] = {{1, 0x17E, 0x01}, {8, 0x17E, 0x80}, {9, 0x17F, 0x01}, {16, 0x17F, 0x80}};
    PutAll(SimplexRecord);
    ShowBoth();
    for (const Row& row : rows) {
        GoToChannel(row.k);
        Enter("ChkScanAdd");
        Key(Qt::Key_Space);
        EXPECT_EQ(document.Image.At(row.address) & row.bit, row.bit) << row.k;
        EXPECT_EQ(Cell(row.k, 7), "Yes");
        Key(Qt::Key_Space);
        EXPECT_EQ(document.Image.At(row.address) & row.bit, 0) << row.k;
        EXPECT_EQ(Cell(row.k, 7), "No");
    }
}

TEST_F(ChannelEditTest, PowerWidthAndPttIdReachTheRecordWithTheNextCommit) {
    PutAll(SimplexRecord);
    ShowBoth();
    Pick("ComTxPower", 1);
    Pick("ComWideNarrow", 0);
    EXPECT_EQ(Cell(1, 5), "Low");
    EXPECT_EQ(Cell(1, 6), "Narrow");
    EXPECT_EQ(Byte(1, 13), 0xBF);
    Pick("ComPTTID", 1);
    EXPECT_EQ(Cell(1, 9), "On");
    Close();
    EXPECT_EQ(Byte(1, 13), 0x8F);
    EXPECT_EQ(Byte(1, 14), 0xB1);
    EXPECT_TRUE(document.Flags.TxCodeError);
}

TEST_F(ChannelEditTest, LeavingTheSignallingCommitsIt) {
    PutAll(SimplexRecord);
    ShowBoth();
    Pick("ComSelSignal", 2);
    EXPECT_EQ(Cell(1, 8), "Corvane");
    EXPECT_EQ(Byte(1, 12), 0x00);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Byte(1, 12), 0x04);
}

TEST_F(ChannelEditTest, TakingTheFocusSetsTheLowBitOfADtmfPttId) {
    PutAll(SimplexRecord);
    ShowBoth();
    Enter("ComPTTID");
    EXPECT_EQ(Byte(1, 14), 0xB1);
    EXPECT_EQ(Shown("ComPTTID"), "Off"); // whatever is selected
    EXPECT_EQ(Entries("ComPTTID"), (Texts{"Off", "On"}));
    EXPECT_EQ(Cell(1, 9), "Off");
}

TEST_F(ChannelEditTest, AnEmptyDtmfPttIdShowsOnWhenItTakesTheFocus) {
    PutAll(SimplexRecord);
    ShowBoth();
    Combo("ComPTTID").setCurrentIndex(-1);
    Enter("ComPTTID");
    EXPECT_EQ(Shown("ComPTTID"), "On");
    EXPECT_EQ(Entries("ComPTTID"), (Texts{"Off", "On"}));
    EXPECT_EQ(Cell(1, 9), "On");
}

TEST_F(ChannelEditTest, ACorvanePttIdShowsTheRecordWhenItTakesTheFocus) {
    document.Image.Set(0x133, 1);
    ShowBoth();
    for (int nibble = 0; nibble < 16; ++nibble) {
        PutAll(SimplexWith(14, 0xB0));
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        Enter("txtChannel");
        document.Image.Set(0x1E, static_cast<std::uint8_t>(0xB0 + nibble));
        Enter("ComPTTID");
        EXPECT_EQ(Shown("ComPTTID"), CorvanePttIds[nibble]);
        EXPECT_EQ(Combo("ComPTTID").count(), 10);
        EXPECT_EQ(Byte(1, 14), 0xB0 + nibble);
    }
}

TEST_F(ChannelEditTest, AnUnknownPttIdTypeEmptiesTheList) {
    PutAll(SimplexRecord);
    document.Image.Set(0x133, 7);
    ShowBoth();
    Enter("ComPTTID");
    EXPECT_EQ(Combo("ComPTTID").count(), 0);
    EXPECT_EQ(Combo("ComPTTID").currentIndex(), -1);
    EXPECT_EQ(Byte(1, 14), 0xB0);
}

TEST_F(ChannelEditTest, MarkingAnotherPriorityChannelMovesTheMark) {
    PutAll(SimplexRecord);
    document.Priority.SetMode(true, document.Image);
    document.Priority.SetError(true);
    document.Image.Set(0x161, 0x09);
    ShowBoth(3);
    ASSERT_TRUE(Check("ChkPriorityChannel").isEnabled());
    Enter("ChkPriorityChannel");
    Key(Qt::Key_Space);
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 3);
    EXPECT_FALSE(document.Priority.PriorityChannelError());
    GoToChannel(5);
    EXPECT_FALSE(Check("ChkPriorityChannel").isChecked());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 3);
    Enter("ChkPriorityChannel");
    Key(Qt::Key_Space);
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 5);
    GoToChannel(3);
    EXPECT_FALSE(Check("ChkPriorityChannel").isChecked());
    GoToChannel(5);
    EXPECT_TRUE(Check("ChkPriorityChannel").isChecked());
    Enter("ChkPriorityChannel");
    Key(Qt::Key_Space);
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 0);
    // With the scan window closed the image's byte stays.
    EXPECT_EQ(document.Image.At(0x161), 0x09);
}

TEST_F(ChannelEditTest, AnOpenScanWindowShowsTheMarkedChannelAndKeepsTheByteUntilItsBoxIsLeft) {
    PutAll(SimplexRecord);
    document.Image.Set(0x160, 1);
    document.Image.Set(0x161, 7);
    ScanForm scan(document, windows, services.Get());
    windows.SetOpen(ChildWindow::Scan, true);
    ShowBoth(7);
    const auto& box = *scan.findChild<QLineEdit*>("txtPriorityCH");
    EXPECT_EQ(box.text(), "7");
    GoToChannel(12);
    Enter("ChkPriorityChannel");
    Key(Qt::Key_Space);
    EXPECT_EQ(box.text(), "12");
    GoToChannel(3);
    Enter("ChkPriorityChannel");
    Key(Qt::Key_Space);
    EXPECT_EQ(box.text(), "3");
    Key(Qt::Key_Space);
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(document.Image.At(0x161), 7);
}

TEST_F(ChannelEditTest, AKeyInScanAddCommitsTheChannel) {
    PutAll(SimplexRecord);
    ShowBoth();
    Pick("ComTxPower", 1);
    Enter("ChkScanAdd");
    EXPECT_EQ(Byte(1, 13), 0xBF);
    Type("x");
    EXPECT_EQ(Byte(1, 13), 0x9F);
    EXPECT_EQ(document.Image.At(0x17E), 0x00);
}

TEST_F(ChannelEditTest, OnlyAProgrammedChannelInFixedModeCanBeMarked) {
    PutRecord(1, SimplexRecord);
    document.Priority.Enter(1);
    ShowBoth();
    EXPECT_FALSE(Check("ChkPriorityChannel").isEnabled());
    EXPECT_FALSE(Check("ChkPriorityChannel").isChecked());
    document.Priority.SetMode(true, document.Image);
    EXPECT_TRUE(Check("ChkPriorityChannel").isEnabled());
    EXPECT_TRUE(Check("ChkPriorityChannel").isChecked());
    GoToChannel(2);
    EXPECT_FALSE(Check("ChkPriorityChannel").isEnabled());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 1);
    GoToChannel(1);
    document.Priority.Enter(2);
    EXPECT_FALSE(Check("ChkPriorityChannel").isChecked());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 2); // no click
}

} // namespace
} // namespace zelvor
