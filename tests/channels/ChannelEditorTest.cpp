#include "channels/ChannelEditor.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "controls/WindowState.h"
#include "data/BlankImage.h"
#include "data/Document.h"

namespace zelvor {
namespace {

using Texts = std::vector<std::string>;
using Bytes = std::vector<int>;
using Record = std::array<std::uint8_t, 16>;

/// 145.12500 both ways, no tones, High, Wide, no signalling, PTT ID off, autodial 1.
constexpr Record Simplex{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14,
                         0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xBF, 0xB0, 0xF8};
/// 145.62500, 150.10000, tones 100.0 and D023I, DTMF, SP Unmute 1, Busy Channel Lockout 3, Low, Narrow, Beat Shift,
/// Compander, PTT ID on, Autodial 4.
constexpr Record Other{0x00, 0x25, 0x56, 0x14, 0x00, 0x00, 0x01, 0x15, 0xE8, 0x03, 0x13, 0xA8, 0x3B, 0xCF, 0xB1, 0xFB};

/// Hears what the other window is told, and looks at the document in that moment.
class OtherWindow : public ChannelTableObserver {
public:
    explicit OtherWindow(Document& document) : document_(document) {}
    void OnTextEdited(int k, int column) override {
        edited.push_back(k * 10 + column);
        topByteThen = document_.Image.At(16 * k + 3);
    }
    std::vector<int> edited;
    int topByteThen = -1;

private:
    Document& document_;
};

class ChannelEditorTest : public testing::Test {
protected:
    void SetUp() override {
        document.Image.Set(0x1BD, 0x01);
        document.Image.Set(0x1BE, 0xF8);
        InitAllFrameData(document.Image);
        document.Channels.Add(other);
    }
    /// The record in all channels, so that the encoder carries nothing over from another one, and channel k opened.
    void Open(int k, const Record& record, Language language = Language::English) {
        for (int n = 1; n <= 16; ++n) {
            Put(n, record);
        }
        OpenDecoded(k, language);
    }
    void OpenDecoded(int k, Language language = Language::English) {
        windows.LanguageFlag = language;
        document.Channels.DecodeImageToGrid(document.Image, language);
        document.Channels.LoadRowIntoFields(document.Image, language, k);
    }
    void Put(int k, const Record& record) {
        for (int j = 0; j < 16; ++j) {
            document.Image.Set(16 * k + j, record[static_cast<std::size_t>(j)]);
        }
    }
    Texts Row(int k) const {
        Texts row;
        for (int column = 1; column <= 9; ++column) {
            row.push_back(document.Channels.CellText(k, column));
        }
        return row;
    }
    Bytes RecordOf(int k) const {
        Bytes bytes;
        for (int j = 0; j < 16; ++j) {
            bytes.push_back(document.Image.At(16 * k + j));
        }
        return bytes;
    }
    int Byte(int k, int j) const { return document.Image.At(16 * k + j); }

    Document document;
    WindowState windows;
    OtherWindow other{document};
    ChannelEditor editor{document, windows};
};

// --- Receive frequency -----------------------------------------------------------------------------------------------

TEST_F(ChannelEditorTest, AFirstFrequencyBringsAllDefaults) {
    OpenDecoded(1);
    editor.CommitReceive(1, {.frequency = "145.00000"});
    EXPECT_EQ(Row(1), (Texts{"145.00000", "", "None", "None", "High", "Wide", "Yes", "None", "Off"}));
    const Bytes record = RecordOf(1);
    EXPECT_EQ(Bytes(record.begin(), record.begin() + 8), (Bytes{0x00, 0x00, 0x50, 0x14, 0xFF, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(Byte(1, 13), 0xBF);
    EXPECT_EQ(Byte(1, 14), 0xB0);
    EXPECT_EQ(Byte(1, 15), 0xF8);
    EXPECT_EQ(document.Image.At(0x17E), 0x01);
}

TEST_F(ChannelEditorTest, TheDefaultsAreChineseInChinese) {
    OpenDecoded(16, Language::Chinese);
    editor.CommitReceive(16, {.frequency = "145.00000"});
    EXPECT_EQ(Row(16), (Texts{"145.00000", "", "无", "无", "高", "宽带", "有", "无", "关"}));
    EXPECT_EQ(document.Image.At(0x17F), 0x80);
}

TEST_F(ChannelEditorTest, WithoutDefaultsOnlyTheFrequencyChanges) {
    Open(3, Other);
    editor.CommitReceive(
        3,
        {.frequency = "146.50000", .completesTexts = false, .completesSignalling = false, .clearsHiddenFields = false});
    EXPECT_EQ(Row(3), (Texts{"146.50000", "150.10000", "100.0", "D023I", "Low", "Narrow", "No", "DTMF", "On"}));
    EXPECT_EQ(RecordOf(3),
              (Bytes{0x00, 0x00, 0x65, 0x14, 0x00, 0x00, 0x01, 0x15, 0xE8, 0x03, 0x13, 0xA8, 0x3B, 0xCF, 0xB1, 0xFB}));
    EXPECT_EQ(RecordOf(2), Bytes(Other.begin(), Other.end()));
}

TEST_F(ChannelEditorTest, DefaultsLeaveTextsThatAreThereAndClearTheHiddenFields) {
    Open(3, Other);
    editor.CommitReceive(3, {.frequency = "146.50000"});
    EXPECT_EQ(Row(3), (Texts{"146.50000", "150.10000", "100.0", "D023I", "Low", "Narrow", "No", "DTMF", "On"}));
    EXPECT_EQ(RecordOf(3),
              (Bytes{0x00, 0x00, 0x65, 0x14, 0x00, 0x00, 0x01, 0x15, 0xE8, 0x03, 0x13, 0xA8, 0x3A, 0x8F, 0xB1, 0xF8}));
    EXPECT_FALSE(document.Channels.Texts().CompanderFlag);
    EXPECT_FALSE(document.Channels.Texts().BeatShiftFlag);
    EXPECT_EQ(document.Channels.Texts().AutoDialText, "1");
}

TEST_F(ChannelEditorTest, TheHiddenFieldsCanStay) {
    Open(3, Other);
    editor.CommitReceive(3, {.frequency = "146.50000", .clearsHiddenFields = false});
    EXPECT_EQ(Byte(3, 12), 0x3B);
    EXPECT_EQ(Byte(3, 13), 0xCF);
    EXPECT_EQ(Byte(3, 15), 0xFB);
}

TEST_F(ChannelEditorTest, TheSignallingCanStayOpen) {
    OpenDecoded(1);
    editor.CommitReceive(1, {.frequency = "145.12500", .completesSignalling = false});
    EXPECT_EQ(Row(1), (Texts{"145.12500", "", "None", "None", "High", "Wide", "Yes", "", "Off"}));
}

TEST_F(ChannelEditorTest, WithoutALegalPttIdTypeThereIsNoPttId) {
    document.Image.Set(0x133, 2);
    OpenDecoded(1);
    editor.CommitReceive(1, {.frequency = "145.12500"});
    EXPECT_EQ(document.Channels.CellText(1, 9), "");
}

TEST_F(ChannelEditorTest, TheOtherWindowIsToldBeforeTheRecordFollows) {
    OpenDecoded(5);
    editor.CommitReceive(5, {.frequency = "145.00000"});
    EXPECT_EQ(other.edited, std::vector<int>{51});
    EXPECT_EQ(other.topByteThen, 0xFF);
    EXPECT_EQ(Byte(5, 3), 0x14);
}

TEST_F(ChannelEditorTest, ARecordThatFollowsLaterStaysAndTellsNobody) {
    OpenDecoded(5);
    const Bytes before = RecordOf(5);
    editor.CommitReceive(
        5, {.frequency = "145.00000", .clearsHiddenFields = false, .record = RecordFollows::WithNextCommit});
    EXPECT_TRUE(other.edited.empty());
    EXPECT_EQ(RecordOf(5), before);
    EXPECT_EQ(document.Channels.CellText(5, 1), "145.00000");
    EXPECT_EQ(document.Channels.Texts().PowerText, "High");
    editor.CommitChannel(5, {.programmed = true, .scanAdd = false});
    EXPECT_EQ(Byte(5, 3), 0x14);
    EXPECT_EQ(Row(5), (Texts{"145.00000", "", "None", "None", "High", "Wide", "No", "None", "Off"}));
}

// --- Transmit frequency ----------------------------------------------------------------------------------------------

TEST_F(ChannelEditorTest, ATransmitFrequencyLeavesTheEncodeTone) {
    Open(1, Other);
    editor.CommitTransmit(1, {.frequency = "150.00500"});
    EXPECT_EQ(Row(1), (Texts{"145.62500", "150.00500", "100.0", "D023I", "Low", "Narrow", "No", "DTMF", "On"}));
    EXPECT_EQ(RecordOf(1),
              (Bytes{0x00, 0x25, 0x56, 0x14, 0x00, 0x05, 0x00, 0x15, 0xE8, 0x03, 0x13, 0xA8, 0x3B, 0xCF, 0xB1, 0xFB}));
    EXPECT_EQ(other.edited, std::vector<int>{12});
}

TEST_F(ChannelEditorTest, AnEmptyTransmitFrequencyTakesTheEncodeToneInTheGridAndLeavesItInTheDialog) {
    Open(1, Other);
    editor.CommitTransmit(1, {.frequency = "", .emptyTakesEncodeTone = false});
    EXPECT_EQ(document.Channels.CellText(1, 2), "");
    EXPECT_EQ(document.Channels.CellText(1, 4), "D023I");
    EXPECT_EQ(Byte(1, 11), 0xA8);
    editor.CommitTransmit(1, {.frequency = ""});
    EXPECT_EQ(document.Channels.CellText(1, 4), "None");
    EXPECT_EQ(RecordOf(1),
              (Bytes{0x00, 0x25, 0x56, 0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0xE8, 0x03, 0xFF, 0xFF, 0x3B, 0xCF, 0xB1, 0xFB}));
}

// --- Tones and choices -----------------------------------------------------------------------------------------------

TEST_F(ChannelEditorTest, AChoiceReachesItsColumnAndTheRecord) {
    struct Step {
        int column;
        const char* text;
        int j;
        int stored;
    };
    const Step steps[] = {{3, "67.0", 8, 0x9E},    {4, "D023N", 11, 0x28},   {5, "Low", 13, 0x9F},
                          {6, "Narrow", 13, 0x8F}, {8, "Corvane", 12, 0x04}, {9, "On", 14, 0xB1}};
    Open(2, Simplex);
    for (const Step& step : steps) {
        EXPECT_EQ(editor.Choose(2, {.column = step.column, .text = step.text}), step.text);
        EXPECT_EQ(document.Channels.CellText(2, step.column), step.text);
        EXPECT_EQ(Byte(2, step.j), step.stored) << step.text;
        EXPECT_EQ(other.edited.back(), 20 + step.column);
    }
    EXPECT_TRUE(document.Flags.TxCodeError); // a PTT ID was switched on
    editor.Choose(2, {.column = 7, .text = "Yes"});
    EXPECT_EQ(document.Image.At(0x17E), 0x02);
    EXPECT_EQ(Row(1), (Texts{"145.12500", "145.12500", "None", "None", "High", "Wide", "No", "None", "Off"}));
}

TEST_F(ChannelEditorTest, AnEncodeToneMayNeedATransmitFrequency) {
    auto record = Simplex;
    record[7] = 0xFF;
    Open(2, record);
    EXPECT_EQ(editor.Choose(2, {.column = 4, .text = "67.0", .encodeNeedsTransmit = true}), "None");
    EXPECT_EQ(document.Channels.CellText(2, 4), "None");
    EXPECT_EQ(editor.Choose(2, {.column = 3, .text = "67.0", .encodeNeedsTransmit = true}), "67.0");
    EXPECT_EQ(editor.Choose(2, {.column = 4, .text = "67.0"}), "67.0");
    EXPECT_EQ(document.Channels.CellText(2, 4), "67.0");
}

TEST_F(ChannelEditorTest, AnEmptyTextIsNoChoice) {
    Open(2, Simplex);
    const DataImage before = document.Image;
    EXPECT_EQ(editor.Choose(2, {.column = 5, .text = ""}), "");
    EXPECT_EQ(document.Channels.CellText(2, 5), "High");
    EXPECT_EQ(document.Channels.Texts().PowerText, "High");
    EXPECT_EQ(document.Image, before);
    EXPECT_TRUE(other.edited.empty());
}

TEST_F(ChannelEditorTest, AChoiceOfTheDialogShowsInTheRowAndWaitsForTheCommit) {
    Open(2, Simplex);
    editor.Choose(2, {.column = 5, .text = "Low", .record = RecordFollows::WithNextCommit});
    EXPECT_EQ(document.Channels.CellText(2, 5), "Low");
    EXPECT_EQ(Byte(2, 13), 0xBF);
    EXPECT_TRUE(other.edited.empty());
    editor.CommitChannel(2, {.programmed = true, .scanAdd = true});
    EXPECT_EQ(Byte(2, 13), 0x9F);
    EXPECT_EQ(document.Channels.CellText(2, 7), "Yes");
    EXPECT_EQ(document.Image.At(0x17E), 0x02);
}

TEST_F(ChannelEditorTest, ARowWithoutASignallingMayGoOnShowingNone) {
    auto record = Simplex;
    record[12] = 0x06;
    Open(2, record);
    ASSERT_EQ(document.Channels.CellText(2, 8), "");
    editor.Choose(2,
                  {.column = 8, .text = "DTMF", .emptySignallingStays = true, .record = RecordFollows::WithNextCommit});
    EXPECT_EQ(document.Channels.CellText(2, 8), "");
    EXPECT_EQ(document.Channels.Texts().OptSignalText, "DTMF");
    editor.CommitChannel(2, {.programmed = true, .scanAdd = false});
    EXPECT_EQ(document.Channels.CellText(2, 8), "DTMF");
    EXPECT_EQ(Byte(2, 12), 0x02);
}

// --- What has no column ----------------------------------------------------------------------------------------------

TEST_F(ChannelEditorTest, SpUnmuteAndBusyLockAreStoredByTheirPlaceInTheList) {
    Open(4, Simplex);
    constexpr int mute[] = {0x00, 0x20, 0x40};
    for (const int entry : {1, 2, 0}) {
        editor.StoreSpMute(4, entry, "text");
        EXPECT_EQ(Byte(4, 12), mute[entry]);
    }
    constexpr int lock[] = {0x00, 0x08, 0x10, 0x18};
    for (const int entry : {1, 2, 3, 0}) {
        editor.StoreBusyLock(4, entry, "other");
        EXPECT_EQ(Byte(4, 12), lock[entry]);
    }
    EXPECT_EQ(document.Channels.Texts().SpMuteText, "text");
    EXPECT_EQ(document.Channels.Texts().BusyLockText, "other");
    editor.StoreSpMute(4, -1, "");
    EXPECT_EQ(Byte(4, 12), 0xFF);
}

TEST_F(ChannelEditorTest, AutodialAndTheCheckBoxesAreStoredAtOnce) {
    Open(4, Simplex);
    editor.StoreAutoDial(4, 6, "7");
    EXPECT_EQ(Byte(4, 15), 0xFE);
    EXPECT_EQ(document.Channels.Texts().AutoDialText, "7");
    editor.StoreAutoDial(4, -1, "");
    EXPECT_EQ(Byte(4, 15), 0xF8);
    editor.StoreBeatShift(4, true);
    EXPECT_EQ(Byte(4, 13), 0xFF);
    EXPECT_TRUE(document.Channels.Texts().BeatShiftFlag);
    editor.StoreBeatShift(4, false);
    EXPECT_EQ(Byte(4, 13), 0xBF);
    editor.StoreCompander(4, true);
    EXPECT_EQ(Byte(4, 12), 0x01);
    EXPECT_TRUE(document.Channels.Texts().CompanderFlag);
    editor.StoreCompander(4, false);
    EXPECT_EQ(Byte(4, 12), 0x00);
}

TEST_F(ChannelEditorTest, ScanAddIsTheBitAndTheColumnOfAChannelWithAFrequency) {
    struct Place {
        int k;
        int address;
        int bit;
    };
    for (const Place& place : {Place{1, 0x17E, 0x01}, {8, 0x17E, 0x80}, {9, 0x17F, 0x01}, {16, 0x17F, 0x80}}) {
        Open(place.k, Simplex);
        editor.StoreScanAdd(place.k, true);
        EXPECT_EQ(document.Image.At(place.address), place.bit);
        EXPECT_EQ(document.Channels.CellText(place.k, 7), "Yes");
        editor.StoreScanAdd(place.k, false);
        EXPECT_EQ(document.Image.At(place.address), 0);
        EXPECT_EQ(document.Channels.CellText(place.k, 7), "No");
    }
    editor.Blank(16);
    editor.StoreScanAdd(16, true);
    EXPECT_EQ(document.Image.At(0x17F), 0);
    EXPECT_EQ(document.Channels.CellText(16, 7), "");
}

TEST_F(ChannelEditorTest, TouchingThePttIdSetsItsLowBitUnderTheTypeDtmfOnly) {
    Open(4, Simplex);
    document.Image.Set(0x133, 1);
    editor.TouchPttId(4);
    EXPECT_EQ(Byte(4, 14), 0xB0);
    document.Image.Set(0x133, 0);
    editor.TouchPttId(4);
    EXPECT_EQ(Byte(4, 14), 0xB1);
    EXPECT_EQ(document.Channels.CellText(4, 9), "Off");
}

// --- Blanking and the commit of the dialog ---------------------------------------------------------------------------

TEST_F(ChannelEditorTest, BlankingErasesTheRecordAndLeavesTheScanAddBit) {
    Open(4, Other);
    document.Image.Set(0x17E, 0xFF);
    editor.Blank(4);
    EXPECT_EQ(RecordOf(4), Bytes(16, 0xFF));
    EXPECT_EQ(Row(4), Texts(9, ""));
    EXPECT_EQ(document.Image.At(0x17E), 0xFF);
    EXPECT_EQ(document.Channels.Texts().RxText, "");
}

TEST_F(ChannelEditorTest, TheDialogsCommitOfABlankChannelTakesItsMarkAndWritesTheTexts) {
    Open(2, Simplex);
    document.Image.Set(0x17E, 0xFF);
    editor.CommitChannel(2, {.programmed = false, .scanAdd = true, .blanksTexts = true});
    EXPECT_EQ(Row(2), Texts(9, ""));
    EXPECT_EQ(document.Image.At(0x17E), 0xFD);
    EXPECT_EQ(RecordOf(2),
              (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x00, 0xBF, 0xB0, 0xF8}));
    EXPECT_TRUE(other.edited.empty());
}

} // namespace
} // namespace zelvor
