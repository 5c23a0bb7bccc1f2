#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/RadioMachine.h"

namespace zelvor::cli {

struct WriteRequest {
    RadioRequest radio;
    std::string file;
    bool keepsBackup = true; // of what the radio holds before
    bool verifies = true;
};

/// Writes a file to a radio: checks the file, reads the radio and keeps that as a backup, writes, reads again and
/// compares. Without the backup nothing is written where one was to be kept. What a write that failed has left behind
/// is told, with the backup and the command that brings it back; that command is not held up by the checks, since a
/// radio may get back what it held.
[[nodiscard]] ExitStatus WriteRadio(const WriteRequest& request, RadioMachine& machine, const Console& console);

} // namespace zelvor::cli
