#include "channels/CellValues.h"

#include <gtest/gtest.h>

#include "data/MemoryMap.h"
#include "data/ToneCodec.h"

namespace zelvor {
namespace {

using Texts = std::vector<std::string>;
constexpr Language En = Language::English;
constexpr Language Zh = Language::Chinese;

DataImage WithPttIdType(std::uint8_t type) {
    DataImage image;
    image.Set(0x133, type);
    return image;
}

std::string Step(int column, const std::string& text, int direction, const DataImage& image, Language language = En) {
    return StepCellValue(column, text, direction, image, language, BuildToneList(language));
}

TEST(CellChoices, OffersTheTextsOfEachColumnInTheirOrder) {
    const DataImage dtmf = WithPttIdType(0);
    EXPECT_EQ(CellChoices(5, dtmf, En), (Texts{"High", "Low"}));
    EXPECT_EQ(CellChoices(6, dtmf, En), (Texts{"Narrow", "Wide"}));
    EXPECT_EQ(CellChoices(7, dtmf, En), (Texts{"Yes", "No"}));
    EXPECT_EQ(CellChoices(8, dtmf, En), (Texts{"None", "DTMF", "Corvane"}));
    EXPECT_EQ(CellChoices(9, dtmf, En), (Texts{"Off", "On"}));
    EXPECT_EQ(CellChoices(5, dtmf, Zh), (Texts{"高", "低"}));
    EXPECT_EQ(CellChoices(6, dtmf, Zh), (Texts{"窄带", "宽带"}));
    EXPECT_EQ(CellChoices(7, dtmf, Zh), (Texts{"有", "无"}));
    EXPECT_EQ(CellChoices(8, dtmf, Zh), (Texts{"无", "DTMF", "Corvane"}));
    EXPECT_EQ(CellChoices(9, dtmf, Zh), (Texts{"关", "开"}));
}

TEST(CellChoices, PttIdListFollowsThePttIdType) {
    EXPECT_EQ(CellChoices(9, WithPttIdType(1), En),
              (Texts{"Off", "Own", "Fleet List 1", "Fleet List 2", "Fleet List 3", "Fleet List 4", "Fleet List 5",
                     "Fleet List 6", "Fleet List 7", "Fleet List 8"}));
    EXPECT_EQ(CellChoices(9, WithPttIdType(1), Zh), (Texts{"关", "自身", "队列表 1", "队列表 2", "队列表 3", "队列表 4",
                                                           "队列表 5", "队列表 6", "队列表 7", "队列表 8"}));
    for (int type = 2; type < 256; ++type) {
        EXPECT_TRUE(CellChoices(9, WithPttIdType(static_cast<std::uint8_t>(type)), En).empty()) << type;
    }
}

TEST(StepCellValue, UpAndDownStepEveryColumnAndStopAtItsEnds) {
    struct Row {
        int column;
        std::string from;
        std::string up;
        std::string down;
    };
    const Row rows[] = {
        {3, "None", "None", "67.0"},    {3, "67.0", "None", "71.9"},    {3, "250.3", "241.8", "D023N"},
        {3, "D754N", "D743N", "D023I"}, {3, "D754I", "D743I", "D754I"}, {3, "D999N", "None", "None"},
        {4, "100.0", "97.4", "103.5"},  {4, "100.1", "None", "None"},   {5, "Low", "High", "Low"},
        {5, "High", "High", "Low"},     {6, "Wide", "Narrow", "Wide"},  {6, "Narrow", "Narrow", "Wide"},
        {7, "No", "Yes", "No"},         {7, "Yes", "Yes", "No"},        {8, "Corvane", "DTMF", "Corvane"},
        {8, "DTMF", "None", "Corvane"}, {8, "None", "None", "DTMF"},    {9, "On", "Off", "On"},
        {9, "Off", "Off", "On"},
    };
    const DataImage dtmf = WithPttIdType(0);
    for (const Row& row : rows) {
        EXPECT_EQ(Step(row.column, row.from, -1, dtmf), row.up) << row.column << " " << row.from;
        EXPECT_EQ(Step(row.column, row.from, 1, dtmf), row.down) << row.column << " " << row.from;
    }
}

TEST(StepCellValue, CorvanePttIdGoesThroughOwnAndTheFleetList) {
    const DataImage corvane = WithPttIdType(1);
    EXPECT_EQ(Step(9, "Off", 1, corvane), "Own");
    EXPECT_EQ(Step(9, "Own", 1, corvane), "Fleet List 1");
    EXPECT_EQ(Step(9, "Fleet List 7", 1, corvane), "Fleet List 8");
    EXPECT_EQ(Step(9, "Fleet List 8", 1, corvane), "Fleet List 8");
    EXPECT_EQ(Step(9, "Fleet List 3", -1, corvane), "Fleet List 2");
    EXPECT_EQ(Step(9, "Fleet List 1", -1, corvane), "Own");
    EXPECT_EQ(Step(9, "Own", -1, corvane), "Off");
    EXPECT_EQ(Step(9, "Off", -1, corvane), "Off");
    EXPECT_EQ(Step(9, "自身", 1, corvane, Zh), "队列表 1");
}

TEST(StepCellValue, AnUnknownTextOfAChoiceColumnStays) {
    const DataImage dtmf = WithPttIdType(0);
    EXPECT_EQ(Step(8, "", 1, dtmf), "");
    EXPECT_EQ(Step(9, "Own", -1, dtmf), "Own");
    EXPECT_EQ(Step(9, "", 1, WithPttIdType(7)), "");
}

} // namespace
} // namespace zelvor
