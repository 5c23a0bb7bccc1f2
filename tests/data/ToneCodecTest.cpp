#include "data/ToneCodec.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <iterator>
#include <string>
#include <string_view>

namespace zelvor {
namespace {

constexpr std::string_view ExpectedTones[] = {
#include "ExpectedTones.inc"
};

struct Coded {
    std::string_view text;
    ToneWord word;
};

constexpr Coded KnownTones[] = {{"67.0", {0x9E, 0x02}},  {"250.3", {0xC7, 0x09}}, {"100.0", {0xE8, 0x03}},
                                {"D023N", {0x13, 0x28}}, {"D023I", {0x13, 0xA8}}, {"D754N", {0xEC, 0x29}},
                                {"D754I", {0xEC, 0xA9}}, {"254.1", {0xED, 0x09}}, {"25.6", {0x00, 0x01}}};

TEST(ToneCodec, CodesKnownTonesBothWays) {
    for (const Coded& tone : KnownTones) {
        ToneEncoder encoder;
        EXPECT_EQ(ToneText(tone.word, Language::English), tone.text);
        EXPECT_EQ(encoder.Encode(tone.text, Language::English), tone.word) << tone.text;
        EXPECT_EQ(encoder.Encode(tone.text, Language::Chinese), tone.word) << tone.text;
    }
}

TEST(ToneCodec, ListsAll205TonesInOrder) {
    ASSERT_EQ(std::size(ExpectedTones), 204U);
    for (const Language language : {Language::English, Language::Chinese}) {
        const std::vector<std::string> list = BuildToneList(language);
        ASSERT_EQ(list.size(), 205U);
        EXPECT_EQ(list[0], language == Language::English ? "None" : "无");
        for (std::size_t i = 1; i < list.size(); ++i) {
            EXPECT_EQ(list[i], ExpectedTones[i - 1]) << i;
        }
    }
    EXPECT_EQ(BuildToneList(Language::English)[38], "250.3");
    EXPECT_EQ(BuildToneList(Language::English)[39], "D023N");
    EXPECT_EQ(BuildToneList(Language::English)[122], "D023I");
}

TEST(ToneCodec, BringsEveryToneOfTheListBack) {
    for (const Language language : {Language::English, Language::Chinese}) {
        ToneEncoder encoder;
        for (const std::string& tone : BuildToneList(language)) {
            EXPECT_EQ(ToneText(encoder.Encode(tone, language), language), tone);
        }
    }
}

TEST(ToneCodec, ShowsNoToneForAHighByteOf00OrFF) {
    for (int lo = 0; lo < 256; ++lo) {
        for (const std::uint8_t hi : {0x00, 0xFF}) {
            const ToneWord word{static_cast<std::uint8_t>(lo), hi};
            EXPECT_EQ(ToneText(word, Language::English), "None");
            EXPECT_EQ(ToneText(word, Language::Chinese), "无");
        }
    }
}

TEST(ToneCodec, EncodesNoToneAsErasedBytes) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("None", Language::English), (ToneWord{0xFF, 0xFF}));
    EXPECT_EQ(encoder.Encode("无", Language::Chinese), (ToneWord{0xFF, 0xFF}));
}

TEST(ToneCodec, EncodesAnEmptyTextAndTheOtherLanguagesNoneAsZero) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("", Language::English), (ToneWord{0x00, 0x00}));
    EXPECT_EQ(encoder.Encode("无", Language::English), (ToneWord{0x00, 0x00}));
    EXPECT_EQ(encoder.Encode("None", Language::Chinese), (ToneWord{0x00, 0x00}));
}

TEST(ToneCodec, ShowsAQtBelow25Point6HertzAsNoTone) {
    ToneEncoder encoder;
    const ToneWord word = encoder.Encode("25.5", Language::English);
    EXPECT_EQ(word, (ToneWord{0xFF, 0x00}));
    EXPECT_EQ(ToneText(word, Language::English), "None");
}

TEST(ToneCodec, RoundsAQtToTenthsOfAHertz) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("67.04", Language::English), (ToneWord{0x9E, 0x02}));
    EXPECT_EQ(encoder.Encode("66.95", Language::English), (ToneWord{0x9E, 0x02}));
    EXPECT_EQ(encoder.Encode("67", Language::English), (ToneWord{0x9E, 0x02}));
}

TEST(ToneCodec, KnowsDqtByBitFiveAndIgnoresTheBitsWithoutMeaning) {
    for (int hi = 0; hi < 256; ++hi) {
        if ((hi & 0x20) == 0 || hi == 0xFF) {
            continue;
        }
        const std::string text = ToneText({0x13, static_cast<std::uint8_t>(hi)}, Language::English).value_or("");
        const std::string code = (hi & 0x01) != 0 ? "D423" : "D023";
        EXPECT_EQ(text, code + ((hi & 0x80) != 0 ? "I" : "N")) << hi;
    }
}

TEST(ToneCodec, CodesEveryOctalCodeBothWays) {
    ToneEncoder encoder;
    for (int code = 0; code < 512; ++code) {
        for (const bool inverted : {false, true}) {
            char text[8];
            static_cast<void>(
                std::snprintf(text, sizeof text, "D%03o%c", static_cast<unsigned>(code), inverted ? 'I' : 'N'));
            const ToneWord word{static_cast<std::uint8_t>(code & 0xFF),
                                static_cast<std::uint8_t>(0x28 | (code >> 8) | (inverted ? 0x80 : 0x00))};
            EXPECT_EQ(encoder.Encode(text, Language::English), word) << text;
            EXPECT_EQ(ToneText(word, Language::English), text);
        }
    }
}

TEST(ToneCodec, ShowsTenthsOfAHertzAndNothingForAQtOfFiveDigits) {
    for (int hi = 1; hi < 255; ++hi) {
        if ((hi & 0x20) != 0) {
            continue;
        }
        for (int lo = 0; lo < 256; ++lo) {
            const std::optional<std::string> text =
                ToneText({static_cast<std::uint8_t>(lo), static_cast<std::uint8_t>(hi)}, Language::English);
            std::string digits = std::to_string(hi * 256 + lo);
            if (digits.size() == 5) {
                ASSERT_EQ(text, std::nullopt) << digits;
            } else {
                ASSERT_EQ(text, digits.insert(digits.size() - 1, 1, '.')) << digits;
            }
        }
    }
    EXPECT_EQ(ToneText({0x0F, 0x27}, Language::English), "D417N"); // 9999 tenths would have bit 5
    EXPECT_EQ(ToneText({0xFF, 0x1F}, Language::English), "819.1");
    EXPECT_EQ(ToneText({0x00, 0x40}, Language::English), std::nullopt);
}

TEST(ToneEncoder, FindsItsLettersInEitherCase) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("d754i", Language::English), (ToneWord{0xEC, 0xA9}));
    EXPECT_EQ(encoder.Encode("D023n", Language::English), (ToneWord{0x13, 0x28}));
    EXPECT_EQ(encoder.Encode("d023N", Language::English), (ToneWord{0x13, 0x28}));
}

TEST(ToneEncoder, KeepsThePolarityBeforeForATextWithNeitherLetter) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("D023", Language::English), (ToneWord{0x13, 0x28}));
    EXPECT_EQ(encoder.Encode("D023I", Language::English), (ToneWord{0x13, 0xA8}));
    EXPECT_EQ(encoder.Encode("D023", Language::English), (ToneWord{0x13, 0xA8}));
    EXPECT_EQ(encoder.Encode("67.0", Language::English), (ToneWord{0x9E, 0x02}));
    EXPECT_EQ(encoder.Encode("None", Language::English), (ToneWord{0xFF, 0xFF}));
    EXPECT_EQ(encoder.Encode("D754", Language::English), (ToneWord{0xEC, 0xA9}));
    EXPECT_EQ(encoder.Encode("D754N", Language::English), (ToneWord{0xEC, 0x29}));
    EXPECT_EQ(encoder.Encode("D754", Language::English), (ToneWord{0xEC, 0x29}));
}

TEST(ToneEncoder, TakesNormalWhereATextHoldsBothLetters) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("D023IN", Language::English), (ToneWord{0x13, 0x28}));
}

TEST(ToneEncoder, TakesMissingDigitsAsZero) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("D", Language::English), (ToneWord{0x00, 0x28}));
    EXPECT_EQ(encoder.Encode("D2", Language::English), (ToneWord{0x80, 0x28}));
    const std::string_view longer = "D027";
    EXPECT_EQ(encoder.Encode(longer.substr(0, 3), Language::English), (ToneWord{0x10, 0x28}));
}

TEST(ToneEncoder, CountsEightAndNineAsTheyAre) {
    ToneEncoder encoder;
    EXPECT_EQ(encoder.Encode("D089N", Language::English), (ToneWord{0x49, 0x28})); // 8 * 8 + 9
    EXPECT_EQ(encoder.Encode("D900N", Language::English), (ToneWord{0x40, 0x2A})); // 64 * 9
    EXPECT_EQ(encoder.Encode("D/0:N", Language::English), (ToneWord{0x00, 0x28})); // no digits
}

struct Entered {
    std::string_view text;
    std::string_view result;
};

TEST(NormaliseTone, CompletesWhatWasTyped) {
    const Entered cases[] = {
        {"", "None"},       {"None", "None"},    {"D", "D000N"},      {"D23", "D230N"},    {"D9", "D700N"},
        {"D023", "D023N"},  {"D023N", "D023N"},  {"D023I", "D023I"},  {"D023D", "D023N"},  {"D.5", "D050N"},
        {"D889", "D777N"},  {"D1.2I", "D102I"},  {"D23I", "D237N"},   {"DIN", "D770N"},    {"D0000", "D000N"},
        {"N", "67.0"},      {"I", "67.0"},       {"N023", "67.0"},    {"300", "254.1"},    {"254.2", "254.1"},
        {"254.1", "254.1"}, {"254.11", "254.1"}, {"254.09", "254.0"}, {"100.04", "100.0"}, {"100.09", "100.0"},
        {"100.1", "100.1"}, {"67", "67.0"},      {"67.09", "67.0"},   {"66.99", "67.0"},   {"5", "67.0"},
        {".", "67.0"},      {"88.55", "88.5"},   {"123.4", "123.4"},  {"99.99", "99.9"},   {"1..", "67.0"},
    };
    for (const Entered& expected : cases) {
        EXPECT_EQ(NormaliseTone(expected.text, Language::English), expected.result) << expected.text;
    }
}

TEST(NormaliseTone, UsesTheWordForNoneOfTheLanguage) {
    EXPECT_EQ(NormaliseTone("", Language::Chinese), "无");
    EXPECT_EQ(NormaliseTone("无", Language::Chinese), "无");
    EXPECT_EQ(NormaliseTone("无", Language::English), "67.0");
}

TEST(NormaliseTone, AcceptsEveryTenthOfAHertzAndEveryToneOfTheList) {
    for (int tenths = 670; tenths <= 2541; ++tenths) {
        const std::string text = std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
        EXPECT_EQ(NormaliseTone(text, Language::English), text);
    }
    for (const std::string_view tone : ExpectedTones) {
        EXPECT_EQ(NormaliseTone(tone, Language::English), tone);
    }
}

} // namespace
} // namespace zelvor
