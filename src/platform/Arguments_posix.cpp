#include "platform/Arguments.h"

namespace zelvor {

std::vector<std::string> ArgumentsOf(int argc, char** argv) {
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

} // namespace zelvor
