#include "cli/SameFile.h"

#include "platform/FileSystem.h"

namespace zelvor::cli {

namespace {

constexpr TextPair IsInput{"is what the command reads; the output must be another file",
                           "是命令要读取的文件；输出须为另一个文件"};

} // namespace

bool IsSameFile(const std::string& a, const std::string& b) {
    return a == b || LeadToSameFile(a, b);
}

bool OverwritesInput(const std::string& output, const std::string& input, const Console& console) {
    const bool isSame = IsSameFile(output, input);
    if (isSame) {
        console.Complain(output, IsInput);
    }
    return isSame;
}

} // namespace zelvor::cli
