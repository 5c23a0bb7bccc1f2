#include "data/CellTranslation.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

constexpr Language En = Language::English;
constexpr Language Zh = Language::Chinese;

struct Row {
    const char* cell;
    const char* english;
    const char* chinese;
};

DataImage WithPttId(int type, int k = 1, int byte14 = 0xFF) {
    DataImage image;
    image.Set(0x133, static_cast<std::uint8_t>(type));
    image.Set(k * 16 + 14, static_cast<std::uint8_t>(byte14));
    return image;
}

void ExpectRows(int column, std::initializer_list<Row> rows, const DataImage& image = WithPttId(0)) {
    for (const Row& row : rows) {
        EXPECT_EQ(TranslateCell(column, row.cell, image, 1, En), row.english) << column << " " << row.cell;
        EXPECT_EQ(TranslateCell(column, row.cell, image, 1, Zh), row.chinese) << column << " " << row.cell;
    }
}

TEST(TranslateCell, FrequenciesStay) {
    for (const int column : {1, 2}) {
        ExpectRows(column, {{"145.12500", "145.12500", "145.12500"}, {"", "", ""}});
    }
}

TEST(TranslateCell, OfATonesOnlyNoneIsAWord) {
    for (const int column : {3, 4}) {
        ExpectRows(column, {{"None", "None", "无"},
                            {"无", "None", "无"},
                            {"67.0", "67.0", "67.0"},
                            {"D754I", "D754I", "D754I"},
                            {"No", "No", "No"},
                            {"", "", ""}});
    }
}

TEST(TranslateCell, PowerIsHighOrElseLow) {
    ExpectRows(5, {{"High", "High", "高"},
                   {"高", "High", "高"},
                   {"Low", "Low", "低"},
                   {"低", "Low", "低"},
                   {"", "Low", "低"},
                   {"Middle", "Low", "低"}});
}

TEST(TranslateCell, WidthIsWideOrElseNarrow) {
    ExpectRows(6, {{"Wide", "Wide", "宽带"},
                   {"宽带", "Wide", "宽带"},
                   {"Narrow", "Narrow", "窄带"},
                   {"窄带", "Narrow", "窄带"},
                   {"", "Narrow", "窄带"}});
}

TEST(TranslateCell, ScanAddIsYesOrElseNo) {
    ExpectRows(7, {{"Yes", "Yes", "有"},
                   {"有", "Yes", "有"},
                   {"No", "No", "无"},
                   {"无", "No", "无"},
                   {"None", "No", "无"},
                   {"", "No", "无"}});
}

TEST(TranslateCell, OfTheSignallingsOnlyNoneIsAWord) {
    ExpectRows(8, {{"None", "None", "无"},
                   {"无", "None", "无"},
                   {"DTMF", "DTMF", "DTMF"},
                   {"Corvane", "Corvane", "Corvane"},
                   {"", "", ""}});
}

TEST(TranslateCell, PttIdOfTypeDtmfIsOnOrElseOff) {
    ExpectRows(9, {{"On", "On", "开"},
                   {"开", "On", "开"},
                   {"Off", "Off", "关"},
                   {"关", "Off", "关"},
                   {"Own", "Off", "关"},
                   {"", "Off", "关"}});
}

TEST(TranslateCell, PttIdOfTypeCorvaneIsMadeAnewFromTheRecord) {
    const Row rows[] = {
        {"", "Off", "关"},
        {"", "Own", "自身"},
        {"", "Fleet List 1", "队列表 1"},
        {"", "Fleet List 2", "队列表 2"},
        {"", "Fleet List 3", "队列表 3"},
        {"", "Fleet List 4", "队列表 4"},
        {"", "Fleet List 5", "队列表 5"},
        {"", "Fleet List 6", "队列表 6"},
        {"", "Fleet List 7", "队列表 7"},
        {"", "Fleet List 8", "队列表 8"},
        {"as it was", "as it was", "as it was"},
        {"as it was", "as it was", "as it was"},
        {"as it was", "as it was", "as it was"},
        {"as it was", "as it was", "as it was"},
        {"as it was", "as it was", "as it was"},
        {"", "", ""},
    };
    for (int byte14 = 0; byte14 < 256; ++byte14) {
        for (const int k : {1, 16}) {
            const Row& row = rows[byte14 % 16];
            EXPECT_EQ(TranslateCell(9, "as it was", WithPttId(1, k, byte14), k, En), row.english) << byte14;
            EXPECT_EQ(TranslateCell(9, "as it was", WithPttId(1, k, byte14), k, Zh), row.chinese) << byte14;
        }
    }
}

TEST(TranslateCell, PttIdOfAnotherTypeStays) {
    for (int type = 2; type < 256; ++type) {
        ExpectRows(9, {{"On", "On", "On"}, {"关", "关", "关"}, {"", "", ""}}, WithPttId(type, 1, 0xB1));
    }
}

} // namespace
} // namespace zelvor
