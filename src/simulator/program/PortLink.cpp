#include "simulator/program/PortLink.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include <pwd.h>
#include <unistd.h>

namespace zelvor {
namespace {

namespace fs = std::filesystem;

constexpr const char* PseudoTerminals = "/dev/pts";

fs::path HomeDirectory() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        return home;
    }
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? fs::path(user->pw_dir) : fs::path("/");
}

} // namespace

fs::path PortDirectory() {
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    const bool isUsable = configured != nullptr && fs::path(configured).is_absolute();
    const fs::path config = isUsable ? fs::path(configured) : HomeDirectory() / ".config";
    return config / "Zelvor" / "ports";
}

PortLink::PortLink(const fs::path& directory, int number) : path_(directory / ("COM" + std::to_string(number))) {}

std::optional<fs::path> PortLink::Occupant() const {
    std::error_code error;
    const fs::path target = fs::read_symlink(path_, error);
    if (error || target == port_ || fs::status(path_, error).type() == fs::file_type::not_found) {
        return std::nullopt;
    }
    return target;
}

bool PortLink::PointTo(const fs::path& port) {
    std::error_code error;
    fs::create_directories(path_.parent_path(), error);
    fs::create_symlink(port, path_, error);
    // A killed radio's link may name the very pseudo-terminal that has come up again.
    if (error && fs::read_symlink(path_, error) != port && !Replace(port)) {
        return false;
    }
    port_ = port;
    return true;
}

bool PortLink::Replace(const fs::path& port) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path_, error)) || Occupant()) {
        return false;
    }
    RememberFormer();
    // Renaming replaces an older link without a moment in which the name is missing.
    fs::path fresh = path_;
    fresh += ".new" + std::to_string(::getpid());
    fs::remove(fresh, error);
    fs::create_symlink(port, fresh, error);
    if (error) {
        return false;
    }
    fs::rename(fresh, path_, error);
    if (error) {
        fs::remove(fresh, error);
        return false;
    }
    return true;
}

/// A link to a pseudo-terminal that is gone is what a killed radio leaves; any other is the user's, for a cable that is
/// not plugged in.
void PortLink::RememberFormer() {
    std::error_code error;
    const fs::path target = fs::read_symlink(path_, error);
    if (!error && target != port_ && target.parent_path() != PseudoTerminals) {
        former_ = target;
    }
}

void PortLink::Remove() {
    std::error_code error;
    if (!port_.empty() && fs::read_symlink(path_, error) == port_) {
        fs::remove(path_, error);
        if (!former_.empty()) {
            fs::create_symlink(former_, path_, error);
        }
    }
    port_.clear();
}

} // namespace zelvor
