#pragma once

#include <filesystem>
#include <optional>

namespace zelvor {

/// The directory in which Zelvor looks for links that stand for its port numbers: Zelvor/ports in the user's
/// configuration directory ($XDG_CONFIG_HOME where that is an absolute path, otherwise ~/.config).
[[nodiscard]] std::filesystem::path PortDirectory();

/// The link "COM<n>" that gives a port its number. A link to something that is there, and not made by this object, is
/// somebody's own: it is never replaced.
class PortLink {
public:
    PortLink(const std::filesystem::path& directory, int number);

    /// Where somebody's own link of that name points to; nothing where the name is free for us.
    [[nodiscard]] std::optional<std::filesystem::path> Occupant() const;

    /// Makes the link point to the port. A link to nothing is replaced in one step. False where the directory cannot be
    /// made or written to, or where the name is taken by somebody's own link or by something that is no link.
    [[nodiscard]] bool PointTo(const std::filesystem::path& port);

    /// Removes the link if it is still the one made last. A link to an absent device that it has replaced comes back.
    void Remove();

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

private:
    [[nodiscard]] bool Replace(const std::filesystem::path& port);
    void RememberFormer();

    std::filesystem::path path_;
    std::filesystem::path port_;   // of the link made last
    std::filesystem::path former_; // where a replaced link of the user's pointed to
};

} // namespace zelvor
