#include "cli/DiffCommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

#include "cli/CliFixture.h"
#include "cli/ImageDifferences.h"

namespace zelvor::cli {
namespace {

class DiffTest : public CliTest {
protected:
    /// What is printed for the programmed image and one with some other bytes.
    std::string Differences(std::initializer_list<std::pair<int, const char*>> bytes, ExitStatus expected) {
        DataImage other = Programmed();
        for (const auto& [address, hex] : bytes) {
            testing::StoreHex(other, address, hex);
        }
        Put("a.dat", Programmed());
        Put("b.dat", other);
        EXPECT_EQ(Diff({"a.dat", "b.dat"}, store, console), expected);
        return Out();
    }
};

TEST_F(DiffTest, SaysNothingOfTheSameImages) {
    EXPECT_EQ(Differences({}, ExitStatus::Done), "");
}

TEST_F(DiffTest, TellsFieldsChannelsIdentityAndBytesInThisOrder) {
    EXPECT_EQ(Differences({{0x136, "00"},
                           {0x140, "39"},
                           {0x167, "2C01"},
                           {0x028, "FFFF"},
                           {0x02D, "8F"},
                           {0x17E, "00"},
                           {0x1BD, "00F9"},
                           {0x1CC, "00"},
                           {0x3FF, "12"}},
                          ExitStatus::No),
              "optional.beep: On -> Off\n"
              "optional.begin-of-tx: 12345 -> 92345\n"
              "scan.tx-dwell-time: 3 -> 300\n"
              "channels.2.decode: 88.2 -> None\n"
              "channels.2.power: High -> Low\n"
              "channels.2.width: Wide -> Narrow\n"
              "channels.2.scan_add: yes -> no\n"
              "identity.model: 4618 -> 4613\n"
              "identity.market: M -> K\n"
              "0x1CC: FF -> 00\n"
              "0x3FF: FF -> 12\n");
}

TEST_F(DiffTest, TellsABlankChannelByAllItsValues) {
    EXPECT_EQ(Differences({{0x100, "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"}}, ExitStatus::No),
              "channels.16.rx_mhz: 150.00000 -> \n"
              "channels.16.decode: None -> \n"
              "channels.16.encode: None -> \n"
              "channels.16.power: High -> \n"
              "channels.16.width: Wide -> \n"
              "channels.16.scan_add: no -> \n"
              "channels.16.option_signalling: None -> \n"
              "channels.16.ptt_id: Off -> \n"
              "channels.16.sp_unmute: Carrier -> \n"
              "channels.16.busy_lockout: Off -> \n"
              "channels.16.autodial: 1 -> \n"
              "channels.16.beat_shift: no -> \n"
              "channels.16.compander: no -> \n");
}

TEST_F(DiffTest, TellsTheByteWhereAFieldShowsTheSame) {
    EXPECT_EQ(Differences({{0x136, "02"}, {0x02C, "80"}, {0x030, "00"}, {0x1BF, "00"}}, ExitStatus::No),
              "0x02C: 00 -> 80\n0x030: FF -> 00\n0x136: 01 -> 02\n0x1BF: FF -> 00\n");
}

TEST_F(DiffTest, SpeaksTheLanguageButNotInItsJson) {
    DataImage other = Programmed();
    other.Set(0x136, 0);
    other.Set(0x02D, 0x9F);
    other.Set(0x340, 0);
    Put("a.dat", Programmed());
    Put("b.dat", other);
    EXPECT_EQ(Diff({"a.dat", "b.dat"}, store, chinese), ExitStatus::No);
    EXPECT_EQ(Out(), "optional.beep: 开 -> 关\nchannels.2.power: 高 -> 低\n0x340: FF -> 00\n");
    EXPECT_EQ(Diff({"a.dat", "b.dat", true}, store, chinese), ExitStatus::No);
    const QJsonObject json = QJsonDocument::fromJson(QByteArray::fromStdString(Out())).object();
    EXPECT_EQ(json.keys(), (QStringList{"a", "b", "bytes", "channels", "fields", "same"}));
    EXPECT_EQ(json["same"].toBool(true), false);
    EXPECT_EQ(json["fields"].toArray(), (QJsonArray{QJsonObject{{"key", "optional.beep"}, {"a", "On"}, {"b", "Off"}}}));
    EXPECT_EQ(json["channels"].toArray(),
              (QJsonArray{QJsonObject{{"channel", 2}, {"column", "power"}, {"a", "High"}, {"b", "Low"}}}));
    EXPECT_EQ(json["bytes"].toArray(), (QJsonArray{QJsonObject{{"address", "0x340"}, {"a", "FF"}, {"b", "00"}}}));
}

TEST_F(DiffTest, OfAFileThatCannotBeReadTellsOfBothAndPrintsNothing) {
    EXPECT_EQ(Diff({"a.dat", "b.dat", true}, store, console), ExitStatus::File);
    EXPECT_EQ(Out(), "");
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: cannot be read\nzelvor-cli: b.dat: cannot be read\n");
}

/// Whatever differs is told once, as a value or as a byte.
TEST(ImageDifferences, CoverEveryDifferingByte) {
    constexpr unsigned Seed = 8128;
    std::mt19937 random(Seed);
    for (int run = 0; run < 200; ++run) {
        const DataImage a = zelvor::testing::RandomImage(random);
        DataImage b = a;
        const int address = static_cast<int>(random() % 1024);
        b.Set(address, static_cast<std::uint8_t>(a.At(address) ^ (1U << random() % 8)));
        const ImageDifferences differences = DifferencesOf(a, b);
        EXPECT_FALSE(differences.AreNone()) << "seed " << Seed << ", run " << run;
        EXPECT_LE(differences.addresses.size(), 1U);
        if (!differences.addresses.empty()) {
            EXPECT_EQ(differences.addresses[0], address) << "seed " << Seed << ", run " << run;
        }
        EXPECT_TRUE(DifferencesOf(a, a).AreNone());
    }
}

} // namespace
} // namespace zelvor::cli
