#include "cli/BackupCommands.h"

#include "platform/Backups.h"

namespace zelvor::cli {

// Paths are printed as they are, for the commands that take them.

ExitStatus ListBackups(const Backups& backups, const Console& console) {
    for (const BackupName& name : backups.List()) {
        console.out << backups.PathOf(name) << '\n';
    }
    return ExitStatus::Done;
}

ExitStatus TellBackupFolder(const Backups& backups, const Console& console) {
    console.out << backups.FolderPath() << '\n';
    return ExitStatus::Done;
}

} // namespace zelvor::cli
