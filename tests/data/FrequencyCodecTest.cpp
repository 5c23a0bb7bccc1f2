#include "data/FrequencyCodec.h"

#include <gtest/gtest.h>

#include <string_view>

namespace zelvor {
namespace {

constexpr BandLimits AnyModel{100, 550};
constexpr BandLimits NoModel{136, 174};

struct Coded {
    std::string_view text;
    FrequencyBytes bytes;
};

TEST(FrequencyCodec, CodesKnownFrequenciesBothWays) {
    const Coded cases[] = {
        {"136.00000", {0x00, 0x00, 0x60, 0x13}}, {"145.12500", {0x00, 0x25, 0x51, 0x14}},
        {"450.00625", {0x25, 0x06, 0x00, 0x45}}, {"550.00000", {0x00, 0x00, 0x00, 0x55}},
        {"123.45678", {0x78, 0x56, 0x34, 0x12}}, {"000.00000", {0x00, 0x00, 0x00, 0x00}},
        {"999.99999", {0x99, 0x99, 0x99, 0x99}}, {"000.00001", {0x01, 0x00, 0x00, 0x00}},
    };
    for (const Coded& expected : cases) {
        EXPECT_EQ(FrequencyText(expected.bytes), expected.text);
        EXPECT_EQ(EncodeFrequency(expected.text), expected.bytes) << expected.text;
    }
}

TEST(FrequencyCodec, ErasesTheBytesOfTheEmptyText) {
    EXPECT_EQ(EncodeFrequency(""), (FrequencyBytes{0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST(FrequencyCodec, RoundsATextToTenHertzInDecimal) {
    EXPECT_EQ(EncodeFrequency("145.125004"), (FrequencyBytes{0x00, 0x25, 0x51, 0x14}));
    EXPECT_EQ(EncodeFrequency("145.125005"), (FrequencyBytes{0x01, 0x25, 0x51, 0x14}));
    EXPECT_EQ(EncodeFrequency("145.124995"), (FrequencyBytes{0x00, 0x25, 0x51, 0x14}));
    EXPECT_EQ(EncodeFrequency("145"), (FrequencyBytes{0x00, 0x00, 0x50, 0x14}));
    EXPECT_EQ(EncodeFrequency("145.1.9"), (FrequencyBytes{0x00, 0x00, 0x51, 0x14}));
    EXPECT_EQ(EncodeFrequency("None"), (FrequencyBytes{0x00, 0x00, 0x00, 0x00}));
}

TEST(FrequencyCodec, TakesTheDigitsByTheirPlaceInTheText) {
    // "14505.0000": 14, 50, ".0", 00
    EXPECT_EQ(EncodeFrequency("1450.5"), (FrequencyBytes{0x00, 0x00, 0x50, 0x14}));
}

TEST(FrequencyCodec, LetsANibbleAboveNineWidenTheTextBeforeItIsFormatted) {
    const Coded cases[] = {
        {"200.00000", {0x00, 0x00, 0x00, 0x1A}}, // 20 00 00 00
        {"111.00000", {0x00, 0x00, 0x00, 0xAB}}, // 111 00 00 00
        {"141.65165", {0xFF, 0xFF, 0xFF, 0x14}}, // 14 165 165 165
        {"165.16517", {0xFF, 0xFF, 0xFF, 0xFF}}, // 165 165 165 165, rounded
        {"140.00010", {0x0A, 0x00, 0x00, 0x14}}, // 14 00 00 10
        {"140.01000", {0x00, 0x0A, 0x00, 0x14}}, // 14 00 10 00 {"141.50000", {0x00, 0x00, 0x0F, 0x14}},
    };
    for (const Coded& expected : cases) {
        EXPECT_EQ(FrequencyText(expected.bytes), expected.text);
    }
}

TEST(FrequencyCodec, CallsAFrequencyZeroWhereAllDigitsAreZero) {
    EXPECT_TRUE(IsZeroFrequency(FrequencyBytes{0, 0, 0, 0}));
    EXPECT_FALSE(IsZeroFrequency(FrequencyBytes{1, 0, 0, 0}));
    EXPECT_FALSE(IsZeroFrequency(FrequencyBytes{0, 0, 0, 0x10}));
}

TEST(FrequencyCodec, PacksUnitsOfTenHertz) {
    EXPECT_EQ(PackFrequency(14512500), (FrequencyBytes{0x00, 0x25, 0x51, 0x14}));
    EXPECT_EQ(PackFrequency(0), (FrequencyBytes{0x00, 0x00, 0x00, 0x00}));
    EXPECT_EQ(PackFrequency(99999999), (FrequencyBytes{0x99, 0x99, 0x99, 0x99}));
}

struct Entered {
    std::string_view text;
    std::string_view result;
    bool outOfRange;
};

void ExpectNormalised(const Entered& expected, const BandLimits& limits) {
    const NormalisedFrequency result = NormaliseFrequency(expected.text, limits);
    EXPECT_EQ(result.text, expected.result) << expected.text;
    EXPECT_EQ(result.outOfRange, expected.outOfRange) << expected.text;
}

TEST(NormaliseFrequency, MovesAnEntryToTheNearestRasterPoint) {
    const Entered cases[] = {
        {"145", "145.00000", false},       // typed short
        {"145.0031", "145.00500", false},  // 190 against 310 units of 10 Hz
        {"145.01375", "145.01250", false}, // 125 from either: the 6.25 kHz raster
        {"145.00500", "145.00500", false}, // 5 kHz only
        {"145.00625", "145.00625", false}, // 6.25 kHz only
        {"145.01875", "145.01875", false}, //
        {"145.02500", "145.02500", false}, // both
        {"145.00001", "145.00000", false}, //
        {"145.00300", "145.00500", false}, // 200 against 300
        {"145.00200", "145.00000", false}, // both rasters go down
        {"145.00562", "145.00500", false}, // 62 against 63
        {"145.00563", "145.00625", false}, // 63 against 62
        {"145.01125", "145.01250", false}, // 125 from 145.01000, 125 from 145.01250: a tie
        {"145.01124", "145.01000", false}, //
        {"145.0.5", "145.00000", false},   // a second point ends the number
        {"145.1x", "145.10000", false},    //
        {"100", "100.00000", false},       // the limits belong to the range
        {"550", "550.00000", false},       //
        {"549.99999", "550.00000", false}, //
    };
    for (const Entered& expected : cases) {
        ExpectNormalised(expected, AnyModel);
    }
}

TEST(NormaliseFrequency, ComparesDistancesBelowTenHertzExactly) {
    const Entered cases[] = {
        {"145.005625", "145.00625", false},   // 62.5 from either: the 6.25 kHz raster
        {"145.00562499", "145.00500", false}, // 62.499 against 62.501
        {"145.00562501", "145.00625", false}, //
        {"145.00500001", "145.00500", false}, // beside the raster, moved onto it
        {"145.00312500", "145.00500", false}, // half of 6.25 kHz goes up: 187.5 against 312.5
        {"145.0025", "145.00000", false},     // half of 5 kHz goes up: 250 against 250
        {"145.00250001", "145.00500", false}, // 249.999 against 250.001
        {"145.00249999", "145.00000", false}, //
        {"145.011249", "145.01000", false},   // 124.9 against 125.1
        {"145.011251", "145.01250", false},   //
    };
    for (const Entered& expected : cases) {
        ExpectNormalised(expected, AnyModel);
    }
}

TEST(NormaliseFrequency, MovesAnEntryOutside100To550MHzToTheLimit) {
    const Entered cases[] = {
        {"550.00001", "550.00000", true}, {"550.0000001", "550.00000", true},
        {"600", "550.00000", true},       {"999999999", "550.00000", true},
        {"99.99999", "100.00000", true},  {"99.9999999", "100.00000", true},
        {"90", "100.00000", true},        {"", "100.00000", true},
        {".", "100.00000", true},         {"None", "100.00000", true},
        {"0", "100.00000", true},         {"-145", "100.00000", true},
    };
    for (const Entered& expected : cases) {
        ExpectNormalised(expected, AnyModel);
    }
}

TEST(NormaliseFrequency, KeepsAnEntryOutsideANarrowerRangeAfterTheMessage) {
    const Entered cases[] = {
        {"120", "120.00000", true},      {"90", "100.00000", true},        {"100", "100.00000", true},
        {"120.0031", "120.00310", true}, {"135.99999", "135.99999", true}, {"136", "136.00000", false},
        {"174", "174.00000", false},     {"174.00001", "174.00001", true}, {"200.000005", "200.00001", true},
        {"550", "550.00000", true},      {"550.00001", "550.00000", true}, {"145.0031", "145.00500", false},
    };
    for (const Entered& expected : cases) {
        ExpectNormalised(expected, NoModel);
    }
}

TEST(NormaliseFrequency, LeavesEveryRasterPointAsItIs) {
    for (const int raster : {500, 625}) {
        for (int tensOfHertz = 10'000'000; tensOfHertz <= 55'000'000; tensOfHertz += raster) {
            const std::string text = FrequencyText(PackFrequency(tensOfHertz));
            ASSERT_EQ(NormaliseFrequency(text, AnyModel).text, text);
        }
    }
}

TEST(NormaliseFrequency, MovesEveryOtherFrequencyOntoTheRasterOnce) {
    for (int tensOfHertz = 14'400'000; tensOfHertz <= 14'600'000; tensOfHertz += 5) {
        const std::string text = FrequencyText(PackFrequency(tensOfHertz));
        const std::string result = NormaliseFrequency(text, AnyModel).text;
        const bool onRaster = tensOfHertz % 500 == 0 || tensOfHertz % 625 == 0;
        ASSERT_EQ(result == text, onRaster) << text;
        ASSERT_EQ(NormaliseFrequency(result, AnyModel).text, result) << text;
    }
}

} // namespace
} // namespace zelvor
