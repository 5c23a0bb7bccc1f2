#include "text/Utf8.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

TEST(Utf8, TurnsCharactersOfEveryLengthIntoTheirBytesAndBack) {
    const struct {
        std::u16string_view utf16;
        std::string_view utf8;
    } rows[] = {{u"", ""},
                {u"A*1#", "A*1#"},
                {u"\u007F\u0080\u07FF", "\x7F\xC2\x80\xDF\xBF"},
                {u"\u0800\u20AC\uFFFD", "\xE0\xA0\x80\xE2\x82\xAC\xEF\xBF\xBD"},
                {u"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
                {u"信道", "信道"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Utf8Of(row.utf16), row.utf8);
        EXPECT_EQ(Utf16Of(row.utf8), row.utf16);
    }
}

TEST(Utf8, PutsAReplacementInPlaceOfWhatIsNoText) {
    EXPECT_EQ(Utf16Of("\x80"), u"\uFFFD");             // begins no character
    EXPECT_EQ(Utf16Of("\xC2"), u"\uFFFD");             // cut short
    EXPECT_EQ(Utf16Of("\xE2\x82x"), u"\uFFFDx");       // cut short by a character
    EXPECT_EQ(Utf16Of("\xC1\x81"), u"\uFFFD\uFFFD");   // longer than needed
    EXPECT_EQ(Utf16Of("\xE0\x80\x80"), u"\uFFFD");     // longer than needed
    EXPECT_EQ(Utf16Of("\xED\xA0\x80"), u"\uFFFD");     // half of a pair
    EXPECT_EQ(Utf16Of("\xF4\x90\x80\x80"), u"\uFFFD"); // beyond the last character
    EXPECT_EQ(Utf8Of(std::u16string_view(u"\xD800x", 2)), "\xEF\xBF\xBDx");
    EXPECT_EQ(Utf8Of(std::u16string_view(u"\xDC00", 1)), "\xEF\xBF\xBD");
}

TEST(WholeCharacters, AreAllOfATextThatEndsWithOne) {
    EXPECT_EQ(WholeCharacters(""), 0U);
    EXPECT_EQ(WholeCharacters("a"), 1U);
    EXPECT_EQ(WholeCharacters("é"), 2U);
    EXPECT_EQ(WholeCharacters("信道"), 6U);
    EXPECT_EQ(WholeCharacters("a\xF0\x9F\x98\x80"), 5U);
}

TEST(WholeCharacters, LeaveOutOneThatIsNotComplete) {
    EXPECT_EQ(WholeCharacters("\xC3"), 0U);
    EXPECT_EQ(WholeCharacters("a\xE4"), 1U);
    EXPECT_EQ(WholeCharacters("a\xE4\xBF"), 1U);
    EXPECT_EQ(WholeCharacters("信\xF0\x9F\x98"), 3U);
}

TEST(WholeCharacters, CountWhatNothingCanCompleteAsItIs) {
    EXPECT_EQ(WholeCharacters("a\xFF"), 2U);
    EXPECT_EQ(WholeCharacters("\x80\x80\x80\x80"), 4U);
    EXPECT_EQ(WholeCharacters("a\x80"), 2U);
}

} // namespace
} // namespace zelvor
