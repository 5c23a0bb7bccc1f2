#pragma once

#include <optional>
#include <string>

namespace zelvor {

struct FileDialogRequest {
    std::string fileName;  // preset; a bare name or a full path
    std::string filter;    // "text|*.dat"
    std::string directory; // where to start; empty: the program's directory, or documents where that is the system's

    bool operator==(const FileDialogRequest&) const = default;
};

/// The system's file dialogs. A choice is a full path in the platform's spelling, UTF-8; nothing means Cancel.
/// After a choice the process's current directory is the chosen file's.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    /// The file must exist. It may have a name that the filter does not show.
    [[nodiscard]] virtual std::optional<std::string> Open(const FileDialogRequest& request) = 0;
    /// Asks before an existing file is overwritten: about the name that is returned.
    [[nodiscard]] virtual std::optional<std::string> Save(const FileDialogRequest& request) = 0;
};

} // namespace zelvor
