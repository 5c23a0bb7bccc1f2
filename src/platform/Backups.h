#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "data/DataImage.h"
#include "platform/BackupName.h"

namespace zelvor {

class Clock;
class FileStore;
class Folder;

/// The safety net below reads and writes: every image that was read from a radio, and every one that is about to be
/// written to one, as a data file of its own. The newest are kept; of other files in the folder none is touched.
class Backups {
public:
    static constexpr std::size_t Most = 500;

    Backups(FileStore& store, Folder& folder, Clock& clock) : store_(store), folder_(folder), clock_(clock) {}

    /// The full path of the new backup, which is on disk then; nothing where it could not be written.
    std::optional<std::string> Keep(const DataImage& image, BackupDirection direction);

    /// All that are there, newest first.
    [[nodiscard]] std::vector<BackupName> List() const;

    [[nodiscard]] std::string FolderPath() const;
    [[nodiscard]] std::string PathOf(const BackupName& name) const;

private:
    void RemoveOldest(const BackupName& newest);

    FileStore& store_;
    Folder& folder_;
    Clock& clock_;
};

} // namespace zelvor
