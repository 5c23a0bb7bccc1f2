#pragma once

#include <functional>
#include <span>
#include <string>

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
    Action action; // empty where it is wrong
};

/// Reads the command line, which is told without the program's name. Help and version are actions too. Of a wrong one a
/// line tells what is wrong with it, and another where to read more.
[[nodiscard]] CommandLine ReadCommandLine(std::span<const std::string> words);

// The commands, group by group. Each sets the action when it is given. Both must outlive the reading of the command
// line.

void AddFileCommands(CLI::App& app, Language language, Action& action);
void AddFieldCommands(CLI::App& app, Language language, Action& action);
void AddChannelCommands(CLI::App& app, Language language, Action& action);
void AddRadioCommands(CLI::App& app, Language language, Action& action);

} // namespace zelvor::cli
