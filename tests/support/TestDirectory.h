#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace zelvor::testing {

/// An empty directory that everyone may use, removed with all its content at the end.
class TestDirectory {
public:
    TestDirectory() {
        std::random_device random;
        path_ = std::filesystem::temp_directory_path() /
                ("zelvor-test-" + std::to_string(random()) + std::to_string(random()));
        std::filesystem::create_directory(path_);
        std::filesystem::permissions(path_, std::filesystem::perms::all);
    }
    ~TestDirectory() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TestDirectory(const TestDirectory&) = delete;
    TestDirectory& operator=(const TestDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

inline void PutFile(const std::filesystem::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

inline std::string FileContent(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline std::string Utf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

inline std::filesystem::path PathOfUtf8(const std::string& text) {
    return std::u8string(text.begin(), text.end());
}

/// Names of the entries of a directory, in order.
inline std::vector<std::string> EntriesOf(const std::filesystem::path& directory) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        names.push_back(Utf8(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace zelvor::testing
