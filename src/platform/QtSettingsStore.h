#pragma once

#include <QtGlobal>
#include <optional>
#include <string>

#include "platform/QtFileStore.h"
#include "platform/SettingsStore.h"

namespace zelvor {

/// Never waits for another program. Looks at file or registry at every question, so that nothing is kept that another
/// run has changed.
class QtSettingsStore : public SettingsStore {
public:
    [[nodiscard]] bool Exists() override;
    void Create() override;
    [[nodiscard]] std::string Read(std::string_view entry) override;
    void Write(std::string_view entry, std::string_view value) override;

private:
#ifndef Q_OS_WIN
    /// Nothing where the settings file is none or cannot be read.
    [[nodiscard]] std::optional<std::string> Text();
    void Put(const std::string& text);

    QtFileStore store_;
#endif
};

} // namespace zelvor
