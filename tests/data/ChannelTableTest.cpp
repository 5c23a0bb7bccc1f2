#include "data/ChannelTable.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace zelvor {
namespace {

using Texts = std::vector<std::string>;
constexpr Language En = Language::English;
constexpr Language Zh = Language::Chinese;

/// 145.12500 both ways, no tones, High, Wide, no signalling, PTT ID off, autodial 1.
constexpr std::array<std::uint8_t, 16> SimplexRecord{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14,
                                                     0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xBF, 0xB0, 0xF8};

class Heard : public ChannelTableObserver {
public:
    void OnDecoded() override { events.push_back("decoded"); }
    void OnTranslated() override { events.push_back("translated"); }
    void OnCellSet(int k, int column) override { cells.push_back(k * 10 + column); }
    void OnRowOpened(int k) override { events.push_back("opened " + std::to_string(k)); }
    void OnRowCleared(int k) override { events.push_back("cleared " + std::to_string(k)); }
    void OnTextEdited(int k, int column) override {
        events.push_back("edited " + std::to_string(k) + "/" + std::to_string(column));
    }
    void OnPttIdTypeChosen(bool isOn) override { events.push_back(isOn ? "type, on" : "type, off"); }
    void OnPttIdsRefreshed() override { events.push_back("refreshed"); }

    Texts events;
    std::vector<int> cells;
};

class ChannelTableTest : public testing::Test {
protected:
    void SetUp() override {
        image.Set(0x133, 0);
        table.Add(heard);
    }
    void PutRecord(int k, const std::array<std::uint8_t, 16>& record = SimplexRecord) {
        for (int j = 0; j < 16; ++j) {
            image.Set(16 * k + j, record[static_cast<std::size_t>(j)]);
        }
    }
    Texts Row(int k) const {
        Texts row;
        for (int column = 1; column <= 9; ++column) {
            row.push_back(table.CellText(k, column));
        }
        return row;
    }
    std::vector<int> Record(int k) const {
        std::vector<int> bytes;
        for (int j = 0; j < 16; ++j) {
            bytes.push_back(image.At(16 * k + j));
        }
        return bytes;
    }
    Texts PttIds() const {
        Texts texts;
        for (int k = 1; k <= 16; ++k) {
            texts.push_back(table.CellText(k, 9));
        }
        return texts;
    }
    /// Channel k has the low nibble k - 1 in its byte 14; channel 14 is blank; column 9 shows "?".
    void DecodeNibbles(int type) {
        for (int k = 1; k <= 16; ++k) {
            auto record = SimplexRecord;
            record[14] = static_cast<std::uint8_t>(0xB0 + k - 1);
            PutRecord(k, record);
        }
        image.Set(14 * 16 + 3, 0xFF);
        image.Set(0x133, static_cast<std::uint8_t>(type));
        table.DecodeImageToGrid(image, En);
        for (int k = 1; k <= 16; ++k) {
            table.SetCellText(k, 9, "?");
        }
        heard.events.clear();
    }

    DataImage image;
    ChannelTable table;
    Heard heard;
};

TEST_F(ChannelTableTest, StartsBlank) {
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(Row(k), Texts(9, ""));
        EXPECT_FALSE(table.IsProgrammed(k));
        EXPECT_FALSE(table.HasFrequency(k));
    }
    EXPECT_EQ(table.FreeBytes(), 256);
}

TEST_F(ChannelTableTest, IsFilledFromTheImageAndBlankWhereARecordHasNoFrequency) {
    PutRecord(3);
    PutRecord(16);
    auto without = SimplexRecord;
    without[3] = 0x00;
    PutRecord(4, without);
    table.DecodeImageToGrid(image, En);
    const Texts simplex{"145.12500", "145.12500", "None", "None", "High", "Wide", "Yes", "None", "Off"};
    EXPECT_EQ(Row(3), simplex); // the erased image adds all channels to the scan
    EXPECT_EQ(Row(16), simplex);
    EXPECT_EQ(Row(4), Texts(9, ""));
    EXPECT_EQ(table.FreeBytes(), 224);
    EXPECT_EQ(heard.events, Texts{"decoded"});
    EXPECT_TRUE(heard.cells.empty());
    table.DecodeImageToGrid(image, Zh);
    EXPECT_EQ(Row(3), (Texts{"145.12500", "145.12500", "无", "无", "高", "宽带", "有", "无", "关"}));
}

TEST_F(ChannelTableTest, EverySettingOfATextIsTold) {
    table.SetCellText(7, 9, "On");
    table.SetCellText(7, 9, "On");
    EXPECT_EQ(table.CellText(7, 9), "On");
    EXPECT_EQ(heard.cells, (std::vector<int>{79, 79}));
    EXPECT_EQ(image, [] {
        DataImage erased;
        erased.Set(0x133, 0);
        return erased;
    }());
}

TEST_F(ChannelTableTest, AReceiveFrequencyOfZeroIsProgrammedButTakesNoRoom) {
    table.SetCellText(1, 1, "000.00000");
    EXPECT_TRUE(table.IsProgrammed(1));
    EXPECT_FALSE(table.HasFrequency(1));
    EXPECT_EQ(table.FreeBytes(), 256);
    table.SetCellText(1, 1, "000.00001");
    EXPECT_TRUE(table.HasFrequency(1));
    EXPECT_EQ(table.FreeBytes(), 240);
}

TEST_F(ChannelTableTest, ARowIsLoadedFromItsTextsAndTheHiddenFieldsFromTheImage) {
    auto record = SimplexRecord;
    record[12] = 0x19; // Busy Channel Lockout 24, Compander
    record[13] = 0xFF; // Beat Shift
    record[15] = 0xFB; // Autodial 4
    PutRecord(5, record);
    table.SetCellText(5, 1, "150.00000");
    table.SetCellText(5, 5, "Low");
    table.LoadRowIntoFields(image, En, 5);
    EXPECT_EQ(table.Texts().RxText, "150.00000");
    EXPECT_EQ(table.Texts().PowerText, "Low");
    EXPECT_EQ(table.Texts().PttIdText, "");
    EXPECT_EQ(table.Texts().BusyLockText, "Option Signalling");
    EXPECT_EQ(table.Texts().SpMuteText, "Carrier");
    EXPECT_EQ(table.Texts().AutoDialText, "4");
    EXPECT_TRUE(table.Texts().BeatShiftFlag);
    EXPECT_TRUE(table.Texts().CompanderFlag);
    EXPECT_TRUE(heard.events.empty());
    table.OpenRow(image, En, 5);
    EXPECT_EQ(heard.events, Texts{"opened 5"});
}

TEST_F(ChannelTableTest, EncodingWritesTheWorkingTextsIntoRowAndRecord) {
    PutRecord(2);
    table.DecodeImageToGrid(image, En);
    table.LoadRowIntoFields(image, En, 2);
    table.Texts().RxText = "146.50000";
    table.Texts().PowerText = "Low";
    table.Texts().PttIdText = "On";
    table.Texts().ScanAddText = "No";
    bool txCodeError = false;
    heard.cells.clear();
    table.EncodeChannelRow(image, En, 2, txCodeError);
    EXPECT_EQ(Row(2), (Texts{"146.50000", "145.12500", "None", "None", "Low", "Wide", "No", "None", "On"}));
    EXPECT_EQ(heard.cells, (std::vector<int>{21, 22, 23, 24, 25, 26, 27, 28, 29}));
    EXPECT_EQ(Record(2), (std::vector<int>{0x00, 0x00, 0x65, 0x14, 0x00, 0x25, 0x51, 0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0xE0,
                                           0x9F, 0xB1, 0xF8}));
    EXPECT_EQ(image.At(0x17E), 0xFD);
    EXPECT_TRUE(txCodeError);
}

TEST_F(ChannelTableTest, ClearingBlanksTextsRowAndRecordButNotTheScanAddBit) {
    PutRecord(1);
    PutRecord(2);
    image.Set(0x17E, 0x03);
    table.DecodeImageToGrid(image, En);
    table.LoadRowIntoFields(image, En, 1);
    table.ClearChannelData(image, 1);
    EXPECT_EQ(Row(1), Texts(9, ""));
    EXPECT_EQ(Record(1), std::vector<int>(16, 0xFF));
    EXPECT_EQ(image.At(0x17E), 0x03);
    EXPECT_TRUE(table.IsProgrammed(2));
    EXPECT_EQ(Record(2)[3], 0x14);
    EXPECT_EQ(table.Texts().RxText, "");
    EXPECT_EQ(table.Texts().PttIdText, "");
    EXPECT_EQ(table.Texts().BusyLockText, "Off"); // it has no column
    EXPECT_EQ(heard.events, (Texts{"decoded", "cleared 1"}));
}

TEST_F(ChannelTableTest, AnEditIsToldWithoutARowOrRecordFollowing) {
    const DataImage before = image;
    table.TellEdited(9, 4);
    EXPECT_EQ(heard.events, Texts{"edited 9/4"});
    EXPECT_TRUE(heard.cells.empty());
    EXPECT_EQ(image, before);
}

TEST_F(ChannelTableTest, ProgrammedRowsAreTranslatedAndBlankOnesStay) {
    PutRecord(1);
    PutRecord(16);
    table.DecodeImageToGrid(image, En);
    table.SetCellText(2, 5, "High");
    const DataImage before = image;
    table.Translate(image, Zh);
    const Texts chinese{"145.12500", "145.12500", "无", "无", "高", "宽带", "有", "无", "关"};
    EXPECT_EQ(Row(1), chinese);
    EXPECT_EQ(Row(16), chinese);
    EXPECT_EQ(table.CellText(2, 5), "High");
    EXPECT_EQ(heard.events, (Texts{"decoded", "translated"}));
    EXPECT_EQ(image, before);
    table.Translate(image, En);
    EXPECT_EQ(Row(1), (Texts{"145.12500", "145.12500", "None", "None", "High", "Wide", "Yes", "None", "Off"}));
}

TEST_F(ChannelTableTest, AChosenPttIdTypeShowsOneWordForAllThatHaveAPttId) {
    DecodeNibbles(1);
    table.ShowPttIdsOfType(image, En);
    EXPECT_EQ(PttIds(), (Texts{"Off", "Own", "Own", "Own", "Own", "Own", "Own", "Own", "Own", "Own", "Own", "Off",
                               "Off", "?", "Off", "Off"}));
    EXPECT_EQ(heard.events, Texts{"type, off"}); // as channel 16
    image.Set(0x10E, 0xB1);
    image.Set(0x133, 0);
    heard.events.clear();
    table.ShowPttIdsOfType(image, Zh);
    EXPECT_EQ(PttIds(),
              (Texts{"关", "开", "开", "开", "开", "开", "开", "开", "开", "开", "开", "关", "关", "?", "关", "开"}));
    EXPECT_EQ(heard.events, Texts{"type, on"});
}

TEST_F(ChannelTableTest, AChosenPttIdTypeIsNotToldWhereNoChannelIsProgrammed) {
    table.ShowPttIdsOfType(image, En);
    EXPECT_TRUE(heard.events.empty());
}

TEST_F(ChannelTableTest, RefreshedPttIdsFollowTheRecord) {
    DecodeNibbles(0);
    table.RefreshPttIds(image, En);
    EXPECT_EQ(PttIds(),
              (Texts{"Off", "On", "On", "On", "On", "On", "On", "On", "On", "On", "On", "On", "On", "?", "On", "On"}));
    DecodeNibbles(1);
    table.RefreshPttIds(image, En);
    EXPECT_EQ(PttIds(),
              (Texts{"Off", "Own", "Fleet List 1", "Fleet List 2", "Fleet List 3", "Fleet List 4", "Fleet List 5",
                     "Fleet List 6", "Fleet List 7", "Fleet List 8", "?", "?", "?", "?", "?", "?"}));
    EXPECT_EQ(heard.events, Texts{"refreshed"});
    DecodeNibbles(2);
    table.RefreshPttIds(image, En);
    EXPECT_EQ(PttIds(), Texts(16, "?"));
}

TEST_F(ChannelTableTest, ACopyHasTheSameRowsAndNoViews) {
    table.SetCellText(1, 1, "145.00000");
    ChannelTable copy = table;
    heard.cells.clear();
    copy.SetCellText(1, 1, "146.00000");
    EXPECT_EQ(table.CellText(1, 1), "145.00000");
    EXPECT_TRUE(heard.cells.empty());
}

TEST(IsRecordInUse, GoesByTheFirstByteAlone) {
    DataImage image;
    EXPECT_FALSE(IsRecordInUse(image, 1));
    image.Set(0x10, 0xFE);
    EXPECT_TRUE(IsRecordInUse(image, 1));
    EXPECT_FALSE(IsRecordInUse(image, 16));
    image.Set(0x103, 0x14);
    EXPECT_FALSE(IsRecordInUse(image, 16));
    image.Set(0x100, 0x00);
    EXPECT_TRUE(IsRecordInUse(image, 16));
}

} // namespace
} // namespace zelvor
