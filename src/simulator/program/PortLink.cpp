#include "simulator/program/PortLink.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include <pwd.h>
#include <unistd.h>

namespace zelvor {
namespace {

namespace fs = std::filesystem;

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

bool PortLink::PointTo(const fs::path& port) {
    std::error_code error;
    fs::create_directories(path_.parent_path(), error);
    const fs::file_status present = fs::symlink_status(path_, error);
    if (fs::exists(present) && !fs::is_symlink(present)) {
        return false;
    }
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
    port_ = port;
    return true;
}

void PortLink::Remove() {
    std::error_code error;
    if (!port_.empty() && fs::read_symlink(path_, error) == port_) {
        fs::remove(path_, error);
    }
    port_.clear();
}

} // namespace zelvor
