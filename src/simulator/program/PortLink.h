#pragma once

#include <filesystem>

namespace zelvor {

/// The directory in which Zelvor looks for links that stand for its port numbers: Zelvor/ports in the user's
/// configuration directory ($XDG_CONFIG_HOME where that is an absolute path, otherwise ~/.config).
[[nodiscard]] std::filesystem::path PortDirectory();

/// The link "COM<n>" that gives a port its number.
class PortLink {
public:
    PortLink(const std::filesystem::path& directory, int number);

    /// Makes the link point to the port, in one step where there is an older link. False where the directory cannot be
    /// made or written to, or where something that is no link has the name.
    [[nodiscard]] bool PointTo(const std::filesystem::path& port);

    /// Removes the link if it is still the one made last, and not one that another radio has put in its place.
    void Remove();

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
    std::filesystem::path port_;
};

} // namespace zelvor
