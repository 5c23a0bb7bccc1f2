#pragma once

#include <string>
#include <vector>

namespace zelvor {

/// What the program was started with, in UTF-8 and without the program's own name. Takes what main() is given.
///
/// Where the shell leaves that to the programs, names with * and ? stand for the files that they fit, in order; a word
/// that fits no file stays as it is.
[[nodiscard]] std::vector<std::string> ArgumentsOf(int argc, char** argv);

} // namespace zelvor
