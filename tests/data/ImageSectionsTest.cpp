#include "data/ImageSections.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "data/BlankImage.h"
#include "data/ChannelFields.h"
#include "data/CorvaneFields.h"
#include "data/FieldRegistry.h"
#include "data/TestFrequencies.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

constexpr Language En = Language::English;

DataImage BlankOf(std::uint8_t family, std::uint8_t market) {
    DataImage image;
    image.Set(0x1BE, family);
    image.Set(0x1BD, market);
    InitAllFrameData(image);
    return image;
}

TEST(ImageSections, AreThoseOfTheRegistryWithChannelsAndIdentity) {
    std::vector<std::string> names;
    std::size_t fields = 0;
    for (const ImageSection& section : ImageSections()) {
        names.emplace_back(section.name);
        fields += section.fields.size();
    }
    EXPECT_EQ(names, (std::vector<std::string>{"optional", "keys", "scan", "dtmf", "corvane", "test", "message",
                                               "channels", "identity"}));
    EXPECT_EQ(fields, AllFields().size() + 16 * 14 + 2);
    EXPECT_EQ(FindSection("scan")->fields.size(), 7U);
    EXPECT_EQ(FindSection("scanning"), nullptr);
}

TEST(ImageSections, FindEveryFieldByAKeyOfItsOwn) {
    std::set<std::string> keys;
    for (const ImageSection& section : ImageSections()) {
        for (const Field& field : section.fields) {
            EXPECT_TRUE(keys.insert(field.Key()).second) << field.Key();
            ASSERT_NE(FindImageField(field.Key()), nullptr) << field.Key();
            EXPECT_EQ(FindImageField(field.Key())->Key(), field.Key());
            EXPECT_NE(field.Label(Language::Chinese), "") << field.Key();
        }
    }
    for (const char* key :
         {"", "channels", "channels.0.power", "channels.17.power", "channels.1.channel", "beep", "."}) {
        EXPECT_EQ(FindImageField(key), nullptr) << key;
    }
}

TEST(IdentityFields, NameModelAndMarketAndCannotBeSet) {
    const Field& model = *FindImageField("identity.model");
    const Field& market = *FindImageField("identity.market");
    DataImage image = BlankOf(0xF8, 51);
    const DataImage before = image;
    EXPECT_EQ(model.Show(image, En), "5618");
    EXPECT_EQ(market.Show(image, En), "C");
    EXPECT_TRUE(model.HoldsLegal(image));
    EXPECT_TRUE(model.Parse("5618", image));
    EXPECT_FALSE(model.Parse("4618", image));
    EXPECT_FALSE(market.Parse("", image));
    EXPECT_TRUE(image == before);
    image.Set(0x1BD, 99);
    image.Set(0x1BE, 0xF9);
    EXPECT_EQ(model.Show(image, En), "");
    EXPECT_FALSE(market.HoldsLegal(image));
    EXPECT_FALSE(market.Parse("", image));
}

/// Whether a value is legal as its texts tell it: what is shown is taken, and stored as the same bytes unless they were
/// never stored; of a text only what it shows counts, and of an empty test channel nothing.
bool IsLegalByItsTexts(const Field& field, const DataImage& image) {
    DataImage copy = image;
    if (field.As<TestFrequencyField>() != nullptr && field.Show(image, En).empty()) {
        return true;
    }
    if (!field.Parse(field.Show(image, En), copy)) {
        return false;
    }
    bool isErased = true;
    for (int i = 0; i < field.Size(); ++i) {
        isErased = isErased && image.At(field.Address() + i) == 0xFF;
    }
    return copy == image || isErased || field.As<TextField>() != nullptr;
}

TEST(FieldRegistry, TellsLegalBytesAsItsTextsDo) {
    for (const Field& field : AllFields()) {
        if (field.Size() != 1) {
            continue;
        }
        for (int byte = 0; byte <= 0xFF; ++byte) {
            DataImage image = BlankOf(0xF8, 1);
            image.Set(field.Address(), static_cast<std::uint8_t>(byte));
            EXPECT_EQ(field.HoldsLegal(image), IsLegalByItsTexts(field, image)) << field.Key() << ' ' << byte;
        }
    }
}

TEST(FieldRegistry, TellsLegalWordsOfTwoBytesAsItsTextsDo) {
    for (const Field& field : AllFields()) {
        if (field.Size() != 2) {
            continue;
        }
        for (int value = 0; value <= 0xFFFF; value += value % 256 == 255 || value > 6100 ? 127 : 17) {
            DataImage image = BlankOf(0xF8, 1);
            image.Set(field.Address(), static_cast<std::uint8_t>(value % 256));
            image.Set(field.Address() + 1, static_cast<std::uint8_t>(value / 256));
            EXPECT_EQ(field.HoldsLegal(image), IsLegalByItsTexts(field, image)) << field.Key() << ' ' << value;
        }
    }
}

TEST(FieldRegistry, TellsLegalTextsAndFrequenciesAsTheirTextsDo) {
    constexpr unsigned Seed = 4711;
    std::mt19937 random(Seed);
    const std::string usual = "0123456789ABCDabcd*# \xFF\xFF\xFF";
    for (int run = 0; run < 300; ++run) {
        for (const Field& field : AllFields()) {
            if (field.Size() <= 2) {
                continue;
            }
            DataImage image = run % 3 == 0 ? testing::RandomImage(random) : BlankOf(0xF8, 1);
            for (int i = 0; run % 3 == 1 && i < field.Size(); ++i) {
                image.Set(field.Address() + i, static_cast<std::uint8_t>(usual[random() % usual.size()]));
            }
            image.Set(0x1BE, 0xF8);
            EXPECT_EQ(field.HoldsLegal(image), IsLegalByItsTexts(field, image))
                << field.Key() << " seed " << Seed << " run " << run;
        }
    }
}

} // namespace
} // namespace zelvor
