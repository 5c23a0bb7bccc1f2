#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace zelvor::cli {

/// Rows of texts, the first of them the heading.
using TextTable = std::vector<std::vector<std::string>>;

/// The columns are filled up with blanks to their widest text, with two blanks between them.
void PrintTable(std::ostream& out, const TextTable& table);

/// How many columns of a terminal a text takes: a Chinese character takes two.
[[nodiscard]] std::size_t DisplayWidth(std::string_view text);

} // namespace zelvor::cli
