#include "cli/TextTable.h"

#include <algorithm>

#include "text/Utf8.h"

namespace zelvor::cli {

namespace {

constexpr std::string_view Gap = "  ";

bool IsWide(char16_t character) {
    constexpr char16_t FirstWide = 0x2E80; // from here on: what Chinese texts are made of
    constexpr char16_t FirstHalfWide = 0xFF61;
    return character >= FirstWide && character < FirstHalfWide;
}

std::vector<std::size_t> WidthsOf(const TextTable& table) {
    std::vector<std::size_t> widths;
    for (const std::vector<std::string>& row : table) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
        }
    }
    return widths;
}

} // namespace

void PrintTable(std::ostream& out, const TextTable& table) {
    const std::vector<std::size_t> widths = WidthsOf(table);
    for (const std::vector<std::string>& row : table) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            line.append(widths[i] - DisplayWidth(row[i]), ' ').append(Gap);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

std::size_t DisplayWidth(std::string_view text) {
    const std::u16string characters = Utf16Of(text);
    return characters.size() + static_cast<std::size_t>(std::ranges::count_if(characters, IsWide));
}

} // namespace zelvor::cli
