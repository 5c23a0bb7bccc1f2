#include "shell/RememberedSettings.h"

#include <gtest/gtest.h>

#include "data/DataImage.h"
#include "fakes/FakeSettingsStore.h"

namespace zelvor {
namespace {

constexpr int MarketByte = 0x1BD;
constexpr int FamilyByte = 0x1BE;

struct RememberedSettingsTest : testing::Test {
    FakeSettingsStore settings;
    DataImage image;

    void ExpectModel(int market, int family) {
        EXPECT_EQ(image.At(MarketByte), market);
        EXPECT_EQ(image.At(FamilyByte), family);
    }

    void ExpectDefaultModelFor(const char* text) {
        SCOPED_TRACE(text);
        FakeSettingsStore store;
        store.Preset("LastModel", text);
        RestoreModel(image, store);
        ExpectModel(1, 0xF8);
        EXPECT_TRUE(store.Writes().empty());
    }
};

using Writes = std::vector<std::pair<std::string, std::string>>;

TEST_F(RememberedSettingsTest, AFirstRunStoresTheDefaultModelAndNoLanguage) {
    RestoreModel(image, settings);
    EXPECT_EQ(RestoreLanguage(settings), Language::English);
    ExpectModel(1, 0xF8);
    EXPECT_EQ(settings.Writes(), (Writes{{"LastModel", "50:34:36:31:38:01:F8:FF"}}));
}

TEST_F(RememberedSettingsTest, TheStoredModelComesBackAndTheOtherSixBytesAreIgnored) {
    settings.Preset("LastModel", "00:00:00:00:00:21:FC:00");
    RestoreModel(image, settings);
    ExpectModel(0x21, 0xFC);
    EXPECT_EQ(image.At(0x1B8), 0xFF);
}

TEST_F(RememberedSettingsTest, AModelTextThatEndsBehindTheFamilyIsEnough) {
    settings.Preset("LastModel", "50:34:36:31:38:71:F9");
    RestoreModel(image, settings);
    ExpectModel(0x71, 0xF9);
}

TEST_F(RememberedSettingsTest, ATooShortModelTextIsTheDefaultModel) {
    ExpectDefaultModelFor("");
    ExpectDefaultModelFor("50");
    ExpectDefaultModelFor("50:34:36:31:38:71:F");
}

TEST_F(RememberedSettingsTest, AModelTextThatIsNotHexadecimalIsTheDefaultModel) {
    ExpectDefaultModelFor("50:34:36:31:38:G1:F9:FF");
    ExpectDefaultModelFor("50:34:36:31:38:71:-1:FF");
    ExpectDefaultModelFor("50:34:36:31:38:71:f9:FF");
}

TEST_F(RememberedSettingsTest, AnyNumberButZeroIsChinese) {
    for (const char* text : {"1", "-1", " 2", "1x"}) {
        SCOPED_TRACE(text);
        settings.Preset("Language", text);
        EXPECT_EQ(RestoreLanguage(settings), Language::Chinese);
    }
}

TEST_F(RememberedSettingsTest, ZeroNothingAndAnythingElseIsEnglish) {
    for (const char* text : {"0", "", "x1", "00"}) {
        SCOPED_TRACE(text);
        settings.Preset("Language", text);
        EXPECT_EQ(RestoreLanguage(settings), Language::English);
    }
}

TEST_F(RememberedSettingsTest, ALanguageAskedForBeforeAnythingIsStoredBecomesZero) {
    EXPECT_EQ(RestoreLanguage(settings), Language::English);
    EXPECT_EQ(settings.Writes(), (Writes{{"Language", "0"}}));
}

TEST_F(RememberedSettingsTest, TheModelOfTheDocumentAndTheLanguageAreStored) {
    const std::uint8_t identity[] = {0x50, 0x35, 0x36, 0x31, 0x33, 0x70, 0xF9, 0x0A};
    for (int i = 0; i < 8; ++i) {
        image.Set(0x1B8 + i, identity[i]);
    }
    StoreSettings(image, Language::Chinese, settings);
    EXPECT_TRUE(settings.Exists());
    EXPECT_EQ(settings.Writes(), (Writes{{"LastModel", "50:35:36:31:33:70:F9:0A"}, {"Language", "1"}}));
}

TEST_F(RememberedSettingsTest, EnglishIsStoredAsZero) {
    StoreSettings(image, Language::English, settings);
    EXPECT_EQ(settings.Read("Language"), "0");
}

} // namespace
} // namespace zelvor
