#include "OptionalFormFixture.h"
#include "channels/ChannelEditForm.h"
#include "channels/ChannelForm.h"
#include "controls/EditGrid.h"

namespace zelvor {
namespace {

constexpr int Dtmf = 0;
constexpr int Corvane = 1;

using Texts = std::vector<std::string>;

/// The grid, with the low nibbles 0 to 15 of byte 14 in the channels 1 to 16. Channel 14 is blank.
class OptionalFormGridTest : public OptionalFormTest {
protected:
    void SetUp() override {
        OptionalFormTest::SetUp();
        document.Image.Set(0x1BD, 0x01);
        document.Image.Set(0x1BE, 0xF8);
        for (int k = 1; k <= 16; ++k) {
            const int nibble = k - 1;
            Put(k * 16, {0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xBF,
                         0xB0 + nibble, 0xF8});
        }
        for (int address = 14 * 16; address < 14 * 16 + 14; ++address) {
            document.Image.Set(address, 0xFF);
        }
    }
    void TearDown() override {
        form.reset();
        dialog.reset();
        grid.reset();
    }
    void OpenGrid(int type, Language language = Language::English) {
        TearDown();
        windows.LanguageFlag = language;
        document.Image.Set(0x133, static_cast<std::uint8_t>(type));
        grid = std::make_unique<ChannelForm>(document, windows, services.Get());
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        windows.SetOpen(ChildWindow::Channels, true);
        before = document.Image;
    }
    /// The channel edit dialog on a channel, beside the grid.
    void OpenDialog(int k) {
        windows.Cursor.SetEditChannel(k);
        dialog = std::make_unique<ChannelEditForm>(document, windows, services.Get());
        dialog->OpenOnEditChannel();
    }
    void FillColumn(const char* text) {
        for (int k = 1; k <= 16; ++k) {
            document.Channels.SetCellText(k, 9, text);
        }
    }
    std::string CellText(int k) { return grid->findChild<EditGrid*>("ChannelGrid")->Text(k, 9).toStdString(); }
    Texts Column() {
        Texts texts;
        for (int k = 1; k <= 16; ++k) {
            texts.push_back(CellText(k));
        }
        return texts;
    }
    QComboBox& ComPttId() { return *dialog->findChild<QComboBox*>("ComPTTID"); }
    QStringList DialogEntries() {
        QStringList entries;
        for (int i = 0; i < ComPttId().count(); ++i) {
            entries.append(ComPttId().itemText(i));
        }
        return entries;
    }
    void ExpectNothingStoredButTheType() {
        for (const int address : Differences(document.Image, before)) {
            EXPECT_EQ(address, 0x133);
        }
    }

    std::unique_ptr<ChannelForm> grid;
    std::unique_ptr<ChannelEditForm> dialog;
    DataImage before;
};

const Texts OwnOrOff{"Off", "Own", "Own", "Own", "Own", "Own", "Own", "Own",
                     "Own", "Own", "Own", "Off", "Off", "?",   "Off", "Off"};

TEST_F(OptionalFormGridTest, ChoosingCorvaneShowsOwnForEveryChannelWithAPttId) {
    OpenGrid(Dtmf);
    Load();
    FillColumn("?");
    List("cboPTTIDType").setCurrentIndex(Corvane);
    EXPECT_EQ(Column(), OwnOrOff);
    ExpectNothingStoredButTheType();
}

TEST_F(OptionalFormGridTest, ChoosingDtmfShowsOnForEveryChannelWithAPttId) {
    OpenGrid(Corvane);
    Load();
    FillColumn("?");
    List("cboPTTIDType").setCurrentIndex(Dtmf);
    EXPECT_EQ(Column(), (Texts{"Off", "On", "On", "On", "On", "On", "On", "On", "On", "On", "On", "Off", "Off", "?",
                               "Off", "Off"}));
    ExpectNothingStoredButTheType();
}

TEST_F(OptionalFormGridTest, OpeningUnderDtmfShowsOnForEveryNibbleButNone) {
    OpenGrid(Dtmf);
    FillColumn("?");
    Load();
    EXPECT_EQ(Column(),
              (Texts{"Off", "On", "On", "On", "On", "On", "On", "On", "On", "On", "On", "On", "On", "?", "On", "On"}));
    ExpectNothingStoredButTheType();
}

TEST_F(OptionalFormGridTest, OpeningUnderCorvaneShowsOwnAndTheFleetLists) {
    OpenGrid(Corvane);
    FillColumn("?");
    Load();
    // The nibbles from 10 on have no text of their own and show what choosing the type shows.
    EXPECT_EQ(Column(),
              (Texts{"Off", "Own", "Fleet List 1", "Fleet List 2", "Fleet List 3", "Fleet List 4", "Fleet List 5",
                     "Fleet List 6", "Fleet List 7", "Fleet List 8", "Own", "Off", "Off", "?", "Off", "Off"}));
    OpenGrid(Corvane, Language::Chinese);
    FillColumn("?");
    Load(Language::Chinese);
    EXPECT_EQ(Column(), (Texts{"关", "自身", "队列表 1", "队列表 2", "队列表 3", "队列表 4", "队列表 5", "队列表 6",
                               "队列表 7", "队列表 8", "自身", "关", "关", "?", "关", "关"}));
}

TEST_F(OptionalFormGridTest, OpeningWithoutALegalTypeLeavesTheColumn) {
    for (const int type : {2, 255}) {
        OpenGrid(type);
        FillColumn("?");
        Load();
        EXPECT_EQ(Column(), Texts(16, "?"));
    }
}

TEST_F(OptionalFormGridTest, AGridThatIsNotOpenIsLeftAlone) {
    OpenGrid(Dtmf);
    FillColumn("?");
    windows.SetOpen(ChildWindow::Channels, false);
    Load();
    List("cboPTTIDType").setCurrentIndex(Corvane);
    EXPECT_EQ(Column(), Texts(16, "?"));
    EXPECT_EQ(At(0x133), 1);
    grid.reset();
    List("cboPTTIDType").setCurrentIndex(Dtmf);
    EXPECT_EQ(At(0x133), 0);
}

TEST_F(OptionalFormGridTest, TheDialogOffersTheEntriesOfTheType) {
    OpenGrid(Dtmf);
    OpenDialog(2);
    Load();
    List("cboPTTIDType").setCurrentIndex(Corvane);
    EXPECT_EQ(DialogEntries(), (QStringList{"Off", "Own", "1", "2", "3", "4", "5", "6", "7", "8"}));
    List("cboPTTIDType").setCurrentIndex(Dtmf);
    EXPECT_EQ(DialogEntries(), (QStringList{"Off", "On"}));
    OpenGrid(Dtmf, Language::Chinese);
    OpenDialog(2);
    Load(Language::Chinese);
    List("cboPTTIDType").setCurrentIndex(Corvane);
    EXPECT_EQ(DialogEntries(), (QStringList{"关", "自身", "1", "2", "3", "4", "5", "6", "7", "8"}));
    List("cboPTTIDType").setCurrentIndex(Dtmf);
    EXPECT_EQ(DialogEntries(), (QStringList{"关", "开"}));
}

TEST_F(OptionalFormGridTest, TheDialogShowsWhatTheLastProgrammedChannelHas) {
    for (const int last : {0, 1, 10, 11, 15}) {
        const bool isOn = last == 1 || last == 10;
        document.Image.Set(16 * 16 + 14, static_cast<std::uint8_t>(0xB0 + last));
        OpenGrid(Dtmf);
        OpenDialog(16);
        Load();
        for (const int type : {Corvane, Dtmf}) {
            ComPttId().setCurrentIndex(-1);
            List("cboPTTIDType").setCurrentIndex(type);
            EXPECT_EQ(ComPttId().currentIndex(), isOn ? 1 : 0) << last;
        }
        ExpectNothingStoredButTheType();
    }
}

TEST_F(OptionalFormGridTest, ADialogOnABlankChannelShowsNoEntry) {
    OpenGrid(Dtmf);
    OpenDialog(14);
    Load();
    List("cboPTTIDType").setCurrentIndex(Corvane);
    EXPECT_EQ(ComPttId().count(), 10);
    EXPECT_EQ(ComPttId().currentIndex(), -1);
}

TEST_F(OptionalFormGridTest, TheDialogStoresThePttIdThatTheGridShows) {
    OpenGrid(Corvane);
    OpenDialog(4); // fleet list 2
    Load();
    EXPECT_EQ(CellText(4), "Fleet List 2");
    dialog->CommitDialog();
    EXPECT_EQ(At(4 * 16 + 14), 0xB3);
    EXPECT_EQ(CellText(4), "Fleet List 2");
    List("cboPTTIDType").setCurrentIndex(Dtmf);
    dialog->CommitDialog();
    EXPECT_EQ(CellText(4), "On");
    EXPECT_EQ(At(4 * 16 + 14), 0xB1);
}

TEST_F(OptionalFormGridTest, ADialogThatIsNotOpenIsLeftAlone) {
    OpenGrid(Dtmf);
    OpenDialog(2);
    windows.SetOpen(ChildWindow::ChannelEdit, false);
    Load();
    List("cboPTTIDType").setCurrentIndex(Corvane);
    EXPECT_EQ(DialogEntries(), (QStringList{"Off", "On"}));
}

} // namespace
} // namespace zelvor
