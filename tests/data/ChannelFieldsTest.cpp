#include "data/ChannelFields.h"

#include <gtest/gtest.h>

#include <random>

#include "data/TestImages.h"

namespace zelvor {
namespace {

constexpr Language En = Language::English;
constexpr Language Zh = Language::Chinese;

constexpr int Channel3 = 0x030;
constexpr int PttIdType = 0x133;

ChannelField Of(ChannelColumn column, int channel = 3) {
    return {channel, column};
}

/// Channel 3 with 145.125 MHz both ways and nothing special.
DataImage Programmed(std::uint8_t pttIdType = 0) {
    DataImage image;
    image.Set(0x1BD, 1);
    image.Set(0x1BE, 0xF8);
    image.Set(PttIdType, pttIdType);
    testing::StoreHex(image, Channel3, "0025511400255114FFFFFFFF00BFB0F8");
    return image;
}

std::string Shown(const DataImage& image, ChannelColumn column, Language language = En) {
    return ShowValue(Of(column), image, language);
}

/// Parses a text into the programmed channel and looks at the record's bytes from one on.
void ExpectStores(ChannelColumn column, const char* text, int byte, const char* bytes, std::uint8_t pttIdType = 0) {
    DataImage image = Programmed(pttIdType);
    DataImage expected = image;
    testing::StoreHex(expected, Channel3 + byte, bytes);
    EXPECT_TRUE(ParseValue(Of(column), text, image)) << text;
    EXPECT_TRUE(image == expected) << NameOf(column) << ' ' << text;
}

void ExpectRefuses(ChannelColumn column, std::initializer_list<const char*> texts, std::uint8_t pttIdType = 0) {
    for (const char* text : texts) {
        DataImage image = Programmed(pttIdType);
        EXPECT_FALSE(ParseValue(Of(column), text, image)) << NameOf(column) << ' ' << text;
        EXPECT_TRUE(image == Programmed(pttIdType)) << NameOf(column) << ' ' << text;
    }
}

TEST(ChannelFields, AreNamedByChannelAndColumnForGood) {
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Receive)), "channels.3.rx_mhz");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Transmit)), "channels.3.tx_mhz");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Decode)), "channels.3.decode");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Encode)), "channels.3.encode");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Power)), "channels.3.power");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Width)), "channels.3.width");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::ScanAdd)), "channels.3.scan_add");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::OptionSignalling)), "channels.3.option_signalling");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::PttId)), "channels.3.ptt_id");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::SpUnmute)), "channels.3.sp_unmute");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::BusyLockout)), "channels.3.busy_lockout");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Autodial)), "channels.3.autodial");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::BeatShift)), "channels.3.beat_shift");
    EXPECT_EQ(KeyOf(Of(ChannelColumn::Compander, 16)), "channels.16.compander");
    EXPECT_EQ(LabelOf(Of(ChannelColumn::Width), En), "Channel 3 Wide/Narrow");
    EXPECT_EQ(LabelOf(Of(ChannelColumn::PttId), Zh), "信道 3 PTT ID");
}

TEST(ChannelFields, LieInTheirRecordAndTheScanAddBytes) {
    struct Lies {
        ChannelColumn column;
        int channel;
        int address;
        int size;
    };
    for (const Lies& expected :
         {Lies{ChannelColumn::Receive, 3, 0x030, 4}, Lies{ChannelColumn::Transmit, 3, 0x034, 4},
          Lies{ChannelColumn::Decode, 3, 0x038, 2}, Lies{ChannelColumn::Encode, 3, 0x03A, 2},
          Lies{ChannelColumn::OptionSignalling, 3, 0x03C, 1}, Lies{ChannelColumn::SpUnmute, 3, 0x03C, 1},
          Lies{ChannelColumn::BusyLockout, 3, 0x03C, 1}, Lies{ChannelColumn::Compander, 3, 0x03C, 1},
          Lies{ChannelColumn::Power, 3, 0x03D, 1}, Lies{ChannelColumn::Width, 3, 0x03D, 1},
          Lies{ChannelColumn::BeatShift, 3, 0x03D, 1}, Lies{ChannelColumn::PttId, 3, 0x03E, 1},
          Lies{ChannelColumn::PttId, 16, 0x10E, 1}, Lies{ChannelColumn::Autodial, 3, 0x03F, 1},
          Lies{ChannelColumn::ScanAdd, 8, 0x17E, 1}, Lies{ChannelColumn::ScanAdd, 9, 0x17F, 1}}) {
        const ChannelField field = Of(expected.column, expected.channel);
        EXPECT_EQ(AddressOf(field), expected.address) << KeyOf(field);
        EXPECT_EQ(SizeOf(field), expected.size) << KeyOf(field);
    }
}

TEST(ChannelFields, ShowARecordInBothLanguages) {
    DataImage image = Programmed();
    testing::StoreHex(image, Channel3, "00255114000045147203132833CFB1FB");
    EXPECT_EQ(Shown(image, ChannelColumn::Receive), "145.12500");
    EXPECT_EQ(Shown(image, ChannelColumn::Transmit), "144.50000");
    EXPECT_EQ(Shown(image, ChannelColumn::Decode), "88.2");
    EXPECT_EQ(Shown(image, ChannelColumn::Encode), "D023N");
    EXPECT_EQ(Shown(image, ChannelColumn::Power), "Low");
    EXPECT_EQ(Shown(image, ChannelColumn::Width), "Narrow");
    EXPECT_EQ(Shown(image, ChannelColumn::ScanAdd), "yes");
    EXPECT_EQ(Shown(image, ChannelColumn::OptionSignalling), "DTMF");
    EXPECT_EQ(Shown(image, ChannelColumn::PttId), "On");
    EXPECT_EQ(Shown(image, ChannelColumn::SpUnmute), "Carrier + Opt.Sig.");
    EXPECT_EQ(Shown(image, ChannelColumn::BusyLockout), "QT/DQT");
    EXPECT_EQ(Shown(image, ChannelColumn::Autodial), "4");
    EXPECT_EQ(Shown(image, ChannelColumn::BeatShift), "yes");
    EXPECT_EQ(Shown(image, ChannelColumn::Compander), "yes");
    EXPECT_EQ(Shown(image, ChannelColumn::Power, Zh), "低");
    EXPECT_EQ(Shown(image, ChannelColumn::ScanAdd, Zh), "有");
}

TEST(ChannelFields, ShowNothingWhereBytesStandForNoWord) {
    DataImage image = Programmed(0xFF);
    testing::StoreHex(image, Channel3 + 8, "1040100166");
    EXPECT_EQ(Shown(image, ChannelColumn::Transmit), "145.12500");
    EXPECT_EQ(Shown(image, ChannelColumn::Decode), ""); // no word for five digits
    EXPECT_EQ(Shown(image, ChannelColumn::Encode), "27.2");
    EXPECT_EQ(Shown(image, ChannelColumn::OptionSignalling), "");
    EXPECT_EQ(Shown(image, ChannelColumn::SpUnmute), "");
    EXPECT_EQ(Shown(image, ChannelColumn::PttId), "");
}

TEST(ChannelFields, OfABlankChannelShowNothingAndTakeNothing) {
    for (const char* record : {"FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF", "00000000002551140000000000BFB0F8"}) {
        DataImage image = Programmed();
        testing::StoreHex(image, Channel3, record);
        const DataImage before = image;
        EXPECT_TRUE(IsChannelBlank(image, 3));
        for (const ChannelField& field : ChannelFieldRows[2]) {
            EXPECT_EQ(ShowValue(field, image, En), "");
            EXPECT_TRUE(ParseValue(field, "", image));
            EXPECT_TRUE(HoldsLegalValue(field, image));
        }
        EXPECT_FALSE(ParseValue(Of(ChannelColumn::Power), "High", image));
        EXPECT_FALSE(ParseValue(Of(ChannelColumn::ScanAdd), "no", image));
        EXPECT_FALSE(ParseValue(Of(ChannelColumn::Transmit), "145.12500", image));
        EXPECT_TRUE(image == before) << record;
    }
}

TEST(ChannelFields, StoreEveryWordInItsOwnBitsAlone) {
    ExpectStores(ChannelColumn::Receive, "150.00625", 0, "25060015");
    ExpectStores(ChannelColumn::Transmit, "150", 4, "00000015");
    ExpectStores(ChannelColumn::Transmit, "", 4, "FFFFFFFF");
    ExpectStores(ChannelColumn::Decode, "67.0", 8, "9E02");
    ExpectStores(ChannelColumn::Decode, "67", 8, "9E02");
    ExpectStores(ChannelColumn::Decode, "254.1", 8, "ED09");
    ExpectStores(ChannelColumn::Encode, "D754I", 10, "ECA9");
    ExpectStores(ChannelColumn::Encode, "D000N", 10, "0028");
    ExpectStores(ChannelColumn::Encode, "None", 10, "FFFF");
    ExpectStores(ChannelColumn::Power, "Low", 13, "9F");
    ExpectStores(ChannelColumn::Width, "Narrow", 13, "AF");
    ExpectStores(ChannelColumn::BeatShift, "yes", 13, "FF");
    ExpectStores(ChannelColumn::BeatShift, "Yes", 13, "FF");
    ExpectStores(ChannelColumn::OptionSignalling, "DTMF", 12, "02");
    ExpectStores(ChannelColumn::OptionSignalling, "Corvane", 12, "04");
    ExpectStores(ChannelColumn::SpUnmute, "Carrier + Opt.Sig.", 12, "20");
    ExpectStores(ChannelColumn::SpUnmute, "Carrier or Opt.Sig.", 12, "40");
    ExpectStores(ChannelColumn::BusyLockout, "Carrier", 12, "08");
    ExpectStores(ChannelColumn::BusyLockout, "QT/DQT", 12, "10");
    ExpectStores(ChannelColumn::BusyLockout, "Option Signalling", 12, "18");
    ExpectStores(ChannelColumn::Compander, " yes ", 12, "01");
    ExpectStores(ChannelColumn::Compander, "Yes", 12, "01");
    ExpectStores(ChannelColumn::Autodial, "8", 15, "FF");
    ExpectStores(ChannelColumn::PttId, "On", 14, "B1");
    ExpectStores(ChannelColumn::PttId, "Own", 14, "B1", 1);
    ExpectStores(ChannelColumn::PttId, "Fleet List 1", 14, "B2", 1);
    ExpectStores(ChannelColumn::PttId, "Fleet List 8", 14, "B9", 1);
    ExpectStores(ChannelColumn::Power, "低", 13, "9F");
}

TEST(ChannelFields, StoreTheScanAddBit) {
    DataImage image = Programmed();
    image.Set(0x17E, 0x00);
    image.Set(0x17F, 0x00);
    EXPECT_TRUE(ParseValue(Of(ChannelColumn::ScanAdd), "yes", image));
    EXPECT_EQ(image.At(0x17E), 0x04);
    EXPECT_TRUE(ParseValue(Of(ChannelColumn::ScanAdd), "no", image));
    EXPECT_EQ(image.At(0x17E), 0x00);
    EXPECT_EQ(image.At(0x17F), 0x00);
}

TEST(ChannelFields, RefuseWhatTheWindowsWouldCorrectOrDoNotOffer) {
    ExpectRefuses(ChannelColumn::Receive, {"99.995", "550.005", "145.123", "145.1250001", "145,125", "145.125 MHz",
                                           "-145.125", "1e2", "0", "145.", ".5", "145.12500000001", "Rx"});
    ExpectRefuses(ChannelColumn::Transmit, {"99.995", "145.123", "None"});
    ExpectRefuses(ChannelColumn::Decode, {"", "66.9", "254.2", "67.05", "D023", "D023n", "D08N", "D0234N", "D083N",
                                          "D+23N", "D 23N", "Off", "N", "-67.0", "67.0 Hz"});
    ExpectRefuses(ChannelColumn::Power, {"", "Medium", "high"});
    ExpectRefuses(ChannelColumn::ScanAdd, {"", "YES", "1"});
    ExpectRefuses(ChannelColumn::OptionSignalling, {"", "Off"});
    ExpectRefuses(ChannelColumn::PttId, {"", "Own", "Fleet List 1"});
    ExpectRefuses(ChannelColumn::PttId, {"", "On", "Fleet List 0", "Fleet List 9", "Fleet List"}, 1);
    ExpectRefuses(ChannelColumn::PttId, {"", "On", "Off", "Own"}, 0xFF);
    ExpectRefuses(ChannelColumn::SpUnmute, {"", "QT/DQT"});
    ExpectRefuses(ChannelColumn::BusyLockout, {"", "None"});
    ExpectRefuses(ChannelColumn::Autodial, {"", "0", "9", "01"});
}

TEST(ChannelFields, TellTheirLegalValues) {
    const std::pair<ChannelColumn, std::vector<std::string>> columns[] = {
        {ChannelColumn::Power, {"High", "Low"}},
        {ChannelColumn::Width, {"Wide", "Narrow"}},
        {ChannelColumn::ScanAdd, {"yes", "no"}},
        {ChannelColumn::OptionSignalling, {"None", "DTMF", "Corvane"}},
        {ChannelColumn::PttId,
         {"Off", "On", "Own", "Fleet List 1", "Fleet List 2", "Fleet List 3", "Fleet List 4", "Fleet List 5",
          "Fleet List 6", "Fleet List 7", "Fleet List 8"}},
        {ChannelColumn::SpUnmute, {"Carrier", "Carrier + Opt.Sig.", "Carrier or Opt.Sig."}},
        {ChannelColumn::BusyLockout, {"Off", "Carrier", "QT/DQT", "Option Signalling"}},
        {ChannelColumn::Autodial, {"1", "2", "3", "4", "5", "6", "7", "8"}},
        {ChannelColumn::BeatShift, {"no", "yes"}},
        {ChannelColumn::Compander, {"no", "yes"}},
    };
    for (const auto& [column, words] : columns) {
        EXPECT_EQ(LegalValuesOf(Of(column), En), (LegalValues{.words = words})) << NameOf(column);
    }
    for (const ChannelColumn column : {ChannelColumn::Receive, ChannelColumn::Transmit}) {
        EXPECT_EQ(LegalValuesOf(Of(column), En),
                  (LegalValues{.mayBeEmpty = true,
                               .range = LegalValues::Range{"100.00000", "550.00000", "0.00500 or 0.00625"}}));
    }
    for (const ChannelColumn column : {ChannelColumn::Decode, ChannelColumn::Encode}) {
        EXPECT_EQ(LegalValuesOf(Of(column), Zh), (LegalValues{.words = {"无"},
                                                              .range = LegalValues::Range{"67.0", "254.1", "0.1"},
                                                              .codes = LegalValues::Range{"D000N", "D777I", "1"}}));
    }
}

TEST(ChannelFields, KeepTheBytesOfWhatIsShownAlready) {
    DataImage image = Programmed();
    testing::StoreHex(image, Channel3 + 8, "000000308141BF03");
    const DataImage before = image;
    EXPECT_EQ(Shown(image, ChannelColumn::Encode), "D000N");
    for (const ChannelField& field : ChannelFieldRows[2]) {
        EXPECT_TRUE(ParseValue(field, ShowValue(field, before, En), image)) << KeyOf(field);
    }
    EXPECT_TRUE(image == before);
}

TEST(ChannelFields, AReceiveFrequencyBeginsANewChannelWithItsValues) {
    for (const std::uint8_t pttIdType : {0, 1}) {
        DataImage image = Programmed(pttIdType);
        testing::StoreHex(image, Channel3, "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF");
        image.Set(0x17E, 0x00);
        DataImage expected = image;
        testing::StoreHex(expected, Channel3, "00255114FFFFFFFFFFFFFFFF00BFB0F8");
        expected.Set(0x17E, 0x04);
        EXPECT_TRUE(ParseValue(Of(ChannelColumn::Receive), "145.125", image));
        EXPECT_TRUE(image == expected);
        EXPECT_EQ(Shown(image, ChannelColumn::Transmit), "");
        EXPECT_EQ(Shown(image, ChannelColumn::Power), "High");
        EXPECT_EQ(Shown(image, ChannelColumn::Width), "Wide");
        EXPECT_EQ(Shown(image, ChannelColumn::PttId), "Off");
    }
}

TEST(ChannelFields, AnEmptyReceiveFrequencyBlanksTheChannelButItsScanAddBit) {
    DataImage image = Programmed();
    image.Set(0x17E, 0x04);
    DataImage expected = image;
    testing::StoreHex(expected, Channel3, "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF");
    EXPECT_TRUE(ParseValue(Of(ChannelColumn::Receive), "", image));
    EXPECT_TRUE(image == expected);
}

TEST(ChannelFields, AreKeptToTheRangeOfADocumentWithoutIdentity) {
    DataImage image = Programmed();
    image.Set(0x1BE, 0xFF);
    EXPECT_FALSE(ParseValue(Of(ChannelColumn::Receive), "450.00000", image));
    EXPECT_TRUE(ParseValue(Of(ChannelColumn::Receive), "174.00000", image));
}

TEST(ChannelFields, TellIllegalValues) {
    const auto isLegal = [](ChannelColumn column, int byte, const char* bytes, std::uint8_t pttIdType = 0) {
        DataImage image = Programmed(pttIdType);
        testing::StoreHex(image, Channel3 + byte, bytes);
        return HoldsLegalValue(Of(column), image);
    };
    EXPECT_TRUE(isLegal(ChannelColumn::Receive, 0, "00255114"));
    EXPECT_FALSE(isLegal(ChannelColumn::Receive, 0, "00235114")); // off the raster
    EXPECT_FALSE(isLegal(ChannelColumn::Receive, 0, "00255109")); // below 100 MHz
    EXPECT_FALSE(isLegal(ChannelColumn::Receive, 0, "0A255114")); // no digit
    EXPECT_TRUE(isLegal(ChannelColumn::Transmit, 4, "FFFFFFFF"));
    EXPECT_FALSE(isLegal(ChannelColumn::Transmit, 4, "00000060"));
    EXPECT_FALSE(isLegal(ChannelColumn::Decode, 8, "1040"));
    EXPECT_FALSE(isLegal(ChannelColumn::Decode, 8, "9D02"));
    EXPECT_TRUE(isLegal(ChannelColumn::Decode, 8, "9E02"));
    EXPECT_FALSE(isLegal(ChannelColumn::OptionSignalling, 12, "06"));
    EXPECT_FALSE(isLegal(ChannelColumn::SpUnmute, 12, "60"));
    EXPECT_TRUE(isLegal(ChannelColumn::BusyLockout, 12, "FF"));
    EXPECT_FALSE(isLegal(ChannelColumn::PttId, 14, "B0", 2));
}

TEST(ChannelFields, OfAnyBytesParseWhatTheyShowOrRefuseIt) {
    constexpr unsigned Seed = 20261122;
    std::mt19937 random(Seed);
    int taken = 0;
    for (int run = 0; run < 500; ++run) {
        const DataImage image = testing::RandomImage(random);
        for (const ChannelRow& row : ChannelFieldRows) {
            for (const ChannelField& field : row) {
                for (const Language language : {En, Zh}) {
                    DataImage copy = image;
                    taken += ParseValue(field, ShowValue(field, image, language), copy) ? 1 : 0;
                    EXPECT_TRUE(copy == image) << "seed " << Seed << ", run " << run << ": " << KeyOf(field);
                }
            }
        }
    }
    EXPECT_GT(taken, 500 * 16 * 8);
}

} // namespace
} // namespace zelvor
