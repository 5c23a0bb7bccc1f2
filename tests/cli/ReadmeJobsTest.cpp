// The jobs of the README, run as they are written there, with a simulated radio at port 1.

#include <array>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/wait.h>

#include "../support/TestDirectory.h"

namespace zelvor {
namespace {

struct Finished {
    int status;
    std::string printed; // both streams
};

std::string Readme() {
    std::ifstream file(ZELVOR_README, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The commands under a heading.
std::string JobCalled(const std::string& heading) {
    const std::string readme = Readme();
    const std::string begin = "```sh\n";
    const std::size_t title = readme.find("### " + heading + '\n');
    const std::size_t first = readme.find(begin, title);
    if (title == std::string::npos || first == std::string::npos) {
        return "exit 99";
    }
    const std::size_t from = first + begin.size();
    return readme.substr(from, readme.find("```", from) - from);
}

class ReadmeJobsTest : public ::testing::Test {
protected:
    /// Runs commands in the shell of a user whose home is empty. radio: the options of the simulated radio, which is
    /// there meanwhile.
    Finished Run(const std::string& commands, const std::string& radio) {
        zelvor::testing::PutFile(home / "commands.sh", commands);
        zelvor::testing::PutFile(home / "all.sh", "cd '" + home.Path().string() + R"('
export HOME=$PWD XDG_CONFIG_HOME=$PWD/config XDG_DATA_HOME=$PWD/data LC_ALL=C.UTF-8
export PATH=")" ZELVOR_PROGRAMS R"(:$PATH"
options=")" + radio + R"("
zelvor-radio --port 1 $options >radio.log 2>&1 &
radio=$!
for _ in $(seq 100); do grep -q ready: radio.log && break; sleep 0.05; done
bash commands.sh <answers
status=$?
case "$options" in *serve-many*) for _ in $(seq 40); do kill -0 $radio 2>/dev/null || break; sleep 0.05; done ;; esac
kill $radio 2>/dev/null
wait $radio
echo "the radio ended with $?"
exit $status
)");
        FILE* const output = popen(("bash '" + (home / "all.sh").string() + "' 2>&1").c_str(), "r");
        std::string printed;
        std::array<char, 4096> part{};
        for (std::size_t size; (size = std::fread(part.data(), 1, part.size(), output)) > 0;) {
            printed.append(part.data(), size);
        }
        const int status = pclose(output);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, printed};
    }
    void SetUp() override { zelvor::testing::PutFile(home / "answers", ""); }

    zelvor::testing::TestDirectory home;
};

TEST_F(ReadmeJobsTest, OneSpreadsheetGoesIntoManyRadios) {
    zelvor::testing::PutFile(home / "fleet.csv", "channel,rx_mhz,tx_mhz\n2,147.12500,147.62500\n");
    zelvor::testing::PutFile(home / "answers", "\n\n"); // two radios, and no third
    const Finished job = Run(JobCalled("Put one spreadsheet into fifty radios"), "--serve-many 3 --save last.dat");
    EXPECT_NE(job.printed.find("COM1: written and verified\nzelvor-cli: COM1: written and verified\n"),
              std::string::npos)
        << job.printed;
    EXPECT_NE(job.printed.find("the radio ended with 0"), std::string::npos) << job.printed;
    const Finished last = Run("zelvor-cli get last.dat channels.1.rx_mhz channels.2.rx_mhz channels.2.tx_mhz", "");
    EXPECT_EQ(last.printed.substr(0, last.printed.find("the radio")),
              "channels.1.rx_mhz=145.12500\nchannels.2.rx_mhz=147.12500\nchannels.2.tx_mhz=147.62500\n");
}

TEST_F(ReadmeJobsTest, WhatChangedSinceLastYearIsListed) {
    ASSERT_EQ(Run("zelvor-cli read --port 1 -o last-year.dat && "
                  "zelvor-cli set last-year.dat optional.squelch-level=3 channels.2.rx_mhz=147.00000",
                  "")
                  .status,
              0);
    const Finished job = Run(JobCalled("Find out what changed in a radio since last year's file"), "");
    EXPECT_EQ(job.status, 1);
    EXPECT_NE(job.printed.find("optional.squelch-level: 3 -> 5\nchannels.2.rx_mhz: 147.00000 -> 145.25000\n"),
              std::string::npos)
        << job.printed;
}

TEST_F(ReadmeJobsTest, WhatWasInARadioBeforeABadWriteComesBack) {
    ASSERT_EQ(Run("zelvor-cli read --port 1 -o good.dat && zelvor-cli new --model 4618 --market M -o bad.dat && "
                  "zelvor-cli write --port 1 bad.dat",
                  "--save radio.dat")
                  .status,
              0);
    EXPECT_EQ(Run("zelvor-cli verify --port 1 good.dat", "--load radio.dat").status, 1);
    const Finished job =
        Run(JobCalled("Get back what was in a radio before a bad write"), "--load radio.dat --save again.dat");
    EXPECT_EQ(job.status, 0) << job.printed;
    EXPECT_EQ(Run("zelvor-cli verify --port 1 good.dat", "--load again.dat").status, 0);
}

} // namespace
} // namespace zelvor
