#pragma once

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "fakes/FakePageDevice.h"

namespace zelvor::testing {

/// A page on which the cells of the reports' grid lie at whole twips: column x at 1300 + 90 x, row y at 800 + 240 y.
inline void UseEvenPage(FakePageDevice& device) {
    device.SetPageSize(13000, 16000);
}

/// The texts in the grid of such a page, each as a line `row column "text"`, in order. Title, date and foot are left
/// out: they stand at no cell.
inline std::vector<std::string> CellsOf(const FakePage& page) {
    std::vector<std::string> cells;
    for (const FakePageText& text : page.texts) {
        const double row = (text.y - 800) / 240;
        const double column = (text.x - 1300) / 90;
        if (text.pointSize == 10 && row < 60) {
            std::ostringstream line;
            line << std::round(row * 1e6) / 1e6 << ' ' << std::round(column * 1e6) / 1e6 << " \"" << text.text << '"';
            cells.push_back(line.str());
        }
    }
    return cells;
}

/// The lines of a file below the folder `golden` of the test.
inline std::vector<std::string> GoldenCells(const std::string& name) {
    std::vector<std::string> lines;
    std::ifstream file(GOLDEN_FOLDER "/" + name + ".txt");
    EXPECT_TRUE(file.is_open()) << name;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// A line for each text of the first that the second does not have.
inline std::string Missing(std::vector<std::string> texts, std::vector<std::string> others) {
    std::ranges::sort(texts);
    std::ranges::sort(others);
    std::string lines;
    std::vector<std::string> missing;
    std::ranges::set_difference(texts, others, std::back_inserter(missing));
    for (const std::string& line : missing) {
        lines += line + '\n';
    }
    return lines;
}

/// Whether the page holds these texts and no others, in any order.
inline void ExpectCells(const FakePage& page, const std::string& golden) {
    const std::vector<std::string> expected = GoldenCells(golden);
    const std::vector<std::string> printed = CellsOf(page);
    EXPECT_EQ(Missing(expected, printed), "") << golden << ": not printed";
    EXPECT_EQ(Missing(printed, expected), "") << golden << ": printed besides";
}

/// The text at a cell; empty where there is none.
inline std::string TextAt(const FakePage& page, int row, int column) {
    const std::string start = std::to_string(row) + ' ' + std::to_string(column) + " \"";
    for (const std::string& cell : CellsOf(page)) {
        if (cell.starts_with(start)) {
            return cell.substr(start.size(), cell.size() - start.size() - 1);
        }
    }
    return {};
}

} // namespace zelvor::testing
