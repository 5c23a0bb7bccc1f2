// A fault at every reply of all that the command does: backup, write and read-back.

#include "cli/RadioWrite.h"

#include "cli/radio/RadioRig.h"

namespace zelvor::cli {
namespace {

// Replies of a read: entry, identity and acknowledgement, and two for each of the 17 blocks. Of a write: the same
// three, and one for each of the 49 packets.
constexpr int BackupReplies = 3 + 17 * 2;
constexpr int WriteReplies = 3 + 49;
constexpr int AllReplies = BackupReplies + WriteReplies + BackupReplies;

constexpr int FirstOfWrite = BackupReplies + 1;
constexpr int FirstPacket = FirstOfWrite + 3;
constexpr int FirstOfReadBack = FirstOfWrite + WriteReplies;

constexpr std::string_view NothingWritten = "nothing was written; the radio is as it was\n";
constexpr std::string_view PartlyWritten =
    "the radio may be partly written: do not use it before it is written as a whole\n";
constexpr std::string_view NotReadBack = "all was written and acknowledged, but could not be read back and compared\n";
constexpr std::string_view WayBack = "this puts it back: zelvor-cli write --port 3 ";

constexpr std::string_view ReadBackup = "/backups/2026-11-22T014502-4618-M-read.dat";

/// Nobody looks at the first byte of an identity.
bool IsUnseen(int reply, Fault fault) {
    return fault == Fault::Corrupt && (reply == 2 || reply == FirstOfWrite + 1 || reply == FirstOfReadBack + 1);
}

std::string NameOf(const ::testing::TestParamInfo<Fault>& fault) {
    constexpr std::array<const char*, 6> Names{"None", "Dropped", "Cut", "Wrong", "Late", "Unplugged"};
    return Names.at(static_cast<std::size_t>(fault.param));
}

class FaultyWrite : public RadioRig {
public:
    FaultyWrite(int reply, Fault fault, int retries) {
        PutFile("/mine/new.dat", PatternImage(100));
        radio.Spoil(reply, fault);
        status = Write("/mine/new.dat", retries);
        EXPECT_EQ(radio.FaultsFired(), 1);
    }

    ExitStatus Write(const std::string& path, int retries) {
        return WriteRadio({.radio = {.port = 3, .retries = retries}, .file = path}, machine, console);
    }
    /// Where a write reaches, but for the bytes that it sets itself, the radio holds the pattern of that seed;
    /// elsewhere its own.
    [[nodiscard]] bool Holds(int seed) const {
        const DataImage image = PatternImage(seed);
        const DataImage own = PatternImage(3);
        for (int address = 16; address < 1024; ++address) {
            const bool isOwn = (address >= 0x180 && address < 0x1B8) || address >= 0x340;
            const bool isSet = address <= 0x10C && address % 16 == 12;
            if (!isSet && radio.Memory.at(static_cast<std::size_t>(address)) != (isOwn ? own : image).At(address)) {
                return false;
            }
        }
        return true;
    }
    [[nodiscard]] bool IsUntouched() const { return RadioImage() == PatternImage(3); }

    ExitStatus status = ExitStatus::Done;
};

class RadioWriteFaultsTest : public ::testing::TestWithParam<Fault> {};

TEST_P(RadioWriteFaultsTest, TellTheTruthAboutTheRadio) {
    for (int reply = 1; reply <= AllReplies; ++reply) {
        SCOPED_TRACE(reply);
        FaultyWrite write(reply, GetParam(), 0);
        if (IsUnseen(reply, GetParam())) {
            EXPECT_EQ(write.status, ExitStatus::Done);
            EXPECT_TRUE(write.Holds(100));
            continue;
        }
        EXPECT_EQ(write.status, ExitStatus::NoRadio);
        const bool isNothingWritten = reply < FirstPacket;
        const bool isAllWritten = reply >= FirstOfReadBack;
        EXPECT_EQ(write.Said(std::string(NothingWritten)), isNothingWritten) << write.Err();
        EXPECT_EQ(write.Said(std::string(PartlyWritten)), !isNothingWritten && !isAllWritten) << write.Err();
        EXPECT_EQ(write.Said(std::string(NotReadBack)), isAllWritten) << write.Err();
        EXPECT_EQ(write.Said(std::string(WayBack)), !isNothingWritten) << write.Err();
        EXPECT_EQ(write.HasWritten(), !isNothingWritten);
        EXPECT_EQ(write.IsUntouched(), isNothingWritten);
        // The radio has stored also the packet whose reply is spoilt.
        EXPECT_EQ(write.Holds(100), reply >= FirstOfReadBack - 1);
        EXPECT_EQ(write.store.Has(std::string(ReadBackup)), reply > BackupReplies);
    }
}

TEST_P(RadioWriteFaultsTest, LeaveABackupAndACommandThatRestoreTheRadio) {
    for (int reply = FirstPacket; reply <= AllReplies; ++reply) {
        SCOPED_TRACE(reply);
        FaultyWrite write(reply, GetParam(), 0);
        if (IsUnseen(reply, GetParam())) {
            continue;
        }
        EXPECT_EQ(write.FileImage(std::string(ReadBackup)), PatternImage(3));
        const std::size_t command = write.Err().find(WayBack);
        ASSERT_NE(command, std::string::npos) << write.Err();
        const std::size_t path = command + WayBack.size();
        write.ports.Present(3);
        write.clock.Advance(2000); // before anybody has typed it
        EXPECT_EQ(write.Write(write.Err().substr(path, write.Err().find('\n', path) - path), 0), ExitStatus::Done)
            << write.Err();
        EXPECT_TRUE(write.Holds(3));
    }
}

INSTANTIATE_TEST_SUITE_P(EveryFault, RadioWriteFaultsTest,
                         ::testing::Values(Fault::Drop, Fault::Cut, Fault::Corrupt, Fault::Late, Fault::Vanish),
                         NameOf);

class RadioWriteRetriesTest : public ::testing::TestWithParam<Fault> {};

TEST_P(RadioWriteRetriesTest, GetOverAFaultAtEveryReply) {
    for (int reply = 1; reply <= AllReplies; ++reply) {
        SCOPED_TRACE(reply);
        RadioRig rig;
        rig.PutFile("/mine/new.dat", PatternImage(100));
        // What a pause brings: the cable is in again, and a late reply has come, which the virtual clock would hold
        // back.
        rig.OnClear = [&rig] {
            rig.ports.Present(3);
            rig.clock.WaitProcessingEvents(ScriptedRadio::LateDelay);
        };
        rig.radio.Spoil(reply, GetParam());
        EXPECT_EQ(WriteRadio({.radio = {.port = 3, .retries = 1}, .file = "/mine/new.dat"}, rig.machine, rig.console),
                  ExitStatus::Done)
            << rig.Err();
        EXPECT_EQ(rig.radio.FaultsFired(), 1);
        EXPECT_TRUE(rig.Said("COM3: written and verified\n"));
        EXPECT_EQ(rig.Said("beginning again, 1 of 1\n"), !IsUnseen(reply, GetParam()));
        EXPECT_EQ(rig.FileImage(std::string(ReadBackup)), PatternImage(3));
    }
}

INSTANTIATE_TEST_SUITE_P(EveryFault, RadioWriteRetriesTest,
                         ::testing::Values(Fault::Drop, Fault::Cut, Fault::Corrupt, Fault::Late, Fault::Vanish),
                         NameOf);

/// The user interrupts the command when the n-th command of all has gone to the radio: a read has 3, two for each of
/// its 17 blocks and the End, a write 3, its 49 packets and the End.
TEST(RadioWriteInterrupted, TellsTheTruthAboutTheRadioAndTheWayBack) {
    constexpr int ReadCommands = 3 + 17 * 2 + 1;
    constexpr int WriteCommands = 3 + 49 + 1;
    for (int last = 0; last <= 2 * ReadCommands + WriteCommands - 1; ++last) {
        SCOPED_TRACE(last);
        RadioRig rig;
        rig.PutFile("/mine/new.dat", PatternImage(100));
        int commands = 0;
        rig.isInterrupted = last == 0;
        rig.OnCommand = [&](const std::string&) { rig.isInterrupted = rig.isInterrupted || ++commands == last; };
        EXPECT_EQ(WriteRadio({.radio = {.port = 3, .retries = 2}, .file = "/mine/new.dat"}, rig.machine, rig.console),
                  ExitStatus::NoRadio);
        const bool isNothingWritten = last < ReadCommands + 4;
        const bool isAllWritten = last >= ReadCommands + WriteCommands;
        EXPECT_TRUE(rig.Said("zelvor-cli: interrupted\n")) << rig.Err();
        EXPECT_FALSE(rig.Said("beginning again")) << rig.Err();
        EXPECT_EQ(rig.Said(std::string(NothingWritten)), isNothingWritten) << rig.Err();
        EXPECT_EQ(rig.Said(std::string(PartlyWritten)), !isNothingWritten && !isAllWritten) << rig.Err();
        EXPECT_EQ(rig.Said(std::string(NotReadBack)), isAllWritten) << rig.Err();
        EXPECT_EQ(rig.Said(std::string(WayBack)), !isNothingWritten) << rig.Err();
        EXPECT_EQ(rig.RadioImage() == PatternImage(3), isNothingWritten);
    }
}

} // namespace
} // namespace zelvor::cli
