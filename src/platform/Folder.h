#pragma once

#include <memory>
#include <string>
#include <vector>

namespace zelvor {

/// A folder of the program's own. It need not be there before it is held for the first time. Names are those of files
/// in it, without a path, UTF-8.
class Folder {
public:
    virtual ~Folder() = default;

    /// Full, in the platform's spelling, without a separator at the end.
    [[nodiscard]] virtual std::string Path() const = 0;
    /// The path of a file of that name, whether there is one or not.
    [[nodiscard]] virtual std::string PathOf(const std::string& name) const = 0;

    /// Names of the files in it, in no order; none where there is no such folder.
    [[nodiscard]] virtual std::vector<std::string> FileNames() = 0;
    virtual void Remove(const std::string& name) = 0;

    /// Makes the folder where it is missing, and keeps everybody else who holds it, also other processes, waiting until
    /// the result is gone. Null where it cannot be made or changed, or where another one does not let go of it.
    [[nodiscard]] virtual std::shared_ptr<void> Hold() = 0;
};

} // namespace zelvor
