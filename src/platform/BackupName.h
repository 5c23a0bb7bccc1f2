#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "platform/Clock.h"

namespace zelvor {

/// Whether a backup is what was read from a radio, or what was about to be written to one.
enum class BackupDirection { Read, Write };

/// What the name of a backup tells: "2026-11-22T014502-4618-M-read.dat", and with a number behind it,
/// "2026-11-22T014502-4618-M-write-2.dat", where there was a backup of the same second already.
struct BackupName {
    std::string time;   // "2026-11-22T014502", local time
    std::string model;  // "4618"; "xF5" after the family byte where the catalogue does not have the pair
    std::string market; // "M"; likewise "x07" after the market byte
    BackupDirection direction = BackupDirection::Read;
    int number = 1;

    [[nodiscard]] std::string Text() const;
    /// Nothing for any name that Text() does not give.
    [[nodiscard]] static std::optional<BackupName> Parse(std::string_view text);

    bool operator==(const BackupName&) const = default;
};

/// The name of the first backup of its second.
[[nodiscard]] BackupName BackupNameOf(const DataImage& image, const LocalTime& time, BackupDirection direction);

/// In the order in which the backups were made, by the clock of the wall.
[[nodiscard]] bool IsOlder(const BackupName& left, const BackupName& right);

} // namespace zelvor
