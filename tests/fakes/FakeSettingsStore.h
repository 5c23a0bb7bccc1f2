#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/SettingsStore.h"

namespace zelvor {

/// Settings in memory; before the first run until Create, Write or Preset.
class FakeSettingsStore : public SettingsStore {
public:
    [[nodiscard]] bool Exists() override { return exists_; }
    void Create() override { exists_ = true; }
    [[nodiscard]] std::string Read(std::string_view entry) override {
        const auto found = entries_.find(entry);
        return found == entries_.end() ? std::string() : found->second;
    }
    void Write(std::string_view entry, std::string_view value) override {
        Preset(entry, value);
        writes_.emplace_back(entry, value);
    }

    /// As an earlier run of the program left it; not in Writes().
    void Preset(std::string_view entry, std::string_view value) {
        exists_ = true;
        entries_.insert_or_assign(std::string(entry), std::string(value));
    }
    /// Every Write so far: entry and value.
    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& Writes() const { return writes_; }

private:
    bool exists_ = false;
    std::map<std::string, std::string, std::less<>> entries_;
    std::vector<std::pair<std::string, std::string>> writes_;
};

} // namespace zelvor
