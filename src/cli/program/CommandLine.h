#pragma once

#include <functional>

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace CLI {
class App;
}

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

/// What a command line asks for.
using Action = std::function<ExitStatus(FileStore& store, const Console& console)>;

struct CommandLine {
    Language language = Language::English;
    Action action;    // empty where the program is to end at once
    int exitCode = 0; // with this code
};

/// Reads the command line. Help and version go to standard output, in the language; a complaint of one line, and where
/// to read more, to standard error.
[[nodiscard]] CommandLine ReadCommandLine(int argc, char** argv);

// The commands, group by group. Each sets the action when it is given. Both must outlive the reading of the command
// line.

void AddFileCommands(CLI::App& app, Language language, Action& action);
void AddFieldCommands(CLI::App& app, Language language, Action& action);
void AddChannelCommands(CLI::App& app, Language language, Action& action);
void AddRadioCommands(CLI::App& app, Language language, Action& action);

} // namespace zelvor::cli
