#pragma once

#include <QStringList>
#include <optional>

namespace zelvor::bench {

/// Whether instructions can be counted on this machine: valgrind is installed.
[[nodiscard]] bool CountsInstructions();

/// What a run of the program executes, in instructions: the same at every run but for some thousands, on a busy machine
/// too. Nothing where the program does not end with the status. Variables are added to the environment, each as
/// "NAME=value".
[[nodiscard]] std::optional<double> InstructionsOf(const QString& program, const QStringList& arguments,
                                                   const QStringList& variables = {}, int status = 0);

} // namespace zelvor::bench
