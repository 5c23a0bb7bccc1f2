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

TEST_F(DiffTest, TellsAByteTooWhereItsFieldsDoNotTellAllOfItsBits) {
    // Channel 2 is in use; 1 and 8 are blank, and their Scan Add bits show nowhere.
    EXPECT_EQ(Differences({{0x17E, "81"}}, ExitStatus::No), "channels.2.scan_add: yes -> no\n0x17E: 02 -> 81\n");
    EXPECT_EQ(Differences({{0x17E, "00"}}, ExitStatus::No), "channels.2.scan_add: yes -> no\n");
    EXPECT_EQ(Differences({{0x17E, "83"}}, ExitStatus::No), "0x17E: 02 -> 83\n");
    // Bit 7 of byte 12 has no meaning, bits 0 to 3 and 7 of byte 13 have none.
    EXPECT_EQ(Differences({{0x02C, "81"}}, ExitStatus::No), "channels.2.compander: no -> yes\n0x02C: 00 -> 81\n");
    EXPECT_EQ(Differences({{0x02C, "01"}}, ExitStatus::No), "channels.2.compander: no -> yes\n");
    EXPECT_EQ(Differences({{0x02D, "1E"}}, ExitStatus::No), "channels.2.power: High -> Low\n0x02D: BF -> 1E\n");
    EXPECT_EQ(Differences({{0x02D, "8F"}}, ExitStatus::No),
              "channels.2.power: High -> Low\nchannels.2.width: Wide -> Narrow\n");
    // The memory of Autodial is the last three bits.
    EXPECT_EQ(Differences({{0x02F, "FF"}}, ExitStatus::No), "channels.2.autodial: 1 -> 8\n");
    EXPECT_EQ(Differences({{0x02F, "07"}}, ExitStatus::No), "channels.2.autodial: 1 -> 8\n0x02F: F8 -> 07\n");
    // Of a DQT word bits 1 to 4 and 6 of the high byte have no meaning; a tone more or less tells both bytes.
    EXPECT_EQ(Differences({{0x02A, "1338"}}, ExitStatus::No), "0x02B: 28 -> 38\n");
    EXPECT_EQ(Differences({{0x02A, "13B8"}}, ExitStatus::No), "channels.2.encode: D023N -> D023I\n0x02B: 28 -> B8\n");
    EXPECT_EQ(Differences({{0x02A, "FFFF"}}, ExitStatus::No), "channels.2.encode: D023N -> None\n");
    EXPECT_EQ(Differences({{0x02A, "55FF"}}, ExitStatus::No), "channels.2.encode: D023N -> None\n0x02A: 13 -> 55\n");
}

TEST_F(DiffTest, TellsTheBytesBehindTheEndOfAText) {
    DataImage a = Programmed();
    DataImage b = Programmed();
    testing::StoreHex(a, 0x300, "4142FF");
    testing::StoreHex(b, 0x300, "4143FF3132");
    Put("a.dat", a);
    Put("b.dat", b);
    EXPECT_EQ(Diff({"a.dat", "b.dat"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(), "message.line.1: AB -> AC\n0x303: FF -> 31\n0x304: FF -> 32\n");
    testing::StoreHex(b, 0x300, "4142434445");
    Put("b.dat", b);
    EXPECT_EQ(Diff({"a.dat", "b.dat"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(), "message.line.1: AB -> ABCDE\n");
    EXPECT_EQ(Diff({"b.dat", "a.dat"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(), "message.line.1: ABCDE -> AB\n");
}

TEST_F(DiffTest, TellsTheBytesOfAnIdentityThatDoNotGoWithTheModel) {
    EXPECT_EQ(Differences({{0x1BC, "3301F9"}}, ExitStatus::No), "identity.model: 4618 -> 4613\n");
    EXPECT_EQ(Differences({{0x1B9, "37"}, {0x1BC, "3401F900"}}, ExitStatus::No),
              "identity.model: 4618 -> 4613\n0x1B9: 34 -> 37\n0x1BC: 38 -> 34\n0x1BF: FF -> 00\n");
}

TEST_F(DiffTest, TellsAChannelMoreByItsValuesAndWhatIsLeftBehindABlankOneByItsBytes) {
    EXPECT_EQ(Differences({{0x030, "0000601400006014FFFFFFFF00BFB0F8"}, {0x17E, "06"}}, ExitStatus::No),
              "channels.3.rx_mhz:  -> 146.00000\n"
              "channels.3.tx_mhz:  -> 146.00000\n"
              "channels.3.decode:  -> None\n"
              "channels.3.encode:  -> None\n"
              "channels.3.power:  -> High\n"
              "channels.3.width:  -> Wide\n"
              "channels.3.scan_add:  -> yes\n"
              "channels.3.option_signalling:  -> None\n"
              "channels.3.ptt_id:  -> Off\n"
              "channels.3.sp_unmute:  -> Carrier\n"
              "channels.3.busy_lockout:  -> Off\n"
              "channels.3.autodial:  -> 1\n"
              "channels.3.beat_shift:  -> no\n"
              "channels.3.compander:  -> no\n");
    Put("a.dat", Programmed());
    DataImage blanked = Programmed();
    testing::StoreHex(blanked, 0x103, "00");
    testing::StoreHex(blanked, 0x10C, "11");
    Put("b.dat", blanked);
    EXPECT_EQ(Diff({"a.dat", "b.dat"}, store, console), ExitStatus::No);
    const std::string told = Out();
    EXPECT_TRUE(told.starts_with("channels.16.rx_mhz: 150.00000 -> \n")) << told;
    EXPECT_TRUE(told.ends_with("channels.16.compander: no -> \n0x10C: 00 -> 11\n")) << told;
}

/// Byte by byte: a field of its own tells the byte, and nobody else does.
TEST_F(DiffTest, TellsAChangedByteOfAFieldOnce) {
    EXPECT_EQ(Differences({{0x136, "00"}}, ExitStatus::No), "optional.beep: On -> Off\n");
    EXPECT_EQ(Differences({{0x11D, "01"}}, ExitStatus::No), "keys.pf1: None -> Autodial\n");
    EXPECT_EQ(Differences({{0x130, "00"}}, ExitStatus::No), "optional.time-out-timer: 60 -> 0\n");
    EXPECT_EQ(Differences({{0x168, "01"}}, ExitStatus::No), "scan.tx-dwell-time: 3 -> 259\n");
    EXPECT_EQ(Differences({{0x141, "41"}}, ExitStatus::No), "optional.begin-of-tx: 12345 -> 1A345\n");
    EXPECT_EQ(Differences({{0x141, "FF"}}, ExitStatus::No), "optional.begin-of-tx: 12345 -> 1345\n");
    EXPECT_EQ(Differences({{0x1C0, "01"}}, ExitStatus::No), "corvane.fleet-list.1.fleet:  -> 100\n");
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

class FolderDiffTest : public CliTest {
protected:
    static DataImage Silent() {
        DataImage image = Programmed();
        image.Set(0x136, 0); // beep
        image.Set(0x340, 0);
        return image;
    }
    QJsonObject Document() { return QJsonDocument::fromJson(QByteArray::fromStdString(Out())).object(); }
};

TEST_F(FolderDiffTest, SaysNothingOfTheSameFiles) {
    for (const char* path : {"2025/1.dat", "2026/1.dat", "2025/2.dat", "2026/2.dat"}) {
        Put(path, Programmed());
    }
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::Done);
    EXPECT_EQ(Diff({"2025", "2025"}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out() + Err(), "");
}

TEST_F(FolderDiffTest, TellsWhatDiffersBehindTheNameAndWhatIsInOneOnlyInTheOrderOfNames) {
    Put("2025/1.dat", Programmed());
    Put("2025/2.dat", Programmed());
    Put("2025/4.dat", Silent());
    Put("2025/5.dat", Programmed());
    Put("2026/1.dat", Silent());
    Put("2026/2.dat", Programmed());
    Put("2026/3.dat", Programmed());
    Put("2026/5.dat", Silent());
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(), "1.dat: optional.beep: On -> Off\n"
                     "1.dat: 0x340: FF -> 00\n"
                     "3.dat: only in 2026\n"
                     "4.dat: only in 2025\n"
                     "5.dat: optional.beep: On -> Off\n"
                     "5.dat: 0x340: FF -> 00\n");
    EXPECT_EQ(Diff({"2026/", "2025/"}, store, chinese), ExitStatus::No);
    EXPECT_EQ(Out(), "1.dat: optional.beep: 关 -> 开\n"
                     "1.dat: 0x340: 00 -> FF\n"
                     "3.dat: 仅存在于 2026/\n"
                     "4.dat: 仅存在于 2025/\n"
                     "5.dat: optional.beep: 关 -> 开\n"
                     "5.dat: 0x340: 00 -> FF\n");
    EXPECT_EQ(Err(), "");
}

TEST_F(FolderDiffTest, AFileInOneFolderOnlyIsADifferenceAndIsNotRead) {
    Put("2025/1.dat", Programmed());
    store.MakeFolder("2026");
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::No);
    store.Put("2025/1.dat", "cut");
    EXPECT_EQ(Diff({"2026", "2025"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(), "1.dat: only in 2025\n1.dat: only in 2025\n");
    EXPECT_EQ(Err(), "");
}

TEST_F(FolderDiffTest, OfEmptyFoldersNothingDiffers) {
    store.MakeFolder("2025");
    store.MakeFolder("2026");
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out() + Err(), "");
    EXPECT_EQ(Diff({"2025", "2026", true}, store, console), ExitStatus::Done);
    EXPECT_EQ(Document(), (QJsonObject{{"a", "2025"},
                                       {"b", "2026"},
                                       {"same", true},
                                       {"pairs", QJsonArray()},
                                       {"only_in_a", QJsonArray()},
                                       {"only_in_b", QJsonArray()}}));
}

TEST_F(FolderDiffTest, ComparesDataFilesByTheirNamesAndNothingElse) {
    for (const std::string name : {"fleet.csv", "1.pdf", "dat", "xdat", ".dat", "._1.dat", "1.dat.bak", "old/1.dat"}) {
        store.Put("2025/" + name, "2025");
        store.Put("2026/" + name, "2026");
    }
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out() + Err(), "");
    for (const std::string name : {"1.DAT", "2.Dat", "a b.dat", "队列.dat"}) {
        Put("2025/" + name, Programmed());
        Put("2026/" + name, Silent());
    }
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(), "1.DAT: optional.beep: On -> Off\n"
                     "1.DAT: 0x340: FF -> 00\n"
                     "2.Dat: optional.beep: On -> Off\n"
                     "2.Dat: 0x340: FF -> 00\n"
                     "a b.dat: optional.beep: On -> Off\n"
                     "a b.dat: 0x340: FF -> 00\n"
                     "队列.dat: optional.beep: On -> Off\n"
                     "队列.dat: 0x340: FF -> 00\n");
}

TEST_F(FolderDiffTest, APairThatCannotBeReadDoesNotHoldUpTheOthers) {
    store.Put("2025/1.dat", "cut");
    Put("2026/1.dat", Programmed());
    Put("2025/2.dat", Programmed());
    Put("2026/2.dat", Silent());
    Put("2025/3.dat", Programmed());
    store.Put("2026/3.dat", "");
    store.Refuse("2025/3.dat");
    Put("2025/4.dat", Programmed());
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::File);
    EXPECT_EQ(Out(), "2.dat: optional.beep: On -> Off\n2.dat: 0x340: FF -> 00\n4.dat: only in 2025\n");
    const std::string told = "zelvor-cli: 2025/1.dat: is no data file\n"
                             "zelvor-cli: 2025/3.dat: cannot be read\n"
                             "zelvor-cli: 2026/3.dat: is no data file\n";
    EXPECT_EQ(Err(), told);
    EXPECT_EQ(Diff({"2025", "2026", true}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), told);
    const QJsonObject json = Document();
    EXPECT_EQ(json["same"].toBool(true), false);
    EXPECT_EQ(json["pairs"].toArray().size(), 1);
    EXPECT_EQ(json["pairs"].toArray()[0].toObject()["a"], QJsonValue("2025/2.dat"));
    EXPECT_EQ(Diff({"2026", "2025"}, store, chinese), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: 2025/1.dat: 不是数据文件\n"
                     "zelvor-cli: 2026/3.dat: 不是数据文件\n"
                     "zelvor-cli: 2025/3.dat: 无法读取\n");
}

TEST_F(FolderDiffTest, IsNotTheSameWhereNothingButAPairThatCannotBeReadIsLeft) {
    store.Put("2025/1.dat", "cut");
    store.Put("2026/1.dat", "cut");
    EXPECT_EQ(Diff({"2025", "2026", true}, store, console), ExitStatus::File);
    EXPECT_EQ(Document()["same"].toBool(true), false);
}

TEST_F(FolderDiffTest, AFolderGoesWithAFolderOnly) {
    Put("2025/1.dat", Programmed());
    Put("2026/1.dat", Programmed());
    for (const bool json : {false, true}) {
        EXPECT_EQ(Diff({"2025", "2026/1.dat", json}, store, console), ExitStatus::File);
        EXPECT_EQ(Diff({"2025/1.dat", "2026", json}, store, console), ExitStatus::File);
        EXPECT_EQ(Diff({"2025", "2024", json}, store, chinese), ExitStatus::File);
        EXPECT_EQ(Out(), "");
        EXPECT_EQ(Err(), "zelvor-cli: 2025: cannot be compared with a file, since it is a folder\n"
                         "zelvor-cli: 2026: cannot be compared with a file, since it is a folder\n"
                         "zelvor-cli: 2024: 无法读取\n");
    }
    EXPECT_EQ(Diff({"2025", "2026/1.dat"}, store, chinese), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: 2025: 是文件夹，不能与文件比较\n");
    store.Put("cut.dat", "cut");
    EXPECT_EQ(Diff({"cut.dat", "2025"}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: cut.dat: is no data file\n");
}

TEST_F(FolderDiffTest, AFolderThatCannotBeReadIsNotTakenForAnEmptyOne) {
    Put("2025/1.dat", Programmed());
    store.MakeFolder("2026");
    store.MakeFolder("2027");
    store.Refuse("2026");
    store.Refuse("2027");
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: 2026: cannot be read\n");
    EXPECT_EQ(Diff({"2027", "2026"}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: 2027: cannot be read\nzelvor-cli: 2026: cannot be read\n");
    EXPECT_EQ(Out(), "");
}

TEST_F(FolderDiffTest, AsJsonIsOneDocumentWithThePairsAsOfTwoFiles) {
    Put("2025/1.dat", Programmed());
    Put("2026/1.dat", Silent());
    Put("2025/2.dat", Programmed());
    Put("2026/2.dat", Programmed());
    Put("2025/3.dat", Programmed());
    Put("2026/4.dat", Programmed());
    Put("2026/5.dat", Programmed());
    EXPECT_EQ(Diff({"2025/", "2026", true}, store, chinese), ExitStatus::No);
    const QJsonObject json = Document();
    EXPECT_EQ(json.keys(), (QStringList{"a", "b", "only_in_a", "only_in_b", "pairs", "same"}));
    EXPECT_EQ(json["a"], QJsonValue("2025/"));
    EXPECT_EQ(json["b"], QJsonValue("2026"));
    EXPECT_EQ(json["same"], QJsonValue(false));
    EXPECT_EQ(json["only_in_a"].toArray(), QJsonArray{"3.dat"});
    EXPECT_EQ(json["only_in_b"].toArray(), (QJsonArray{"4.dat", "5.dat"}));
    const QJsonArray pairs = json["pairs"].toArray();
    ASSERT_EQ(pairs.size(), 2);
    EXPECT_EQ(pairs[0].toObject(),
              (QJsonObject{{"a", "2025/1.dat"},
                           {"b", "2026/1.dat"},
                           {"same", false},
                           {"fields", QJsonArray{QJsonObject{{"key", "optional.beep"}, {"a", "On"}, {"b", "Off"}}}},
                           {"channels", QJsonArray()},
                           {"bytes", QJsonArray{QJsonObject{{"address", "0x340"}, {"a", "FF"}, {"b", "00"}}}}}));
    EXPECT_EQ(pairs[1].toObject()["same"], QJsonValue(true));
    EXPECT_EQ(pairs[1].toObject()["b"], QJsonValue("2026/2.dat"));
    store.Remove("2025/3.dat");
    store.Remove("2026/4.dat");
    store.Remove("2026/5.dat");
    Put("2026/1.dat", Programmed());
    EXPECT_EQ(Diff({"2025", "2026", true}, store, console), ExitStatus::Done);
    EXPECT_EQ(Document()["same"], QJsonValue(true));
}

TEST_F(FolderDiffTest, KeepsNamesToTheirLines) {
    Put("2025/a\nb.dat", Programmed());
    Put("2026/a\nb.dat", Silent());
    Put("2026/c\x1B.dat", Silent());
    EXPECT_EQ(Diff({"2025", "2026"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(), "a␊b.dat: optional.beep: On -> Off\na␊b.dat: 0x340: FF -> 00\nc␛.dat: only in 2026\n");
}

/// A bit that differs alone is told once, as a value or as a byte, whatever else the image holds.
TEST(ImageDifferences, CoverEveryDifferingByte) {
    constexpr unsigned Seed = 8128;
    std::mt19937 random(Seed);
    for (int run = 0; run < 2000; ++run) {
        const DataImage a = zelvor::testing::RandomImage(random);
        DataImage b = a;
        const int address = static_cast<int>(random() % 1024);
        b.Set(address, static_cast<std::uint8_t>(a.At(address) ^ (1U << random() % 8)));
        const ImageDifferences differences = DifferencesOf(a, b);
        EXPECT_FALSE(differences.AreNone()) << "seed " << Seed << ", run " << run;
        EXPECT_LE(differences.addresses.size(), 1U);
        EXPECT_NE(differences.fields.empty(), differences.addresses.empty()) << "seed " << Seed << ", run " << run;
        if (!differences.addresses.empty()) {
            EXPECT_EQ(differences.addresses[0], address) << "seed " << Seed << ", run " << run;
        }
        EXPECT_TRUE(DifferencesOf(a, a).AreNone());
    }
}

} // namespace
} // namespace zelvor::cli
