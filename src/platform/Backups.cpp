#include "platform/Backups.h"

#include <algorithm>

#include "platform/Clock.h"
#include "platform/DataFiles.h"
#include "platform/Folder.h"

namespace zelvor {

std::optional<std::string> Backups::Keep(const DataImage& image, BackupDirection direction) {
    // Two programs at once would otherwise choose the same name.
    const auto hold = folder_.Hold();
    if (!hold) {
        return std::nullopt;
    }
    BackupName name = BackupNameOf(image, clock_.Now(), direction);
    for (const BackupName& other : List()) {
        if (other.time == name.time) {
            name.number = std::max(name.number, other.number + 1);
        }
    }
    const std::string path = PathOf(name);
    if (!WriteDataFile(store_, path, image)) {
        return std::nullopt;
    }
    RemoveOldest(name);
    return path;
}

std::vector<BackupName> Backups::List() const {
    std::vector<BackupName> backups;
    for (const std::string& file : folder_.FileNames()) {
        if (const auto name = BackupName::Parse(file)) {
            backups.push_back(*name);
        }
    }
    std::sort(backups.rbegin(), backups.rend(), IsOlder); // the youngest first
    return backups;
}

std::string Backups::FolderPath() const {
    return folder_.Path();
}

std::string Backups::PathOf(const BackupName& name) const {
    return folder_.PathOf(name.Text());
}

/// The newest one stays also where the clock was set back since the others were made.
void Backups::RemoveOldest(const BackupName& newest) {
    std::vector<BackupName> backups = List();
    while (backups.size() > Most) {
        const auto oldest = backups.back() == newest ? backups.end() - 2 : backups.end() - 1;
        folder_.Remove(oldest->Text());
        backups.erase(oldest);
    }
}

} // namespace zelvor
