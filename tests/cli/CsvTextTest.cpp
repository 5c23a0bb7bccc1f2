#include "cli/CsvText.h"

#include <gtest/gtest.h>

#include <random>

namespace zelvor::cli {
namespace {

/// A line for each record: its line, its fields between bars, and the fault with its place.
std::vector<std::string> Records(std::string_view text) {
    constexpr const char* faults[] = {"", "stray quote", "text after quote", "open quote", "stray return"};
    std::vector<std::string> lines;
    for (const CsvRecord& record : ReadCsv(text)) {
        std::string line = std::to_string(record.line) + ' ';
        for (const std::string& field : record.fields) {
            line += '|' + field;
        }
        line += '|';
        if (record.fault != CsvFault::None) {
            line +=
                std::string(" ") + faults[static_cast<int>(record.fault)] + " in " + std::to_string(record.faultyField);
        }
        lines.push_back(line);
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST(CsvText, TakesFieldsAndLinesApart) {
    EXPECT_EQ(Records(""), Lines());
    EXPECT_EQ(Records("a,b\nc,\n"), (Lines{"1 |a|b|", "2 |c||"}));
    EXPECT_EQ(Records("a,b\r\nc,d"), (Lines{"1 |a|b|", "2 |c|d|"}));
    EXPECT_EQ(Records("\n,\n"), (Lines{"1 ||", "2 |||"}));
    EXPECT_EQ(Records("\xEF\xBB\xBF"
                      "a\n"),
              Lines{"1 |a|"});
    EXPECT_EQ(Records(" a , b"), Lines{"1 | a | b|"});
}

TEST(CsvText, TakesQuotedFields) {
    EXPECT_EQ(Records("\"a,b\",\"c\"\"d\",\"\"\n"), Lines{"1 |a,b|c\"d||"});
    EXPECT_EQ(Records("\"a\nb\r\nc\",d\ne\n"), (Lines{"1 |a\nb\r\nc|d|", "4 |e|"}));
    EXPECT_EQ(Records("\xEF\xBB\xBF\"a\""), Lines{"1 |a|"});
}

TEST(CsvText, TellsWhatBreaksItsRules) {
    EXPECT_EQ(Records("a,b\"c\"\nd"), (Lines{"1 |a|b\"c\"| stray quote in 1", "2 |d|"}));
    EXPECT_EQ(Records("\"a\"b,c\nd"), (Lines{"1 |a|c| text after quote in 0", "2 |d|"}));
    EXPECT_EQ(Records("a,\"b\nc"), Lines{"1 |a|b\nc| open quote in 1"});
    EXPECT_EQ(Records("a\rb,c\r"), Lines{"1 |a\rb|c\r| stray return in 0"});
}

TEST(CsvText, WritesWhatItReads) {
    const std::vector<std::string> fields{"", "a", "b,c", "d\"e", "f\ng", " h "};
    EXPECT_EQ(CsvLine(fields), ",a,\"b,c\",\"d\"\"e\",\"f\ng\", h \n");
    EXPECT_EQ(ReadCsv(CsvLine(fields))[0].fields, fields);
    EXPECT_EQ(CsvLine(std::vector<std::string>{"x"}), "x\n");
}

TEST(CsvText, ComesToAnEndWithAnyBytes) {
    constexpr unsigned Seed = 1337;
    std::mt19937 random(Seed);
    const std::string bytes = "a,\"\r\n";
    for (int run = 0; run < 20000; ++run) {
        std::string text(random() % 12, ' ');
        std::ranges::generate(text, [&] { return bytes[random() % bytes.size()]; });
        std::size_t size = 0;
        for (const CsvRecord& record : ReadCsv(text)) {
            size += record.fields.size();
        }
        EXPECT_LE(size, text.size() + 1) << "seed " << Seed << ", run " << run;
    }
}

} // namespace
} // namespace zelvor::cli
