#include "cli/RadioTexts.h"

#include <gtest/gtest.h>
#include <sstream>

#include "cli/RadioProgress.h"

namespace zelvor::cli {
namespace {

TEST(RadioTexts, FillTheirPlacesAndNothingInTheFillings) {
    EXPECT_EQ(Filled("{a} and {b}, {a}", {{"{a}", "{b}"}, {"{b}", "two"}}), "{b} and two, {b}");
    EXPECT_EQ(Filled("no place {x}", {{"{a}", "1"}}), "no place {x}");
    EXPECT_EQ(Filled("", {{"{a}", "1"}}), "");
}

TEST(RadioTexts, QuoteAWordForAShellWhereItNeedsThat) {
    EXPECT_EQ(ShellWord("/home/a_b/2026-11-22T014502-4618-M-read.dat"), "/home/a_b/2026-11-22T014502-4618-M-read.dat");
    EXPECT_EQ(ShellWord("my radio.dat"), "'my radio.dat'");
    EXPECT_EQ(ShellWord("it's"), "'it'\\''s'");
    EXPECT_EQ(ShellWord("$HOME"), "'$HOME'");
    EXPECT_EQ(ShellWord("~x"), "'~x'");
    EXPECT_EQ(ShellWord("对讲机"), "'对讲机'");
    EXPECT_EQ(ShellWord(""), "''");
}

TEST(RadioProgressBar, WritesOverItsLineAndErasesItForMessages) {
    std::ostringstream terminal;
    RadioProgressBar bar(terminal);
    bar.Clear();
    EXPECT_EQ(terminal.str(), "");
    bar.Show("Reading", 4, 16);
    EXPECT_EQ(terminal.str(), "\r\x1B[KReading [##########------------------------------] 25 %");
    terminal.str("");
    bar.Show("Reading", 16, 16);
    EXPECT_EQ(terminal.str(), "\r\x1B[KReading [########################################] 100 %");
    terminal.str("");
    bar.Clear();
    bar.Clear();
    EXPECT_EQ(terminal.str(), "\r\x1B[K");
}

} // namespace
} // namespace zelvor::cli
