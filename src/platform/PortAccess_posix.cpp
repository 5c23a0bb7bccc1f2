#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/PortAccess.h"

namespace zelvor {

namespace {

// Its members may open the device, and whoever administers the machine can make a user one of them.
std::string GroupWithAccess(const std::string& devicePath) {
    constexpr mode_t both = S_IRGRP | S_IWGRP;
    struct stat device {};
    if (stat(devicePath.c_str(), &device) != 0 || (device.st_mode & both) != both || device.st_gid == 0) {
        return {};
    }
    const group* found = getgrgid(device.st_gid); // NOLINT(concurrency-mt-unsafe): only one thread opens ports
    return found != nullptr ? found->gr_name : std::string();
}

} // namespace

PortFailure AccessFailure(const std::string& devicePath) {
    if (access(devicePath.c_str(), F_OK) != 0) {
        return {.fault = PortFault::Missing, .devicePath = devicePath};
    }
    if (access(devicePath.c_str(), R_OK | W_OK) != 0) {
        return {.fault = PortFault::NotPermitted, .devicePath = devicePath, .group = GroupWithAccess(devicePath)};
    }
    return {};
}

} // namespace zelvor
