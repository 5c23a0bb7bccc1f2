#include "data/Windows1252.h"

#include <gtest/gtest.h>
#include <set>

namespace zelvor {
namespace {

TEST(Windows1252, AsciiAndTheLatinHalfStandForThemselves) {
    for (int byte = 0; byte <= 255; ++byte) {
        if (byte < 0x80 || byte > 0x9F) {
            EXPECT_EQ(Windows1252Character(static_cast<std::uint8_t>(byte)), byte);
        }
    }
}

TEST(Windows1252, TheBytesFrom80To9FHaveTheirOwnCharacters) {
    const std::u16string characters =
        u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
        u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
    ASSERT_EQ(characters.size(), 32U);
    for (int i = 0; i < 32; ++i) {
        EXPECT_EQ(Windows1252Character(static_cast<std::uint8_t>(0x80 + i)), characters[static_cast<std::size_t>(i)])
            << i;
    }
}

TEST(Windows1252, EveryByteComesBackFromItsCharacter) {
    for (int byte = 0; byte <= 255; ++byte) {
        const char16_t character = Windows1252Character(static_cast<std::uint8_t>(byte));
        EXPECT_EQ(Windows1252Byte(character), byte);
    }
}

TEST(Windows1252, ExactlyTwoHundredFiftySixCharactersHaveAByte) {
    std::set<int> bytes;
    int known = 0;
    for (int character = 0; character <= 0xFFFF; ++character) {
        if (const auto byte = Windows1252Byte(static_cast<char16_t>(character))) {
            bytes.insert(*byte);
            ++known;
        }
    }
    EXPECT_EQ(known, 256);
    EXPECT_EQ(bytes.size(), 256U);
}

TEST(Windows1252, CharactersOutsideHaveNone) {
    for (const int character : {0x0080, 0x0085, 0x0100, 0x4FE1, 0xD83D, 0xFFFD}) {
        EXPECT_FALSE(Windows1252Byte(static_cast<char16_t>(character)).has_value());
    }
}

} // namespace
} // namespace zelvor
