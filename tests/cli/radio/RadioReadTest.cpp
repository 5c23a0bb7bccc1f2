#include "cli/RadioRead.h"

#include "cli/radio/RadioRig.h"

namespace zelvor::cli {
namespace {

using Names = std::vector<std::string>;

class RadioReadTest : public ::testing::Test, protected RadioRig {
protected:
    ExitStatus Read(int retries = 2) {
        return ReadRadio({.radio = {.port = 3, .retries = retries}, .output = "/mine/radio.dat"}, machine, console);
    }
};

TEST_F(RadioReadTest, PutsTheMemoryIntoTheFileAndIntoABackup) {
    EXPECT_EQ(Read(), ExitStatus::Done);
    EXPECT_EQ(FileImage("/mine/radio.dat"), PatternImage(3));
    EXPECT_EQ(Backups(), Names{"2026-11-22T014502-4618-M-read.dat"});
    EXPECT_EQ(FileImage("/backups/2026-11-22T014502-4618-M-read.dat"), PatternImage(3));
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(shown, Names{"Reading 16 of 16"});
}

TEST_F(RadioReadTest, TalksToTheRadioAsTheWindowsDo) {
    EXPECT_EQ(Read(), ExitStatus::Done);
    Names expected{"50 52 4F 47 52 41 4D", "02", "06"};
    for (const char* address : {"00 00", "00 40", "00 80", "00 C0", "01 00", "01 40", "01 80", "01 C0", "02 00",
                                "02 40", "02 80", "02 C0", "03 00", "03 40", "03 80", "03 C0", "03 C0"}) {
        expected.push_back("52 " + std::string(address) + " 40");
        expected.emplace_back("06");
    }
    expected.emplace_back("45");
    EXPECT_EQ(radio.Commands(), expected);
    EXPECT_EQ(ports.Record("MSComm1").log[1], "number 3");
    EXPECT_EQ(ports.Record("MSComm1").log[2], "settings 9600,N,8,2");
}

TEST_F(RadioReadTest, OpensItsPortOnceAndClosesItAtTheEnd) {
    EXPECT_EQ(Read(), ExitStatus::Done);
    EXPECT_EQ(CountInLog("open"), 1);
    EXPECT_EQ(CountInLog("close"), 1);
    EXPECT_EQ(ports.Record("MSComm1").log.back(), "close");
}

TEST_F(RadioReadTest, BeginsAgainAsOftenAsItIsTold) {
    isConnected = false;
    int entries = 0;
    OnCommand = [&](const std::string& command) { entries += command == "50 52 4F 47 52 41 4D" ? 1 : 0; };
    EXPECT_EQ(Read(2), ExitStatus::NoRadio);
    EXPECT_EQ(Err(), "zelvor-cli: COM3: no connection; beginning again, 1 of 2\n"
                     "zelvor-cli: COM3: no connection; beginning again, 2 of 2\n"
                     "zelvor-cli: COM3 is open, but the radio does not answer as it should.\n");
    EXPECT_EQ(entries, 4); // three attempts, and the command that goes out behind the End of one that is given up
    EXPECT_EQ(Backups(), Names{});
    EXPECT_FALSE(store.Has("/mine/radio.dat"));
}

TEST_F(RadioReadTest, DoesNotBeginAgainWithoutRetries) {
    isConnected = false;
    EXPECT_EQ(Read(0), ExitStatus::NoRadio);
    EXPECT_EQ(Err(), "zelvor-cli: COM3 is open, but the radio does not answer as it should.\n");
}

TEST_F(RadioReadTest, SaysWhyAPortCannotBeOpened) {
    ports.Missing(3);
    EXPECT_EQ(Read(0), ExitStatus::NoRadio);
    EXPECT_EQ(Err(), "zelvor-cli: COM3 is missing. Plug in the cable; \"zelvor-cli ports\" lists what there is.\n");
    Forget();
    ports.Present(3);
    ports.InUse(3);
    EXPECT_EQ(Read(0), ExitStatus::NoRadio);
    EXPECT_EQ(Err(), "zelvor-cli: COM3 (/dev/fake3) is in use by another program. Close that program.\n");
    EXPECT_EQ(Backups(), Names{});
}

TEST_F(RadioReadTest, GoesOnWhenTheCableIsBack) {
    radio.Spoil(9, Fault::Vanish);
    OnClear = [this] { ports.Present(3); };
    EXPECT_EQ(Read(1), ExitStatus::Done);
    EXPECT_EQ(radio.FaultsFired(), 1);
    EXPECT_EQ(FileImage("/mine/radio.dat"), PatternImage(3));
}

TEST_F(RadioReadTest, TellsWhereTheReadIsWhenItsFileCannotBeWritten) {
    store.Refuse("/mine/radio.dat");
    EXPECT_EQ(Read(), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: /mine/radio.dat: cannot be written\n"
                     "zelvor-cli: what was read is in the backup /backups/2026-11-22T014502-4618-M-read.dat\n");
    EXPECT_EQ(FileImage("/backups/2026-11-22T014502-4618-M-read.dat"), PatternImage(3));
}

TEST_F(RadioReadTest, TellsOfABackupThatCannotBeKept) {
    folder.Refuse();
    EXPECT_EQ(Read(), ExitStatus::Done);
    EXPECT_EQ(FileImage("/mine/radio.dat"), PatternImage(3));
    EXPECT_EQ(Err(), "zelvor-cli: /backups: a backup could not be kept in this folder\n");
}

TEST_F(RadioReadTest, SpeaksChinese) {
    console.language = Language::Chinese;
    isConnected = false;
    EXPECT_EQ(Read(1), ExitStatus::NoRadio);
    EXPECT_TRUE(Said("zelvor-cli: COM3：没有连接；重新开始，第 1 次，共 1 次\n"));
    EXPECT_TRUE(Said("对讲机没有正确应答。\n"));
}

} // namespace
} // namespace zelvor::cli
