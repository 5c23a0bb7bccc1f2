#include "cli/RadioWrite.h"

#include "cli/radio/RadioRig.h"

namespace zelvor::cli {
namespace {

using Names = std::vector<std::string>;

class RadioWriteTest : public ::testing::Test, protected RadioRig {
protected:
    RadioWriteTest() { PutFile("/mine/new.dat", PatternImage(100)); }

    ExitStatus Write() { return WriteRadio(request, machine, console); }
    /// The radio holds the pattern of `seed` where a write reaches, the fixed head, and its own bytes elsewhere.
    void ExpectWritten(int seed) const {
        const DataImage file = PatternImage(seed);
        const DataImage own = PatternImage(3);
        const Bytes head(radio.Memory.begin(), radio.Memory.begin() + 16);
        EXPECT_EQ(Hex(head), "FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF");
        for (int address = 16; address < 1024; ++address) {
            const bool isOwn = (address >= 0x180 && address < 0x1B8) || address >= 0x340;
            const bool isZero = address <= 0x10C && address % 16 == 12;
            const int expected = isOwn ? own.At(address) : isZero ? 0 : file.At(address);
            ASSERT_EQ(radio.Memory.at(static_cast<std::size_t>(address)), expected) << address;
        }
    }

    WriteRequest request{.radio = {.port = 3, .retries = 0}, .file = "/mine/new.dat"};
};

TEST_F(RadioWriteTest, KeepsTheRadioWritesTheFileAndComparesThem) {
    EXPECT_EQ(Write(), ExitStatus::Done);
    ExpectWritten(100);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(Err(), "zelvor-cli: COM3: written and verified\n");
    EXPECT_EQ(shown, (Names{"Reading 16 of 16", "Writing 49 of 49", "Reading back 16 of 16"}));
    EXPECT_EQ(Entries(), 3);
    EXPECT_EQ(Backups(), (Names{"2026-11-22T014502-4618-M-read-3.dat", "2026-11-22T014502-4618-M-read.dat",
                                "2026-11-22T014502-4618-M-write-2.dat"}));
    EXPECT_EQ(FileImage("/backups/2026-11-22T014502-4618-M-read.dat"), PatternImage(3));
    EXPECT_EQ(FileImage("/backups/2026-11-22T014502-4618-M-write-2.dat"), PatternImage(100));
    EXPECT_EQ(FileImage("/backups/2026-11-22T014502-4618-M-read-3.dat"), RadioImage());
    EXPECT_EQ(FileImage("/mine/new.dat"), PatternImage(100));
}

TEST_F(RadioWriteTest, LetsNobodyAtThePortBetweenItsTransfers) {
    EXPECT_EQ(Write(), ExitStatus::Done);
    EXPECT_EQ(CountInLog("open"), 1);
    EXPECT_EQ(CountInLog("close"), 1);
    EXPECT_EQ(ports.Record("MSComm1").log.back(), "close");
}

TEST_F(RadioWriteTest, HasTheBackupOnDiskBeforeTheFirstPacket) {
    Names atFirstPacket;
    OnCommand = [&](const std::string& command) {
        if (command.starts_with("57 00 00 10")) {
            atFirstPacket = Backups();
        }
    };
    EXPECT_EQ(Write(), ExitStatus::Done);
    EXPECT_EQ(atFirstPacket, (Names{"2026-11-22T014502-4618-M-read.dat", "2026-11-22T014502-4618-M-write-2.dat"}));
}

TEST_F(RadioWriteTest, RefusesAFileWithASettingThatStopsAWrite) {
    DataImage file = PatternImage(100);
    file.Set(0x160, 1);    // priority fixed
    file.Set(0x161, 0xFF); // and no channel
    PutFile("/mine/new.dat", file);
    EXPECT_EQ(Write(), ExitStatus::Unsafe);
    EXPECT_TRUE(Said("zelvor-cli: /mine/new.dat: scan.priority-channel: ")) << Err();
    EXPECT_TRUE(radio.Commands().empty());
    EXPECT_TRUE(Backups().empty());
}

TEST_F(RadioWriteTest, GivesARadioBackWhatItHeldWhateverTheChecksSay) {
    radio.Memory[0x160] = 1;
    radio.Memory[0x161] = 0xFF;
    EXPECT_EQ(Write(), ExitStatus::Done);
    EXPECT_EQ(radio.Memory[0x160], 0);
    Forget();
    request.file = "/backups/2026-11-22T014502-4618-M-read.dat";
    EXPECT_EQ(Write(), ExitStatus::Done) << Err();
    EXPECT_EQ(radio.Memory[0x160], 1);
    EXPECT_EQ(radio.Memory[0x161], 0xFF);
}

TEST_F(RadioWriteTest, ChecksACopyOfABackupAndABackupOfAWrite) {
    DataImage file = PatternImage(100);
    file.Set(0x160, 1);
    file.Set(0x161, 0xFF);
    for (const char* path : {"/mine/2026-11-22T014502-4618-M-read.dat", "/backups/2026-11-22T014502-4618-M-write.dat",
                             "/backups/mine.dat"}) {
        PutFile(path, file);
        request.file = path;
        EXPECT_EQ(Write(), ExitStatus::Unsafe) << path;
    }
}

TEST_F(RadioWriteTest, RefusesARadioOfAnotherModel) {
    radio.Identity[5] = 33;
    radio.Memory[0x1BD] = 33;
    const auto before = radio.Memory;
    EXPECT_EQ(Write(), ExitStatus::Unsafe);
    EXPECT_EQ(radio.Memory, before);
    EXPECT_FALSE(HasWritten());
    EXPECT_EQ(radio.Commands().back(), "45");
    EXPECT_EQ(Err(), "zelvor-cli: the radio is another model than the file is for; --overwrite-model writes all the "
                     "same\nzelvor-cli: nothing was written; the radio is as it was\n");
}

TEST_F(RadioWriteTest, OverwritesAnotherModelWhereItIsTold) {
    radio.Identity[5] = 33;
    radio.Memory[0x1BD] = 33;
    request.radio.overwritesModel = true;
    EXPECT_EQ(Write(), ExitStatus::Done) << Err();
    ExpectWritten(100);
    EXPECT_EQ(radio.Memory[0x1BD], 1);
}

TEST_F(RadioWriteTest, ReadsNothingFirstWithoutABackup) {
    request.keepsBackup = false;
    EXPECT_EQ(Write(), ExitStatus::Done);
    ExpectWritten(100);
    EXPECT_EQ(Entries(), 2);
    EXPECT_EQ(shown, (Names{"Writing 49 of 49", "Reading back 16 of 16"}));
}

TEST_F(RadioWriteTest, ReadsNothingAfterwardsWithoutVerification) {
    request.verifies = false;
    EXPECT_EQ(Write(), ExitStatus::Done);
    ExpectWritten(100);
    EXPECT_EQ(Entries(), 2);
    EXPECT_EQ(Err(), "zelvor-cli: COM3: written\n");
}

TEST_F(RadioWriteTest, WritesNothingWhereTheBackupCannotBeKept) {
    folder.Refuse();
    const auto before = radio.Memory;
    EXPECT_EQ(Write(), ExitStatus::File);
    EXPECT_EQ(radio.Memory, before);
    EXPECT_EQ(Entries(), 1);
    EXPECT_EQ(Err(), "zelvor-cli: /backups: a backup could not be kept in this folder\n"
                     "zelvor-cli: without a backup of the radio nothing is written; --no-backup writes without one\n");
    Forget();
    request.keepsBackup = false;
    EXPECT_EQ(Write(), ExitStatus::Done);
    ExpectWritten(100);
}

TEST_F(RadioWriteTest, AsksNoRadioForAFileThatCannotBeRead) {
    request.file = "/mine/none.dat";
    EXPECT_EQ(Write(), ExitStatus::File);
    EXPECT_TRUE(radio.Commands().empty());
}

struct SpoiltByte {
    const char* where;
    int address;
    const char* line;
};

class RadioWriteSpoiltTest : public RadioWriteTest, public ::testing::WithParamInterface<SpoiltByte> {};

/// A radio that holds another byte than it was sent, or than it held.
TEST_P(RadioWriteSpoiltTest, IsFoundByTheComparison) {
    const auto address = static_cast<std::size_t>(GetParam().address);
    OnCommand = [&](const std::string&) {
        if (Entries() == 3) {
            radio.Memory.at(address) = 0x5A;
        }
    };
    EXPECT_EQ(Write(), ExitStatus::No);
    EXPECT_EQ(out.str(), GetParam().line);
    EXPECT_EQ(Err(),
              "zelvor-cli: the radio does not hold what was written, bytes: 1\n"
              "zelvor-cli: what the radio held before is in /backups/2026-11-22T014502-4618-M-read.dat; this puts it "
              "back: zelvor-cli write --port 3 /backups/2026-11-22T014502-4618-M-read.dat\n");
}

INSTANTIATE_TEST_SUITE_P(Everywhere, RadioWriteSpoiltTest,
                         ::testing::Values(SpoiltByte{"InTheHead", 0x00B, "0x00B: 00 -> 5A\n"},
                                           SpoiltByte{"InAChannel", 0x010, "0x010: D4 -> 5A\n"},
                                           SpoiltByte{"InTheTuningRegion", 0x180, "0x180: 96 -> 5A\n"},
                                           SpoiltByte{"InTheTestFrequencies", 0x33F, "0x33F: 44 -> 5A\n"},
                                           SpoiltByte{"InTheRest", 0x340, "0x340: ED -> 5A\n"}),
                         [](const auto& spoilt) { return std::string(spoilt.param.where); });

TEST_F(RadioWriteTest, TellsThatThereIsNoWayBackWithoutABackup) {
    request.keepsBackup = false;
    radio.Spoil(10, Fault::Drop);
    EXPECT_EQ(Write(), ExitStatus::NoRadio);
    EXPECT_TRUE(Said("the radio may be partly written: do not use it before it is written as a whole\n")) << Err();
    EXPECT_TRUE(Said("there is no backup of what the radio held before; this writes once more: zelvor-cli write --port "
                     "3 /mine/new.dat\n"))
        << Err();
}

TEST_F(RadioWriteTest, TheWayBackOverwritesTheModelWhereTheRadioMayTellTheFilesByNow) {
    // A radio of family 33 takes any file of its market, and is of the file's family once that is written.
    radio.Identity[6] = 0x33;
    radio.Memory[0x1BE] = 0x33;
    radio.Spoil(37 + 3 + 30, Fault::Drop);
    EXPECT_EQ(Write(), ExitStatus::NoRadio);
    EXPECT_TRUE(Said("zelvor-cli write --port 3 --overwrite-model /backups/2026-11-22T014502-x33-x01-read.dat\n"))
        << Err();
}

TEST_F(RadioWriteTest, QuotesTheFileOfTheCommandForAShell) {
    PutFile("/mine/it's new.dat", PatternImage(100));
    request.file = "/mine/it's new.dat";
    request.keepsBackup = false;
    radio.Spoil(10, Fault::Drop);
    EXPECT_EQ(Write(), ExitStatus::NoRadio);
    EXPECT_TRUE(Said("zelvor-cli write --port 3 '/mine/it'\\''s new.dat'\n")) << Err();
}

} // namespace
} // namespace zelvor::cli
