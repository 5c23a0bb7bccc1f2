#include "channels/ChannelCaption.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

TEST(ChannelCaption, NamesTheChannelWithBlanksRoundTheDash) {
    EXPECT_EQ(ChannelCaption(Language::English, 1), " Channel Information [ Channel - 1 ]");
    EXPECT_EQ(ChannelCaption(Language::English, 16), " Channel Information [ Channel - 16 ]");
    EXPECT_EQ(ChannelCaption(Language::Chinese, 1), " 信道信息 [ 信道 - 1 ]");
    EXPECT_EQ(ChannelCaption(Language::Chinese, 16), " 信道信息 [ 信道 - 16 ]");
}

TEST(ChannelCaption, HasNoBlanksRoundTheDashInANewEnglishDocument) {
    EXPECT_EQ(NewDocumentChannelCaption(Language::English), " Channel Information [ Channel-1 ]");
    EXPECT_EQ(NewDocumentChannelCaption(Language::Chinese), " 信道信息 [ 信道 - 1 ]");
}

} // namespace
} // namespace zelvor
