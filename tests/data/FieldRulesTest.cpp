#include "data/FieldRules.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/BlankImage.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

using Keys = std::vector<std::string>;

/// The fields of every rule that is broken in an image of model 4618, market M, with channel 2 on 145.125 MHz and these
/// bytes.
Keys Broken(std::initializer_list<std::pair<int, const char*>> bytes) {
    DataImage image;
    image.Set(0x1BD, 1);
    image.Set(0x1BE, 0xF8);
    InitAllFrameData(image);
    testing::StoreHex(image, 0x020, "0025511400255114FFFF132800BFB0F8");
    for (const auto& [address, hex] : bytes) {
        testing::StoreHex(image, address, hex);
    }
    Keys keys;
    for (const BrokenRule& broken : BrokenRules(image)) {
        for (const Field& field : broken.fields) {
            keys.push_back(field.Key());
        }
    }
    return keys;
}

TEST(FieldRules, AreKeptByASoundImage) {
    EXPECT_EQ(Broken({}), Keys());
}

TEST(FieldRules, WantAPriorityChannelThatIsProgrammed) {
    for (const char* mode : {"00", "01", "02"}) {
        const char* revert = mode[1] == '2' ? "02" : "00";
        EXPECT_EQ(Broken({{0x160, mode}, {0x164, revert}, {0x161, "03"}}),
                  (Keys{"scan.priority-channel", "channels.3.rx_mhz"}));
        EXPECT_EQ(Broken({{0x160, mode}, {0x164, revert}, {0x161, "01"}}),
                  (Keys{"scan.priority-channel", "channels.1.rx_mhz"}));
        EXPECT_EQ(Broken({{0x160, mode}, {0x164, revert}, {0x161, "10"}}),
                  (Keys{"scan.priority-channel", "channels.16.rx_mhz"}));
        EXPECT_EQ(Broken({{0x160, mode}, {0x164, revert}, {0x161, "02"}}), Keys());
        EXPECT_EQ(Broken({{0x160, mode}, {0x164, revert}, {0x161, "FF"}}), Keys());
        EXPECT_EQ(Broken({{0x160, mode}, {0x164, revert}, {0x161, "11"}}), Keys()); // no channel at all
    }
}

TEST(FieldRules, WantARevertChannelThatThePriorityModeOffers) {
    // None (also where the mode was never stored), Fixed, Selected; a mode that is none offers all.
    const std::pair<const char*, Keys> offers[] = {{"00", {"00", "01"}},
                                                   {"FF", {"00", "01"}},
                                                   {"01", {"00", "01", "02", "03"}},
                                                   {"02", {"02", "03"}},
                                                   {"03", {"00", "01", "02", "03"}}};
    for (const auto& [mode, offered] : offers) {
        for (const char* revert : {"00", "01", "02", "03"}) {
            const bool isOffered = std::ranges::find(offered, revert) != offered.end();
            EXPECT_EQ(Broken({{0x160, mode}, {0x164, revert}}),
                      isOffered ? Keys() : (Keys{"scan.revert-channel", "scan.priority"}))
                << mode << ' ' << revert;
        }
    }
}

TEST(FieldRules, WantOwnNumberAndFleetListEntriesWhole) {
    EXPECT_EQ(Broken({{0x170, "01"}}), (Keys{"corvane.own-id", "corvane.own-fleet"}));
    EXPECT_EQ(Broken({{0x171, "0100"}}), (Keys{"corvane.own-fleet", "corvane.own-id"}));
    EXPECT_EQ(Broken({{0x170, "010100"}}), Keys());
    EXPECT_EQ(Broken({{0x1C0, "01"}}), (Keys{"corvane.fleet-list.1.id", "corvane.fleet-list.1.fleet"}));
    EXPECT_EQ(Broken({{0x1C1, "0100"}}), (Keys{"corvane.fleet-list.1.fleet", "corvane.fleet-list.1.id"}));
    EXPECT_EQ(Broken({{0x1C0, "00FFFF"}}), (Keys{"corvane.fleet-list.1.id", "corvane.fleet-list.1.fleet"}));
    EXPECT_EQ(Broken({{0x1C0, "000000"}}), Keys()); // all of both
    EXPECT_EQ(Broken({{0x1D9, "01"}}), (Keys{"corvane.fleet-list.8.id", "corvane.fleet-list.8.fleet"}));
}

TEST(FieldRules, WantATransmitFrequencyForAnEncodeTone) {
    EXPECT_EQ(Broken({{0x024, "FFFFFFFF"}}), (Keys{"channels.2.encode", "channels.2.tx_mhz"}));
    EXPECT_EQ(Broken({{0x024, "00000000"}}), (Keys{"channels.2.encode", "channels.2.tx_mhz"}));
    EXPECT_EQ(Broken({{0x024, "FFFFFFFFFFFFFFFF"}}), Keys());
    EXPECT_EQ(Broken({{0x024, "FFFFFFFF72031300"}}), Keys()); // a decode tone needs none
    EXPECT_EQ(Broken({{0x020, "FFFFFFFFFFFFFFFF"}}), Keys()); // a blank channel has none
    constexpr const char* Receiving = "00255114FFFFFFFFFFFF132800BFB0F8";
    EXPECT_EQ(Broken({{0x010, Receiving}, {0x100, Receiving}}),
              (Keys{"channels.1.encode", "channels.1.tx_mhz", "channels.16.encode", "channels.16.tx_mhz"}));
}

} // namespace
} // namespace zelvor
