#pragma once

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class Backups;
}

namespace zelvor::cli {

/// The path of every backup, a line each, newest first.
[[nodiscard]] ExitStatus ListBackups(const Backups& backups, const Console& console);

/// The path of their folder, whether there is one yet or not.
[[nodiscard]] ExitStatus TellBackupFolder(const Backups& backups, const Console& console);

} // namespace zelvor::cli
