#include "data/KeyFields.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

using key_assignment::Keys;

struct Function {
    const char* english;
    const char* chinese;
    int byte;
};
constexpr Function Functions[] = {
    {"None", "无", 0xFF},
    {"Autodial", "自动拨号", 0},
    {"Key Lock", "按键锁定", 2},
    {"Key Lock with Backup", "按键锁定及备份", 3},
    {"Monitor", "监听", 4},
    {"Monitor Momentary", "监听瞬时", 5},
    {"Scan", "扫描", 6},
    {"Scan+Temporary Delete", "扫描+暂时删除", 7},
    {"Scrambler", "扰频器", 8},
    {"Squelch Off", "取消静噪", 9},
    {"Squelch Off Momentary", "瞬时取消静噪", 10},
    {"Temporary Delete", "暂时删除", 11},
};

TEST(KeyFieldsTest, TwoKeysLieBehindEachOther) {
    ASSERT_EQ(Keys.size(), 2U);
    EXPECT_EQ(Keys[0].label.In(Language::English), "PF1");
    EXPECT_EQ(Keys[0].label.In(Language::Chinese), "PF1");
    EXPECT_EQ(Keys[0].address, 0x11D);
    EXPECT_EQ(Keys[1].label.In(Language::English), "PF2");
    EXPECT_EQ(Keys[1].label.In(Language::Chinese), "PF2");
    EXPECT_EQ(Keys[1].address, 0x11E);
}

TEST(KeyFieldsTest, BothHaveTheSameTwelveFunctions) {
    for (const ListField& key : Keys) {
        ASSERT_EQ(key.words.size(), 12U);
        for (int i = 0; i < 12; ++i) {
            EXPECT_EQ(key.words[static_cast<std::size_t>(i)].In(Language::English), Functions[i].english);
            EXPECT_EQ(key.words[static_cast<std::size_t>(i)].In(Language::Chinese), Functions[i].chinese);
            EXPECT_EQ(ByteOf(key, i), Functions[i].byte) << Functions[i].english;
            EXPECT_EQ(EntryOf(key, static_cast<std::uint8_t>(Functions[i].byte)), i) << Functions[i].english;
        }
    }
}

TEST(KeyFieldsTest, AByteWithoutAFunctionReadsAsNoneAndTheByteOneAsAutodial) {
    for (const ListField& key : Keys) {
        EXPECT_EQ(EntryOf(key, 1), 1);
        for (int byte = 12; byte < 256; ++byte) {
            EXPECT_EQ(EntryOf(key, static_cast<std::uint8_t>(byte)), 0) << byte;
        }
    }
}

} // namespace
} // namespace zelvor
