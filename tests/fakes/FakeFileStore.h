#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "platform/FileStore.h"

namespace zelvor {

/// Files in memory: a path is a key, and a folder what stands before a slash in one. All writes succeed but those to a
/// refused path.
class FakeFileStore : public FileStore {
public:
    [[nodiscard]] std::optional<std::vector<std::string>> NamesIn(const std::string& folder) override;
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Read(const std::string& path, std::size_t atMost) override;
    [[nodiscard]] bool Write(const std::string& path, std::span<const std::uint8_t> bytes, FileTail tail) override;

    /// As somebody else left it.
    void Put(const std::string& path, std::string_view content);
    /// A folder with nothing in it as yet.
    void MakeFolder(const std::string& path) { folders_.insert(path); }
    /// From now on the path can be neither read nor written.
    void Refuse(const std::string& path) { refused_.insert(path); }
    void Remove(const std::string& path) { files_.erase(path); }
    [[nodiscard]] bool Has(const std::string& path) const { return files_.contains(path); }
    /// Empty where there is no such file.
    [[nodiscard]] std::string Content(const std::string& path) const;

private:
    std::map<std::string, std::vector<std::uint8_t>> files_;
    std::set<std::string> folders_;
    std::set<std::string> refused_;
};

} // namespace zelvor
