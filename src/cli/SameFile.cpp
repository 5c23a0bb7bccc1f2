#include "cli/SameFile.h"

#include <filesystem>
#include <system_error>

#include "platform/Toolkit.h"

namespace zelvor::cli {

namespace {

constexpr TextPair IsInput{"is what the command reads; the output must be another file",
                           "是命令要读取的文件；输出须为另一个文件"};

std::filesystem::path PathOf(const std::string& text) {
    return ToQString(text).toStdU16String();
}

} // namespace

bool IsSameFile(const std::string& a, const std::string& b) {
    std::error_code missing; // then they are not the same
    return a == b || std::filesystem::equivalent(PathOf(a), PathOf(b), missing);
}

bool OverwritesInput(const std::string& output, const std::string& input, const Console& console) {
    const bool isSame = IsSameFile(output, input);
    if (isSame) {
        console.Complain(output, IsInput);
    }
    return isSame;
}

} // namespace zelvor::cli
