// Feeds files, and the files of folders, to a fuzz target, without a fuzzer: what was found once is an ordinary test.
// A folder that does not exist has no files.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const fs::path& path) {
    if (fs::is_regular_file(path)) {
        return {path};
    }
    std::vector<fs::path> files;
    if (fs::is_directory(path)) {
        for (const fs::directory_entry& entry : fs::directory_iterator(path)) {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    return files;
}

void Replay(const fs::path& path) {
    std::cout << path.string() << std::endl; // before it may crash
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const std::vector<std::uint8_t> bytes(content.begin(), content.end()); // of its very size, for the sanitizers
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

} // namespace

int main(int argc, char* argv[]) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path& file : FilesOf(argv[i])) {
            Replay(file);
            ++count;
        }
    }
    std::cout << count << " files" << std::endl;
    return count > 0 ? 0 : 1;
}
