// The program zelvor-radio itself, on a real pseudo-terminal and in real time.

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <unistd.h>

#include <gtest/gtest.h>

#include "Feed.h"
#include "RadioProcess.h"
#include "TerminalHost.h"

namespace zelvor::test {
namespace {

namespace fs = std::filesystem;

class ZelvorRadioTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "zelvor-radio-test-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        directory = pattern;
    }

    void TearDown() override {
        std::error_code ignored;
        fs::remove_all(directory, ignored);
    }

    [[nodiscard]] fs::path Link(int number = 1) const {
        return directory / "Zelvor" / "ports" / ("COM" + std::to_string(number));
    }

    /// A data file of 1024 bytes `fill` behind the head.
    [[nodiscard]] fs::path MakeDataFile(const char* name, char fill, std::size_t size = 1024) const {
        fs::path path = directory / name;
        std::ofstream(path, std::ios::binary) << "RQ6152" << std::string(10, '\xFF') << std::string(size, fill);
        return path;
    }

    static Bytes FileBytes(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    int ExitCodeOf(const std::vector<std::string>& arguments, std::string& complaint) const {
        RadioProcess radio(directory, arguments);
        const int code = radio.ExitCode();
        complaint = radio.Err();
        return code;
    }

    static void Enter(const TerminalHost& host) {
        ASSERT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
        ASSERT_EQ(host.Ask({0x02}, 8).size(), 8U);
        ASSERT_EQ(host.Ask({0x06}, 1), Acknowledged);
    }

    /// The whole session of a read; the 1024 bytes.
    static Bytes ReadMemory(const TerminalHost& host) {
        Enter(host);
        Bytes memory;
        for (int k = 1; k <= 17; ++k) {
            const int address = (k < 17 ? k - 1 : 15) * 64;
            const auto high = static_cast<std::uint8_t>(address / 256);
            const auto low = static_cast<std::uint8_t>(address % 256);
            const Bytes reply = host.Ask({0x52, high, low, 0x40}, 68);
            EXPECT_EQ(reply.size(), 68U) << "block " << k;
            EXPECT_EQ(host.Ask({0x06}, 1), Acknowledged) << "block " << k;
            if (k < 17 && reply.size() == 68) {
                memory.insert(memory.end(), reply.begin() + 4, reply.end());
            }
        }
        host.Send({0x45});
        return memory;
    }

    fs::path directory;
};

TEST_F(ZelvorRadioTest, SaysWhenItIsReadyAndLinksItsPort) {
    RadioProcess radio(directory, {"--port", "7"});
    ASSERT_TRUE(radio.WaitForOut("\n"));
    ASSERT_TRUE(fs::is_symlink(Link(7)));
    EXPECT_EQ(radio.Out(), "ready: COM7 -> " + fs::read_symlink(Link(7)).string() + "\n");
    EXPECT_EQ(fs::read_symlink(Link(7)).string().substr(0, 9), "/dev/pts/");
}

TEST_F(ZelvorRadioTest, IsPortOneUnlessTold) {
    RadioProcess radio(directory, {});
    ASSERT_TRUE(radio.WaitForOut("ready: COM1 -> "));
    EXPECT_TRUE(TerminalHost(Link()).IsOpen());
}

TEST_F(ZelvorRadioTest, LinksInTheDirectoryThatItIsTold) {
    RadioProcess radio(directory, {"--link-dir", (directory / "else" / "where").string()});
    ASSERT_TRUE(radio.WaitForOut("ready: COM1 -> "));
    EXPECT_TRUE(fs::is_symlink(directory / "else" / "where" / "COM1"));
    EXPECT_FALSE(fs::exists(directory / "Zelvor"));
}

TEST_F(ZelvorRadioTest, ServesAWholeReadSession) {
    RadioProcess radio(directory, {});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    const auto begin = std::chrono::steady_clock::now();
    const Bytes memory = ReadMemory(host);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    ASSERT_EQ(memory.size(), 1024U);
    EXPECT_EQ(Bytes(memory.begin() + 0x10, memory.begin() + 0x18),
              (Bytes{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14}));
    EXPECT_EQ(Bytes(memory.begin() + 0x1B8, memory.begin() + 0x1C0),
              (Bytes{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF}));
    EXPECT_EQ(memory[0x3FF], 0xBF);
    // 1277 bytes have passed when the End byte is handed over; a fast line would be far below, a busy machine is above.
    EXPECT_GE(time.count(), 1277 * 11.0 / 9600.0 - 0.001);
    EXPECT_EQ(radio.Err(), "");
}

TEST_F(ZelvorRadioTest, TakesAWriteAndSavesItAfterEnd) {
    const fs::path saved = directory / "saved.dat";
    RadioProcess radio(directory, {"--load", MakeDataFile("in.dat", '\x21').string(), "--save", saved.string()});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    Enter(host);
    const Bytes packet{0x57, 0x01, 0xF8, 0x08, 1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(host.Ask(packet, 1), Acknowledged);
    EXPECT_FALSE(fs::exists(saved));
    host.Send({0x45});
    ASSERT_TRUE(Eventually([&] { return fs::exists(saved); }));
    const Bytes file = FileBytes(saved);
    ASSERT_EQ(file.size(), 1040U);
    EXPECT_EQ(Bytes(file.begin(), file.begin() + 16), Joined({Text("RQ6152"), Bytes(10, 0xFF)}));
    EXPECT_EQ(file[16 + 0x1F7], 0x21);
    EXPECT_EQ(file[16 + 0x1F8], 1);
    EXPECT_EQ(file[16 + 0x1FF], 8);
    EXPECT_EQ(file[16 + 0x200], 0x21);
}

TEST_F(ZelvorRadioTest, LoadsAFileAndSavesTheSameAtItsEnd) {
    const fs::path in = MakeDataFile("in.dat", '\x37');
    const fs::path out = directory / "out.dat";
    RadioProcess radio(directory, {"--load", in.string(), "--save", out.string()});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    {
        const TerminalHost host(Link());
        Enter(host);
        EXPECT_EQ(host.Ask({0x52, 0x02, 0x00, 0x02}, 6), (Bytes{0x57, 0x02, 0x00, 0x02, 0x37, 0x37}));
    }
    radio.Signal(SIGTERM);
    EXPECT_EQ(radio.ExitCode(), 0);
    EXPECT_EQ(FileBytes(out), FileBytes(in));
}

TEST_F(ZelvorRadioTest, EndsCleanlyOnEitherSignalAndTakesItsLinkWithIt) {
    for (const int signal : {SIGTERM, SIGINT}) {
        RadioProcess radio(directory, {});
        ASSERT_TRUE(radio.WaitForOut("ready: "));
        ASSERT_TRUE(fs::is_symlink(Link()));
        radio.Signal(signal);
        EXPECT_EQ(radio.ExitCode(), 0);
        EXPECT_FALSE(fs::is_symlink(Link()));
    }
}

TEST_F(ZelvorRadioTest, ReplacesAStaleLinkAndLeavesASuccessorsLinkAlone) {
    fs::create_directories(Link().parent_path());
    fs::create_symlink("/dev/pts/gone", Link());
    RadioProcess first(directory, {});
    ASSERT_TRUE(first.WaitForOut("ready: "));
    fs::remove(Link()); // as a user does who wants the number for another one
    RadioProcess second(directory, {});
    ASSERT_TRUE(second.WaitForOut("ready: "));
    first.Signal(SIGTERM);
    EXPECT_EQ(first.ExitCode(), 0);
    const TerminalHost host(Link());
    EXPECT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
}

TEST_F(ZelvorRadioTest, RefusesANumberThatTheUserHasLinkedAndLeavesTheLinkAlone) {
    fs::create_directories(Link().parent_path());
    fs::create_symlink("/dev/null", Link());
    std::string complaint;
    EXPECT_EQ(ExitCodeOf({"--port", "1"}, complaint), 2);
    EXPECT_EQ(complaint, "zelvor-radio: COM1 is taken: " + Link().string() +
                             " points to /dev/null; remove that link, or choose another --port\n");
    EXPECT_EQ(fs::read_symlink(Link()), "/dev/null");
}

TEST_F(ZelvorRadioTest, RefusesTheNumberOfARadioThatRunsAndLeavesItAlone) {
    RadioProcess first(directory, {});
    ASSERT_TRUE(first.WaitForOut("ready: "));
    const fs::path terminal = fs::read_symlink(Link());
    std::string complaint;
    EXPECT_EQ(ExitCodeOf({}, complaint), 2);
    EXPECT_NE(complaint.find(terminal.string()), std::string::npos) << complaint;
    EXPECT_EQ(fs::read_symlink(Link()), terminal);
    const TerminalHost host(Link());
    EXPECT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
}

TEST_F(ZelvorRadioTest, AUsersLinkToACableThatIsNotPluggedInComesBackAtTheEnd) {
    fs::create_directories(Link().parent_path());
    fs::create_symlink("/dev/cable that is out", Link());
    RadioProcess radio(directory, {"--fault", "unplug@1", "--unplugged", "100"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    {
        const TerminalHost host(Link());
        host.Send(Text("PROGRAM"));
    }
    ASSERT_TRUE(radio.WaitForErr("plugged in again: COM1"));
    EXPECT_EQ(fs::read_symlink(Link()).string().substr(0, 9), "/dev/pts/");
    radio.Signal(SIGTERM);
    EXPECT_EQ(radio.ExitCode(), 0);
    EXPECT_EQ(fs::read_symlink(Link()), "/dev/cable that is out");
}

TEST_F(ZelvorRadioTest, DoesNotReplaceAFileByItsLink) {
    fs::create_directories(Link().parent_path());
    std::ofstream(Link()) << "mine";
    std::string complaint;
    EXPECT_EQ(ExitCodeOf({}, complaint), 1);
    EXPECT_NE(complaint.find("COM1"), std::string::npos) << complaint;
    EXPECT_EQ(FileBytes(Link()), Text("mine"));
}

TEST_F(ZelvorRadioTest, ReportsAPortThatIsSetWrongly) {
    RadioProcess radio(directory, {});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    {
        const TerminalHost host(Link(), B19200, false);
        EXPECT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
    }
    EXPECT_EQ(radio.Err(), "zelvor-radio: the port is set to 19200,N,8,1 and not to 9600,N,8,2\n");
    const TerminalHost host(Link(), B9600, false);
    EXPECT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
    EXPECT_TRUE(radio.WaitForErr("9600,N,8,1 and not to 9600,N,8,2\n"));
}

TEST_F(ZelvorRadioTest, SaysNothingOfAPortThatIsSetRightly) {
    RadioProcess radio(directory, {});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    Enter(host);
    EXPECT_EQ(radio.Err(), "");
}

TEST_F(ZelvorRadioTest, RefusesBadArgumentsWithOneLineAHintAndCodeTwo) {
    const std::vector<std::vector<std::string>> bad{
        {"--port", "0"},
        {"--port", "21"},
        {"--port", "one"},
        {"--port"},
        {"--fault", "explode@17"},
        {"--fault", "drop"},
        {"--fault", "cut@17"},
        {"--fault", "cut:1@1"},
        {"--fault", "cut:8@2"},
        {"--fault", "cut:8@3"},
        {"--fault", "cut:68@4"},
        {"--fault", "cut:999@17"},
        {"--fault", "drop@1", "drop@2"},
        {"--unplugged", "-1"},
        {"--serve-many", "0"},
        {"--serve-many", "-3"},
        {"--serve-many", "many"},
        {"--serve-many"},
        {"--nonsense"},
        {"stray"},
    };
    for (const auto& arguments : bad) {
        std::string complaint;
        EXPECT_EQ(ExitCodeOf(arguments, complaint), 2) << arguments.back();
        const std::size_t hint = complaint.find('\n') + 1;
        EXPECT_EQ(complaint.substr(0, 14), "zelvor-radio: ") << complaint;
        EXPECT_EQ(complaint.substr(hint), "Try \"zelvor-radio --help\".\n") << complaint;
    }
    EXPECT_FALSE(fs::exists(Link()));
}

TEST_F(ZelvorRadioTest, RefusesAFileThatIsNoDataFileWithCodeTwo) {
    std::string complaint;
    EXPECT_EQ(ExitCodeOf({"--load", (directory / "missing.dat").string()}, complaint), 2);
    EXPECT_NE(complaint.find("missing.dat"), std::string::npos);
    EXPECT_EQ(ExitCodeOf({"--load", MakeDataFile("short.dat", 'x', 1023).string()}, complaint), 2);
    EXPECT_NE(complaint.find("short.dat"), std::string::npos);
}

TEST_F(ZelvorRadioTest, HelpAndVersionGoToStandardOutput) {
    RadioProcess help(directory, {"--help"});
    EXPECT_EQ(help.ExitCode(), 0);
    for (const char* option : {"--port", "--load", "--save", "--trace", "--fault", "--serve-many"}) {
        EXPECT_NE(help.Out().find(option), std::string::npos) << option;
    }
    RadioProcess version(directory, {"--version"});
    EXPECT_EQ(version.ExitCode(), 0);
    EXPECT_NE(version.Out().find("zelvor-radio 1."), std::string::npos);
}

TEST_F(ZelvorRadioTest, ASaveThatFailsIsCodeOne) {
    const fs::path folder = directory / "place";
    fs::create_directory(folder);
    RadioProcess radio(directory, {"--save", (folder / "place.dat").string()});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    fs::remove(folder);
    radio.Signal(SIGTERM);
    EXPECT_EQ(radio.ExitCode(), 1);
    EXPECT_NE(radio.Err().find("place.dat"), std::string::npos);
}

TEST_F(ZelvorRadioTest, IsAFleetOfRadiosEachWithTheMemoryAsItWasLoaded) {
    RadioProcess radio(directory, {"--load", MakeDataFile("in.dat", '\x21').string(), "--serve-many", "3"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const fs::path port = fs::read_symlink(Link());
    for (int i = 1; i <= 3; ++i) {
        const TerminalHost host(port);
        Enter(host);
        EXPECT_EQ(host.Ask({0x52, 0x02, 0x00, 0x02}, 6), (Bytes{0x57, 0x02, 0x00, 0x02, 0x21, 0x21})) << i;
        EXPECT_EQ(host.Ask({0x57, 0x02, 0x00, 0x02, 0x33, 0x44}, 1), Acknowledged) << i;
        host.Send({0x45});
        Enter(host); // the port was not closed: the same radio
        EXPECT_EQ(host.Ask({0x52, 0x02, 0x00, 0x02}, 6), (Bytes{0x57, 0x02, 0x00, 0x02, 0x33, 0x44})) << i;
    }
    EXPECT_EQ(radio.ExitCode(), 0);
    EXPECT_FALSE(fs::is_symlink(Link()));
    EXPECT_EQ(radio.Err(), "");
}

TEST_F(ZelvorRadioTest, CountsNoSessionWithoutAnEntry) {
    RadioProcess radio(directory, {"--serve-many", "1", "--trace"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    for (int i = 0; i < 3; ++i) {
        const TerminalHost prober(Link());
        prober.Send(Text("ATI1\r"));
    }
    ASSERT_TRUE(radio.WaitForOut("] ? 41 54 49 31 0D"));
    {
        const TerminalHost host(Link());
        ASSERT_EQ(host.Ask(Text("TUNING "), 1), Acknowledged);
    }
    EXPECT_EQ(radio.ExitCode(), 0);
    EXPECT_NE(radio.Out().find("] ! session 1 of 1 is over\n"), std::string::npos) << radio.Out();
}

TEST_F(ZelvorRadioTest, TakesWhatIsSentJustBeforeThePortIsClosed) {
    RadioProcess radio(directory, {"--serve-many", "1", "--trace"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    {
        const TerminalHost host(Link());
        Enter(host);
        host.Send({0x45});
    }
    EXPECT_EQ(radio.ExitCode(), 0);
    const std::size_t end = radio.Out().find("] > 45\n");
    EXPECT_LT(end, radio.Out().find("] ! session 1 of 1 is over\n")) << radio.Out();
}

TEST_F(ZelvorRadioTest, OfAFleetSavesTheRadioThatWasUsedLast) {
    const fs::path saved = directory / "saved.dat";
    RadioProcess radio(
        directory, {"--load", MakeDataFile("in.dat", '\x21').string(), "--save", saved.string(), "--serve-many", "5"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    for (const std::uint8_t value : {std::uint8_t{0x33}, std::uint8_t{0x44}}) {
        const TerminalHost host(Link());
        Enter(host);
        EXPECT_EQ(host.Ask({0x57, 0x02, 0x00, 0x01, value}, 1), Acknowledged);
    }
    ASSERT_TRUE(Eventually([&] {
        const Bytes file = FileBytes(saved);
        return file.size() == 1040 && file[16 + 0x200] == 0x44;
    }));
    radio.Signal(SIGTERM);
    EXPECT_EQ(radio.ExitCode(), 0);
    EXPECT_EQ(FileBytes(saved)[16 + 0x200], 0x44);
    EXPECT_EQ(FileBytes(saved)[16 + 0x201], 0x21);
}

TEST_F(ZelvorRadioTest, OfAFleetCountsRepliesOnAndTakesAnUnplugForNoEnd) {
    RadioProcess radio(directory, {"--serve-many", "2", "--fault", "unplug@5", "--unplugged", "50"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    {
        const TerminalHost host(Link());
        Enter(host);
    }
    {
        const TerminalHost host(Link());
        ASSERT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
        host.Send({0x02});
        ASSERT_TRUE(host.SeesHangUp());
    }
    ASSERT_TRUE(radio.WaitForErr("plugged in again: COM1"));
    {
        const TerminalHost host(Link());
        Enter(host);
    }
    EXPECT_EQ(radio.ExitCode(), 0);
}

TEST_F(ZelvorRadioTest, TellsAtItsStartThatItCannotSave) {
    for (const fs::path& place : {directory / "no" / "such" / "place.dat", directory, fs::path("/proc/place.dat")}) {
        std::string complaint;
        EXPECT_EQ(ExitCodeOf({"--save", place.string()}, complaint), 2) << place;
        EXPECT_EQ(complaint, "zelvor-radio: cannot write " + place.string() + "\n");
    }
    EXPECT_FALSE(fs::exists(Link()));
}

TEST_F(ZelvorRadioTest, TellsAtItsStartThatAPlaceToSaveInIsNoFile) {
    std::string complaint;
    EXPECT_EQ(ExitCodeOf({"--save", "/dev/null"}, complaint), 2);
    EXPECT_EQ(complaint, "zelvor-radio: cannot write /dev/null\n");
}

TEST_F(ZelvorRadioTest, SavesWhereALinkToNoFileYetLeads) {
    fs::create_symlink("real.dat", directory / "link.dat");
    RadioProcess radio(directory, {"--save", (directory / "link.dat").string()});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    EXPECT_FALSE(fs::exists(directory / "real.dat"));
    radio.Signal(SIGTERM);
    EXPECT_EQ(radio.ExitCode(), 0);
    EXPECT_EQ(fs::read_symlink(directory / "link.dat"), "real.dat");
    EXPECT_EQ(FileBytes(directory / "real.dat").size(), 1040U);
}

TEST_F(ZelvorRadioTest, LeavesTheFileToSaveAsItIsUntilItSaves) {
    const fs::path fresh = directory / "fresh.dat";
    const fs::path old = MakeDataFile("old.dat", 'x');
    const Bytes before = FileBytes(old);
    RadioProcess first(directory, {"--save", fresh.string()});
    ASSERT_TRUE(first.WaitForOut("ready: "));
    EXPECT_FALSE(fs::exists(fresh));
    RadioProcess second(directory, {"--port", "2", "--save", old.string()});
    ASSERT_TRUE(second.WaitForOut("ready: "));
    EXPECT_EQ(FileBytes(old), before);
}

TEST_F(ZelvorRadioTest, TakesCutsThatLeaveSomethingOut) {
    RadioProcess radio(directory, {"--fault", "cut:7@2", "--fault", "cut:67@4", "--fault", "cut:33@17"});
    EXPECT_TRUE(radio.WaitForOut("ready: "));
}

TEST_F(ZelvorRadioTest, TracesEveryExchangeInHexadecimal) {
    RadioProcess radio(directory, {"--trace", "--fault", "corrupt@4"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    host.Send(Text("ATI1\r"));
    Enter(host);
    EXPECT_EQ(host.Ask({0x06}, 1), Bytes{0xF9});
    host.Send({0x45});
    ASSERT_TRUE(radio.WaitForOut("] > 45\n"));
    for (const char* line : {"] ? 41 54 49 31 0D\n", "] > 50 52 4F 47 52 41 4D\n", "] < 06\n", "] > 02\n",
                             "] < 50 34 36 31 38 01 F8 FF\n", "] ! fault corrupt@4 fired\n", "] < F9\n"}) {
        EXPECT_NE(radio.Out().find(line), std::string::npos) << line << "in\n" << radio.Out();
    }
    EXPECT_NE(radio.Err().find("fault corrupt@4 fired"), std::string::npos);
}

TEST_F(ZelvorRadioTest, ServesAnInformationSessionAndTracesItsCommandsByName) {
    RadioProcess radio(directory, {"--trace"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    Enter(host);
    const Bytes record = host.Ask(Text("NRK"), 34);
    ASSERT_EQ(record.size(), 34U);
    EXPECT_EQ(Bytes(record.begin() + 17, record.begin() + 25), Text("10024618"));
    EXPECT_EQ(host.Ask({0x06}, 1), Acknowledged);
    EXPECT_EQ(host.Ask({0x50}, 10), (Bytes{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(host.Ask({0x06}, 1), Acknowledged);
    EXPECT_EQ(host.Ask({0x45}, 1), Acknowledged);
    for (const char* line :
         {"] > 50 52 4F 47 52 41 4D\n", "] > 02\n", "] > 06\n", "] > 4E 52 4B (Read manufacturing record)\n",
          "] > 06 (Acknowledge)\n", "] > 50 (Read unused record)\n", "] > 45 (End)\n"}) {
        EXPECT_NE(radio.Out().find(line), std::string::npos) << line << "in\n" << radio.Out();
    }
}

TEST_F(ZelvorRadioTest, ServesATuningSessionAndSavesWhatWasStored) {
    const fs::path saved = directory / "saved.dat";
    RadioProcess radio(directory, {"--trace", "--save", saved.string()});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    ASSERT_EQ(host.Ask(Text("TUNING "), 1), Acknowledged);
    EXPECT_EQ(host.Ask({0x02}, 8), (Bytes{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF}));
    const Bytes before = host.Ask({0x05}, 62);
    ASSERT_EQ(before.size(), 62U);
    EXPECT_EQ(before[11], 0x45);
    EXPECT_EQ(host.Ask({0x10, 0x01}, 8), (Bytes{0x00, 0x50, 0x50, 0x15, 0x00, 0x00, 0x51, 0x15}));
    EXPECT_EQ(host.Ask({0x30, 0x20, 0xC8}, 1), Acknowledged);
    EXPECT_EQ(host.Ask({0x33, 0x20, 0xC9}, 1), Acknowledged);
    EXPECT_EQ(host.Ask({0x30, 0x0E}, 1), Acknowledged);
    EXPECT_EQ(host.Ask({0x45}, 1), Acknowledged);
    ASSERT_TRUE(Eventually([&] { return fs::exists(saved) && fs::file_size(saved) == 1040; }));
    const Bytes file = FileBytes(saved);
    EXPECT_EQ(file[16 + 0x185], 0xC8);
    EXPECT_EQ(file[16 + 0x184], 0xC9);
    EXPECT_EQ(file[16 + 0x183], 0x43);
    for (const char* line :
         {"] > 54 55 4E 49 4E 47 20 (Tuning entry)\n", "] > 02 (Identity request)\n", "] > 05 (Read tuning data)\n",
          "] > 10 01 (Set channel 1)\n", "] > 30 20 C8 (Set item 1 Low to 200)\n", "] > 30 0E (Store item 1 Low)\n"}) {
        EXPECT_NE(radio.Out().find(line), std::string::npos) << line << "in\n" << radio.Out();
    }
}

TEST_F(ZelvorRadioTest, TellsAtItsEndWhichFaultsNeverFired) {
    RadioProcess radio(directory, {"--fault", "drop@1", "--fault", "drop@900"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    {
        const TerminalHost host(Link());
        host.Send(Text("PROGRAM"));
        ASSERT_TRUE(radio.WaitForErr("fault drop@1 fired"));
    }
    radio.Signal(SIGTERM);
    EXPECT_EQ(radio.ExitCode(), 0);
    EXPECT_NE(radio.Err().find("fault drop@900 never fired"), std::string::npos);
    EXPECT_EQ(radio.Err().find("fault drop@1 never"), std::string::npos);
}

TEST_F(ZelvorRadioTest, CutSendsTheBeginningAndARetrySucceeds) {
    RadioProcess radio(directory, {"--fault", "cut:5@4"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    Enter(host);
    host.Send({0x52, 0x00, 0x40, 0x40});
    EXPECT_EQ(host.Receive(68, 300).size(), 5U);
    EXPECT_EQ(ReadMemory(host).size(), 1024U);
}

TEST_F(ZelvorRadioTest, AHangEndsWithTheNextEntry) {
    RadioProcess radio(directory, {"--fault", "hang@3"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    EXPECT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
    EXPECT_EQ(host.Ask({0x02}, 8).size(), 8U);
    host.Send({0x06});
    ASSERT_TRUE(radio.WaitForErr("fault hang@3 fired"));
    host.Send({0x06});
    EXPECT_EQ(host.Receive(1, 100).size(), 0U);
    Enter(host);
}

TEST_F(ZelvorRadioTest, AnUnpluggedPortVanishesAndComesBack) {
    RadioProcess radio(directory, {"--fault", "unplug@2", "--unplugged", "300"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    {
        const TerminalHost host(Link());
        EXPECT_EQ(host.Ask(Text("PROGRAM"), 1), Acknowledged);
        host.Send({0x02});
        EXPECT_TRUE(host.SeesHangUp());
    }
    ASSERT_TRUE(radio.WaitForErr("plugged in again: COM1"));
    const TerminalHost host(Link());
    ASSERT_TRUE(host.IsOpen());
    Enter(host);
}

TEST_F(ZelvorRadioTest, ThePortHasNoLinkWhileItIsUnplugged) {
    RadioProcess radio(directory, {"--fault", "unplug@1", "--unplugged", "600000"});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const TerminalHost host(Link());
    host.Send(Text("PROGRAM"));
    EXPECT_TRUE(Eventually([&] { return !fs::is_symlink(Link()); }));
    radio.Signal(SIGTERM);
    EXPECT_EQ(radio.ExitCode(), 0);
}

TEST_F(ZelvorRadioTest, OneProgramAfterTheOtherMayOpenThePort) {
    RadioProcess radio(directory, {});
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    for (int i = 0; i < 3; ++i) {
        const TerminalHost host(Link());
        ASSERT_TRUE(host.IsOpen());
        Enter(host);
    }
}

} // namespace
} // namespace zelvor::test
