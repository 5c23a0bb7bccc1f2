#pragma once

#include <string>
#include <string_view>

namespace zelvor {

inline constexpr std::string_view LastModelEntry = "LastModel";
inline constexpr std::string_view LanguageEntry = "Language";

/// The two remembered values, kept per user. On Windows the registry key "SoftWare\Zelvor\BackUp" under the per-user
/// root; elsewhere section BackUp of Zelvor/Zelvor.ini in the user's configuration directory, whose existence plays the
/// part of the key's. Failures are silent: what cannot be read is empty, what cannot be written is lost.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// Whether the key "SoftWare\Zelvor" exists: false only before the first run.
    [[nodiscard]] virtual bool Exists() = 0;
    /// Creates the key with its subkey.
    virtual void Create() = 0;
    /// Empty where there is no such entry.
    [[nodiscard]] virtual std::string Read(std::string_view entry) = 0;
    /// On disk when this returns.
    virtual void Write(std::string_view entry, std::string_view value) = 0;
};

} // namespace zelvor
