#include "fakes/FakeFileStore.h"

#include <algorithm>
#include <utility>

namespace zelvor {

std::optional<std::vector<std::string>> FakeFileStore::NamesIn(const std::string& folder) {
    const std::string head = folder.ends_with('/') ? folder : folder + '/';
    const std::string path = head.substr(0, head.size() - 1);
    std::vector<std::string> names;
    bool isFolder = folders_.contains(path);
    for (auto file = files_.lower_bound(head); file != files_.end() && file->first.starts_with(head); ++file) {
        isFolder = true;
        if (file->first.find('/', head.size()) == std::string::npos) {
            names.push_back(file->first.substr(head.size()));
        }
    }
    std::ranges::reverse(names); // nobody may count on an order
    return isFolder && !folder.empty() && !refused_.contains(path) ? std::optional(std::move(names)) : std::nullopt;
}

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

std::string FakeFileStore::Content(const std::string& path) const {
    const auto found = files_.find(path);
    return found == files_.end() ? std::string() : std::string(found->second.begin(), found->second.end());
}

} // namespace zelvor
