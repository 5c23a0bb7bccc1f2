#include "data/EmbeddedMessage.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

using embedded_message::StorableLength;

TEST(EmbeddedMessage, ALineIsStorableUpToTheFirstCharacterThatDoesNotComeBack) {
    EXPECT_EQ(StorableLength(u""), 0U);
    EXPECT_EQ(StorableLength(u"Radio 7"), 7U);
    EXPECT_EQ(StorableLength(u"\u00C4\u20AC\u0178\u0081"), 4U);
    EXPECT_EQ(StorableLength(u"ab\u4FE1c"), 2U);
    EXPECT_EQ(StorableLength(u"a\u00FFb"), 1U); // the byte of an erased field
    EXPECT_EQ(StorableLength(u"\xD83D\xDE00"), 0U);
}

TEST(EmbeddedMessage, WhatIsStorableIsExactlyWhatAStoredLineShowsAgain) {
    for (char32_t character = 0; character <= 0xFFFF; ++character) {
        const std::u16string line = {u'<', static_cast<char16_t>(character), u'>'};
        DataImage image;
        embedded_message::Store(image, 0, line);
        const bool comesBack = embedded_message::Load(image, 0) == line;
        ASSERT_EQ(StorableLength(line) == line.size(), comesBack) << static_cast<unsigned>(character);
    }
}

} // namespace
} // namespace zelvor
