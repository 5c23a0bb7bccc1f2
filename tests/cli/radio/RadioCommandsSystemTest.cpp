// zelvor-cli against zelvor-radio: two processes, a pseudo-terminal between them, real time.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include "simulator/RadioProcess.h"

namespace zelvor {
namespace {

namespace fs = std::filesystem;
using test::RadioProcess;

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

std::string ContentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Without the lines of a command that began again: an answer may come too late on a busy machine.
std::string WithoutNewBeginnings(const std::string& said) {
    static const std::regex line("[^\n]*: no connection; beginning again, [^\n]*\n");
    return std::regex_replace(said, line, "");
}

class RadioCommandsSystemTest : public ::testing::Test {
protected:
    RadioCommandsSystemTest() {
        std::string pattern = (fs::temp_directory_path() / "zelvor-cli-test-XXXXXX").string();
        directory = ::mkdtemp(pattern.data());
        ::setenv("XDG_CONFIG_HOME", directory.c_str(), 1);
        ::setenv("XDG_DATA_HOME", (directory / "data").c_str(), 1);
        const std::string path = fs::path(ZELVOR_CLI_PROGRAM).parent_path().string() + ":/usr/bin:/bin";
        ::setenv("PATH", path.c_str(), 1);
    }
    ~RadioCommandsSystemTest() override {
        std::error_code ignored;
        fs::remove_all(directory, ignored);
    }

    /// Runs a line of a shell in the test's directory.
    Result Run(const std::string& line) {
        const std::string command = "cd '" + directory.string() + "' && (" + line + ") >out.txt 2>err.txt";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(directory / "out.txt"),
                ContentOf(directory / "err.txt")};
    }
    [[nodiscard]] fs::path Path(const std::string& name) const { return directory / name; }
    [[nodiscard]] std::vector<std::string> RadioArguments(std::vector<std::string> more) const {
        more.insert(more.end(), {"--port", "3", "--save", Path("memory.dat").string()});
        return more;
    }
    /// The saved memory's byte at an address of the radio.
    [[nodiscard]] int MemoryAt(std::size_t address) const {
        const std::string file = ContentOf(Path("memory.dat"));
        return file.size() == 1040 ? static_cast<unsigned char>(file[16 + address]) : -1;
    }

    fs::path directory;
};

TEST_F(RadioCommandsSystemTest, ReadInfoAndVerify) {
    RadioProcess radio(directory, RadioArguments({}));
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    const Result read = Run("zelvor-cli read --port 3 -o radio.dat");
    EXPECT_EQ(read.status, 0) << read.err;
    EXPECT_EQ(read.out + WithoutNewBeginnings(read.err), "");
    EXPECT_EQ(ContentOf(Path("radio.dat")), ContentOf(Path("memory.dat")));

    const Result info = Run("zelvor-cli --language en info --port 3");
    EXPECT_EQ(info.status, 0) << info.err;
    EXPECT_EQ(info.out, "Model Type: 4618\nFrequency: VHF: 136-174 MHz(M)\nSerial Number: A 10024618\nVersion: V1.0\n");

    const Result same = Run("zelvor-cli verify --port 3 radio.dat");
    EXPECT_EQ(same.status, 0) << same.err;
    EXPECT_EQ(same.out + WithoutNewBeginnings(same.err), "");

    const Result other = Run("zelvor-cli set radio.dat optional.squelch-level=9 -o other.dat && "
                             "zelvor-cli --language en verify --port 3 other.dat");
    EXPECT_EQ(other.status, 1);
    EXPECT_EQ(other.out.substr(0, 13), "0x134: 09 -> ");
    EXPECT_EQ(WithoutNewBeginnings(other.err), "zelvor-cli: COM3: the radio differs from other.dat, bytes: 1\n");
}

TEST_F(RadioCommandsSystemTest, WriteAndGetBackWhatWasThere) {
    RadioProcess radio(directory, RadioArguments({}));
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    ASSERT_EQ(Run("zelvor-cli read --port 3 -o radio.dat && "
                  "zelvor-cli set radio.dat optional.squelch-level=9 -o new.dat")
                  .status,
              0);
    const Result write = Run("zelvor-cli --language en write --port 3 new.dat");
    EXPECT_EQ(write.status, 0);
    EXPECT_EQ(write.out, "");
    EXPECT_EQ(WithoutNewBeginnings(write.err), "zelvor-cli: COM3: written and verified\n");
    EXPECT_EQ(MemoryAt(0x134), 9);

    // Newest first: the read-back, the file, the radio before, and the first read.
    const Result list = Run("zelvor-cli backup list");
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(std::count(list.out.begin(), list.out.end(), '\n'), 4) << list.out;
    EXPECT_EQ(Run("zelvor-cli backup path").out, Path("data/Zelvor/backups").string() + "\n");

    const Result restore = Run("zelvor-cli --language en write --port 3 \"$(zelvor-cli backup list | sed -n 3p)\"");
    EXPECT_EQ(restore.status, 0) << restore.err;
    EXPECT_EQ(Run("zelvor-cli verify --port 3 radio.dat").status, 0);
    EXPECT_EQ(radio.Err(), "");
}

TEST_F(RadioCommandsSystemTest, TheCommandThatAFailedWriteTellsRestoresTheRadio) {
    RadioProcess radio(directory, RadioArguments({"--fault", "drop@90"}));
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    ASSERT_EQ(Run("zelvor-cli read --port 3 -o radio.dat && "
                  "zelvor-cli set radio.dat optional.squelch-level=9 -o new.dat")
                  .status,
              0);
    // Replies 1 to 37 were the read's, 38 to 74 are the backup's, and 78 is that to the first packet.
    const Result write = Run("zelvor-cli --language en write --port 3 --retries 0 new.dat");
    EXPECT_EQ(write.status, 4);
    EXPECT_NE(radio.Err().find("fault drop@90 fired"), std::string::npos);
    EXPECT_NE(write.err.find("the radio may be partly written"), std::string::npos) << write.err;
    const std::string before = "this puts it back: ";
    const std::size_t command = write.err.find(before);
    ASSERT_NE(command, std::string::npos) << write.err;
    const std::size_t begin = command + before.size();
    const Result restore = Run(write.err.substr(begin, write.err.find('\n', begin) - begin));
    EXPECT_EQ(restore.status, 0) << restore.err;
    EXPECT_EQ(Run("zelvor-cli verify --port 3 radio.dat").status, 0);
}

TEST_F(RadioCommandsSystemTest, WriteGetsOverAPulledCable) {
    RadioProcess radio(directory, RadioArguments({"--fault", "unplug@60", "--unplugged", "300"}));
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    ASSERT_EQ(Run("zelvor-cli new --model 4618 --market M -o new.dat").status, 0);
    const Result write = Run("zelvor-cli --language en write --port 3 new.dat");
    EXPECT_EQ(write.status, 0);
    EXPECT_NE(write.err.find("zelvor-cli: COM3: no connection; beginning again, 1 of 2\n"), std::string::npos)
        << write.err;
    EXPECT_NE(write.err.find("zelvor-cli: COM3: written and verified\n"), std::string::npos) << write.err;
}

TEST_F(RadioCommandsSystemTest, WriteRefusesAnotherModel) {
    RadioProcess radio(directory, RadioArguments({}));
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    ASSERT_EQ(Run("zelvor-cli new --model 5618 --market M -o new.dat").status, 0);
    const Result write = Run("zelvor-cli --language en write --port 3 new.dat");
    EXPECT_EQ(write.status, 5);
    EXPECT_EQ(MemoryAt(0x1BD), 0x01);
    EXPECT_EQ(Run("zelvor-cli write --port 3 --overwrite-model new.dat").status, 0);
    EXPECT_EQ(MemoryAt(0x1BD), 33);
}

TEST_F(RadioCommandsSystemTest, AnInterruptedWriteTellsWhatItLeaves) {
    RadioProcess radio(directory, RadioArguments({"--trace"}));
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    ASSERT_EQ(Run("zelvor-cli new --model 4618 --market M -o new.dat").status, 0);
    std::ofstream(Path("run.sh")) << "zelvor-cli --language en write --port 3 new.dat & writer=$!\n"
                                     "until grep -q '> 57 00 80' \"$1\"; do sleep 0.02; done\n"
                                     "kill -TERM $writer\nwait $writer\n";
    const Result write = Run("timeout 60 sh run.sh '" + radio.OutPath().string() + "'");
    EXPECT_EQ(write.status, 4);
    EXPECT_EQ(write.err.substr(0, 24), "zelvor-cli: interrupted\n");
    EXPECT_NE(write.err.find("the radio may be partly written"), std::string::npos) << write.err;
    EXPECT_NE(write.err.find("this puts it back: zelvor-cli write --port 3 "), std::string::npos) << write.err;
}

TEST_F(RadioCommandsSystemTest, AFleetIsWrittenRadioByRadio) {
    RadioProcess radio(directory, RadioArguments({"--serve-many", "3"}));
    ASSERT_TRUE(radio.WaitForOut("ready: "));
    ASSERT_EQ(Run("zelvor-cli new --model 4618 --market M -o new.dat").status, 0);
    const Result fleet = Run("for i in 1 2 3; do zelvor-cli --language en write --port 3 new.dat || exit; done");
    EXPECT_EQ(fleet.status, 0);
    EXPECT_EQ(WithoutNewBeginnings(fleet.err),
              "zelvor-cli: COM3: written and verified\nzelvor-cli: COM3: written and verified\n"
              "zelvor-cli: COM3: written and verified\n");
    EXPECT_EQ(radio.ExitCode(), 0);
    // Each held the sample radio's channel 1, and not the blank one that the radio before was given.
    const Result channels = Run("for i in 9 6 3; do zelvor-cli channels export \"$(zelvor-cli backup list | sed -n "
                                "${i}p)\" | sed -n 2p | cut -d , -f 1,2; done");
    EXPECT_EQ(channels.out, "1,145.12500\n1,145.12500\n1,145.12500\n") << channels.err;
    const Result list = Run("zelvor-cli backup list");
    EXPECT_EQ(std::count(list.out.begin(), list.out.end(), '\n'), 9) << list.out;
}

TEST_F(RadioCommandsSystemTest, RadiosThatAreReadAtOnceKeepABackupEach) {
    std::vector<std::unique_ptr<RadioProcess>> radios;
    for (const char* port : {"1", "2", "3", "4", "5", "6"}) {
        radios.push_back(std::make_unique<RadioProcess>(directory, std::vector<std::string>{"--port", port}));
        ASSERT_TRUE(radios.back()->WaitForOut("ready: "));
    }
    std::ofstream(Path("run.sh")) << "for i in 1 2 3 4 5 6; do zelvor-cli read --port $i -o $i.dat & done\nwait\n"
                                     "for f in data/Zelvor/backups/*; do cmp $f 1.dat && echo same; done\n";
    const Result reads = Run("sh run.sh");
    EXPECT_EQ(reads.out, "same\nsame\nsame\nsame\nsame\nsame\n") << reads.err;
    EXPECT_EQ(WithoutNewBeginnings(reads.err), "");
}

TEST_F(RadioCommandsSystemTest, NoRadioAndWrongUsageHaveTheirStatus) {
    const Result read = Run("zelvor-cli --language en read --port 9 --retries 0 -o radio.dat");
    EXPECT_EQ(read.status, 4);
    EXPECT_EQ(read.err, "zelvor-cli: COM9 is missing. Plug in the cable; \"zelvor-cli ports\" lists what there is.\n");
    EXPECT_FALSE(fs::exists(Path("radio.dat")));
    for (const char* line : {"read -o radio.dat", "read --port 21 -o radio.dat", "read --port 1", "write --port 1",
                             "write --port 0 radio.dat", "verify radio.dat", "info", "backup", "backup remove"}) {
        EXPECT_EQ(Run("zelvor-cli " + std::string(line)).status, 2) << line;
    }
    EXPECT_EQ(Run("zelvor-cli write --port 1 none.dat").status, 3);
    EXPECT_EQ(Run("zelvor-cli verify --port 1 none.dat").status, 3);
}

} // namespace
} // namespace zelvor
