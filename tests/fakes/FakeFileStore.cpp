#include "fakes/FakeFileStore.h"

#include <algorithm>

namespace zelvor {

std::optional<std::vector<std::uint8_t>> FakeFileStore::Read(const std::string& path, std::size_t atMost) {
    const auto found = files_.find(path);
    if (found == files_.end() || refused_.contains(path)) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes = found->second;
    bytes.resize(std::min(bytes.size(), atMost));
    return bytes;
}

bool FakeFileStore::Write(const std::string& path, std::span<const std::uint8_t> bytes, FileTail tail) {
    if (path.empty() || refused_.contains(path)) {
        return false;
    }
    std::vector<std::uint8_t>& file = files_[path];
    if (tail == FileTail::Drop || file.size() < bytes.size()) {
        file.resize(bytes.size());
    }
    std::copy(bytes.begin(), bytes.end(), file.begin());
    return true;
}

void FakeFileStore::Put(const std::string& path, std::string_view content) {
    files_[path].assign(content.begin(), content.end());
}

std::vector<std::string> FakeFileStore::NamesIn(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : files_) {
        if (path.starts_with(folder + '/') && path.find('/', folder.size() + 1) == std::string::npos) {
            names.push_back(path.substr(folder.size() + 1));
        }
    }
    return names;
}

std::string FakeFileStore::Content(const std::string& path) const {
    const auto found = files_.find(path);
    return found == files_.end() ? std::string() : std::string(found->second.begin(), found->second.end());
}

} // namespace zelvor
