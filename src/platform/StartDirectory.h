#pragma once

#include <QString>

namespace zelvor {

/// Where file dialogs start for a program in that directory: there, but in the user's documents where it is a folder of
/// the system's or cannot be written to.
[[nodiscard]] QString StartDirectoryFor(const QString& programDirectory);

/// Whether installed programs live there, and documents do not. Nothing in the user's home is.
[[nodiscard]] bool IsSystemFolder(const QString& directory);

} // namespace zelvor
