#pragma once

#include "platform/SettingsStore.h"

namespace zelvor {

/// Looks at file or registry at every question, so that nothing is kept that another run has changed.
class QtSettingsStore : public SettingsStore {
public:
    [[nodiscard]] bool Exists() override;
    void Create() override;
    [[nodiscard]] std::string Read(std::string_view entry) override;
    void Write(std::string_view entry, std::string_view value) override;
};

} // namespace zelvor
