#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "platform/FileStore.h"

namespace zelvor {

/// Files in memory: a path is a key, folders do not exist. All writes succeed but those to a refused path.
class FakeFileStore : public FileStore {
public:
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Read(const std::string& path, std::size_t atMost) override;
    [[nodiscard]] bool Write(const std::string& path, std::span<const std::uint8_t> bytes, FileTail tail) override;

    /// As somebody else left it.
    void Put(const std::string& path, std::string_view content);
    /// From now on the path can be neither read nor written.
    void Refuse(const std::string& path) { refused_.insert(path); }
    void Remove(const std::string& path) { files_.erase(path); }
    /// Of the files whose path is folder, a slash and a name.
    [[nodiscard]] std::vector<std::string> NamesIn(const std::string& folder) const;
    [[nodiscard]] bool Has(const std::string& path) const { return files_.contains(path); }
    /// Empty where there is no such file.
    [[nodiscard]] std::string Content(const std::string& path) const;

private:
    std::map<std::string, std::vector<std::uint8_t>> files_;
    std::set<std::string> refused_;
};

} // namespace zelvor
