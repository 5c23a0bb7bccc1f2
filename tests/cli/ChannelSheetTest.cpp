#include "cli/ChannelSheet.h"

#include <random>

#include "cli/CliFixture.h"

namespace zelvor::cli {
namespace {

using Lines = std::vector<std::string>;
constexpr const char* Heading = "channel,rx_mhz,tx_mhz,decode,encode,power,width,scan_add,option_signalling,ptt_id,"
                                "sp_unmute,busy_lockout,autodial,beat_shift,compander\n";

class ChannelSheetTest : public CliTest {
protected:
    static std::string Hex(const DataImage& image, int address, int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            char pair[3];
            static_cast<void>(std::snprintf(pair, sizeof pair, "%02X", image.At(address + i)));
            text += pair;
        }
        return text;
    }

    /// "line:column: reason" of each fault.
    static Lines Faults(const std::string& table, const DataImage& image = Programmed()) {
        Lines lines;
        const SheetImport import = ImportChannels(table, image, Language::English);
        for (const SheetFault& fault : import.faults) {
            lines.push_back(std::to_string(fault.line) + ':' + fault.column + ": " + fault.reason);
        }
        return lines;
    }

    static DataImage Imported(const std::string& table, const DataImage& image = Programmed()) {
        const SheetImport import = ImportChannels(table, image, Language::English);
        EXPECT_TRUE(import.faults.empty()) << table << import.faults[0].reason;
        return import.image;
    }
};

TEST_F(ChannelSheetTest, ExportsAllChannelsAndBlankOnesWithTheNumberAlone) {
    std::string expected = Heading;
    expected += "1,,,,,,,,,,,,,,\n"
                "2,145.12500,145.12500,88.2,D023N,High,Wide,yes,None,Off,Carrier,Off,1,no,no\n";
    for (int k = 3; k <= 15; ++k) {
        expected += std::to_string(k) + ",,,,,,,,,,,,,,\n";
    }
    expected += "16,150.00000,,None,None,High,Wide,no,None,Off,Carrier,Off,1,no,no\n";
    EXPECT_EQ(ExportChannels(Programmed()), expected);
}

TEST_F(ChannelSheetTest, ImportsColumnsInAnyOrderAndLeavesTheOthers) {
    DataImage expected = Programmed();
    testing::StoreHex(expected, 0x02C, "199FB1FF");
    EXPECT_TRUE(Imported("compander,autodial,ptt_id,busy_lockout,channel,power\nyes,8,On,Option Signalling,2,Low\n") ==
                expected);
    EXPECT_TRUE(Imported("channel\n1\n2\n") == Programmed());
    EXPECT_TRUE(Imported("channel,power\n1,\n2,\n") == Programmed());
}

TEST_F(ChannelSheetTest, TakesWhatSpreadsheetsMakeOfIt) {
    DataImage expected = Programmed();
    testing::StoreHex(expected, 0x020, "00005014000025149E02");
    EXPECT_TRUE(Imported("\xEF\xBB\xBF"
                         "channel,rx_mhz,tx_mhz,decode\r\n\"2\",145,142.5,67\r\n") == expected);
}

TEST_F(ChannelSheetTest, AnEmptyReceiveFrequencyBlanksAndAnEmptyTransmitFrequencyReceivesOnly) {
    DataImage expected = Programmed();
    testing::StoreHex(expected, 0x020, "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF");
    EXPECT_TRUE(Imported("channel,rx_mhz,tx_mhz,power\n2,,145.125,High\n") == expected);
    expected = Programmed();
    testing::StoreHex(expected, 0x024, "FFFFFFFF");
    EXPECT_TRUE(Imported("channel,tx_mhz\n2,\n") == expected);
}

TEST_F(ChannelSheetTest, ABlankChannelWithAFrequencyBecomesANewOne) {
    DataImage expected = Programmed();
    testing::StoreHex(expected, 0x030, "00255114FFFFFFFF9E02FFFF00BFB0F8");
    expected.Set(0x17E, 0x06);
    EXPECT_TRUE(Imported("channel,decode,rx_mhz\n3,67.0,145.125\n") == expected);
}

TEST_F(ChannelSheetTest, TellsAllFaultsOfATable) {
    EXPECT_EQ(
        Faults("channel,rx_mhz,tx_mhz,power,ptt_id,decode\n"
               "2,145.123,99,Mid,Own,66\n"
               "3,145.125,145.125,High\n"
               "17,145.125,,High,On,None\n"
               "2,145.125,,High,On,None\n"
               "4,,,Mid,Off,None\n"
               "x,1,,,,\n"
               "5,145.125,,\"Hi\"gh,,\n"),
        (Lines{"2:rx_mhz: \"145.123\" is no multiple of 5 kHz or 6.25 kHz",
               "2:tx_mhz: \"99\" is outside the range in MHz of 100-550", "2:power: \"Mid\" is none of: High, Low",
               "2:ptt_id: \"Own\" is none of: Off, On",
               "2:decode: \"66\" is none of: None; 67.0 to 254.1 by 0.1; D000N to D777I by 1",
               "3:ptt_id: 4 fields instead of 6", "4:channel: \"17\" is no channel from 1 to 16",
               "5:channel: the channel stands already in line 2", "6:power: \"Mid\" is none of: High, Low",
               "7:channel: \"x\" is no channel from 1 to 16", "7:rx_mhz: \"1\" is outside the range in MHz of 100-550",
               "8:power: text follows the closing quotation mark"}));
}

TEST_F(ChannelSheetTest, TellsAFaultyHeading) {
    EXPECT_EQ(Faults(""), Lines{"1:channel: the heading lacks this column"});
    EXPECT_EQ(Faults("rx_mhz\n145.125\n"), Lines{"1:channel: the heading lacks this column"});
    EXPECT_EQ(Faults("channel,RX_MHZ,power,power,channel\n2,,High,High,2\n"),
              (Lines{"1:RX_MHZ: there is no such column", "1:power: the column is there already",
                     "1:channel: the column is there already"}));
    EXPECT_EQ(Faults("channel, rx_mhz,power\n2,145,High\n3,146,Low\n4,147,Mid\n"),
              (Lines{"1: rx_mhz: there is no such column", "4:power: \"Mid\" is none of: High, Low"}));
    EXPECT_EQ(Faults("channel,power\n2,High,\n"), Lines{"2:power: 3 fields instead of 2"});
    EXPECT_EQ(Faults("channel,power\n2,High\n\n"), Lines{"3:power: 1 fields instead of 2"});
    EXPECT_EQ(Faults("channel,power\n2,\"High\n"), Lines{"2:power: the closing quotation mark is missing"});
}

TEST_F(ChannelSheetTest, ValuesOfABlankChannelNeedAFrequency) {
    EXPECT_EQ(Faults("channel,power\n2,High\n3,High\n4,\n"),
              Lines{"3:channel: the channel is blank, and the table gives it no receive frequency"});
}

TEST_F(ChannelSheetTest, TheWordsOfThePttIdAreThoseOfTheImagesType) {
    DataImage image = Programmed();
    image.Set(0x133, 1);
    EXPECT_EQ(Imported("channel,ptt_id\n2,Fleet List 3\n", image).At(0x02E), 0xB4);
    EXPECT_EQ(Faults("channel,ptt_id\n2,On\n", image),
              Lines{"2:ptt_id: \"On\" is none of: Off, Own, Fleet List 1, Fleet List 2, Fleet List 3, Fleet List 4, "
                    "Fleet List 5, Fleet List 6, Fleet List 7, Fleet List 8"});
    image.Set(0x133, 9);
    EXPECT_EQ(Faults("channel,ptt_id\n2,On\n", image),
              Lines{"2:ptt_id: under the PTT ID Type of the image there is none"});
    EXPECT_TRUE(Imported("channel,ptt_id\n2,\n", image) == image);
}

// --- There and back --------------------------------------------------------------------------------------------------

std::uint8_t Pick(std::mt19937& random, std::initializer_list<int> values) {
    return static_cast<std::uint8_t>(*(values.begin() + random() % values.size()));
}

std::string RandomFrequency(std::mt19937& random) {
    const unsigned step = random() % 2 == 0 ? 500 : 625;
    const unsigned frequency = (10'000'000 / step + random() % (45'000'000 / step)) * step;
    char digits[9];
    static_cast<void>(std::snprintf(digits, sizeof digits, "%08u", frequency));
    const std::string text = digits;
    return text.substr(6, 2) + text.substr(4, 2) + text.substr(2, 2) + text.substr(0, 2);
}

std::string RandomTone(std::mt19937& random) {
    char text[5];
    switch (random() % 3) {
    case 0: {
        const unsigned tenths = 670 + random() % (2541 - 670 + 1);
        static_cast<void>(std::snprintf(text, sizeof text, "%02X%02X", tenths % 256, tenths / 256));
        return text;
    }
    case 1:
        static_cast<void>(
            std::snprintf(text, sizeof text, "%02X%02X", static_cast<unsigned>(random() % 256),
                          0x28U | (random() % 2 != 0 ? 0x80U : 0U) | static_cast<unsigned>(random() % 2)));
        return text;
    default:
        return "FFFF";
    }
}

/// Channels that hold nothing but legal values, as the windows store them; some of them blank.
DataImage RandomLegal(std::mt19937& random, std::uint8_t pttIdType) {
    DataImage image;
    image.Set(0x1BD, 1);
    image.Set(0x1BE, 0xF8);
    InitAllFrameData(image);
    image.Set(0x133, pttIdType);
    for (int k = 1; k <= 16; ++k) {
        if (random() % 5 == 0) {
            continue;
        }
        const int at = 16 * k;
        testing::StoreHex(image, at, RandomFrequency(random));
        testing::StoreHex(image, at + 4, random() % 4 == 0 ? "FFFFFFFF" : RandomFrequency(random));
        testing::StoreHex(image, at + 8, RandomTone(random) + RandomTone(random));
        image.Set(at + 12, static_cast<std::uint8_t>(Pick(random, {0, 1}) | Pick(random, {0, 2, 4}) |
                                                     Pick(random, {0, 8, 16, 24}) | Pick(random, {0, 0x20, 0x40})));
        image.Set(at + 13, static_cast<std::uint8_t>(0x8F | Pick(random, {0, 0x10}) | Pick(random, {0, 0x20}) |
                                                     Pick(random, {0, 0x40})));
        image.Set(at + 14, static_cast<std::uint8_t>(0xB0 + random() % (pttIdType == 0 ? 2 : 10)));
        image.Set(at + 15, static_cast<std::uint8_t>(248 + random() % 8));
        if (random() % 2 == 0) {
            image.SetBits(0x17E + (k - 1) / 8, static_cast<std::uint8_t>(1U << (k - 1) % 8), 0xFF);
        }
    }
    return image;
}

TEST_F(ChannelSheetTest, BringsTheChannelsOfAnyLegalImageIntoAnyOther) {
    constexpr unsigned Seed = 20261122;
    std::mt19937 random(Seed);
    for (int run = 0; run < 2000; ++run) {
        const std::uint8_t type = static_cast<std::uint8_t>(random() % 2);
        const DataImage from = RandomLegal(random, type);
        DataImage to = RandomLegal(random, type);
        for (int k = 1; k <= 16; ++k) { // a blank channel has no Scan Add bit in the table
            if (from.At(16 * k) == 0xFF) {
                to.SetBits(0x17E + (k - 1) / 8, static_cast<std::uint8_t>(1U << (k - 1) % 8), 0x00);
            }
        }
        const std::string table = ExportChannels(from);
        EXPECT_TRUE(Imported(table, from) == from) << "seed " << Seed << ", run " << run;
        const DataImage result = Imported(table, to);
        EXPECT_EQ(Hex(result, 0x010, 256), Hex(from, 0x010, 256)) << "seed " << Seed << ", run " << run;
        EXPECT_EQ(Hex(result, 0x17E, 2), Hex(from, 0x17E, 2)) << "seed " << Seed << ", run " << run;
        EXPECT_EQ(ExportChannels(result), table) << "seed " << Seed << ", run " << run;
    }
}

TEST_F(ChannelSheetTest, AFrequencyOutsideANarrowerRangeGoesBackAsItIs) {
    DataImage image = Programmed();
    testing::StoreHex(image, 0x020, "0000004500000045"); // 450 MHz
    image.Set(0x1BE, 0xFF);                              // of a family that takes 136 to 174 MHz
    EXPECT_TRUE(Imported(ExportChannels(image), image) == image);
    EXPECT_EQ(Faults("channel,rx_mhz\n2,451\n", image).size(), 1U);
}

/// What the bytes of a value without a word are, a table cannot say; so its own table leaves them.
TEST_F(ChannelSheetTest, OfAnyImageWithLegalFrequenciesAndTonesItsOwnTableChangesNothing) {
    constexpr unsigned Seed = 77;
    std::mt19937 random(Seed);
    for (int run = 0; run < 2000; ++run) {
        DataImage image = RandomLegal(random, static_cast<std::uint8_t>(random() % 3));
        for (int k = 1; k <= 16; ++k) {
            for (int j = 12; j < 16; ++j) {
                image.Set(16 * k + j, static_cast<std::uint8_t>(random()));
            }
        }
        image.Set(0x17E, static_cast<std::uint8_t>(random()));
        EXPECT_TRUE(Imported(ExportChannels(image), image) == image) << "seed " << Seed << ", run " << run;
    }
}

// --- Bad tables ------------------------------------------------------------------------------------------------------

std::string Mutated(std::string table, std::mt19937& random) {
    const std::string bytes = "0123456789.,\"\r\n-xN\xFF\xC3 ";
    for (unsigned times = 1 + random() % 4; times > 0 && !table.empty(); --times) {
        const std::size_t place = random() % table.size();
        switch (random() % 5) {
        case 0:
            table[place] = bytes[random() % bytes.size()];
            break;
        case 1:
            table.insert(place, 1, bytes[random() % bytes.size()]);
            break;
        case 2:
            table.erase(place, 1 + random() % 20);
            break;
        case 3:
            table.insert(place, table.substr(random() % table.size(), random() % 40));
            break;
        default:
            table.resize(place);
            break;
        }
    }
    return table;
}

TEST_F(ChannelSheetTest, TenThousandSpoiltTablesAreTakenOrRefusedWithAReason) {
    constexpr unsigned Seed = 10000;
    std::mt19937 random(Seed);
    int refused = 0;
    for (int run = 0; run < 10000; ++run) {
        const DataImage image = RandomLegal(random, static_cast<std::uint8_t>(random() % 2));
        const SheetImport import = ImportChannels(Mutated(ExportChannels(image), random), image, Language::English);
        for (const SheetFault& fault : import.faults) {
            EXPECT_GE(fault.line, 1);
            EXPECT_NE(fault.reason, "");
        }
        refused += import.faults.empty() ? 0 : 1;
        for (int address = 0x110; import.faults.empty() && address < 0x400; ++address) {
            if (address != 0x17E && address != 0x17F) {
                ASSERT_EQ(import.image.At(address), image.At(address)) << "seed " << Seed << ", run " << run;
            }
        }
    }
    EXPECT_GT(refused, 5000);
    EXPECT_LT(refused, 10000); // some changes are to legal values
}

} // namespace
} // namespace zelvor::cli
