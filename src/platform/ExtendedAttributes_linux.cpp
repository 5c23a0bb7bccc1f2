#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <sys/xattr.h>
#include <vector>

#include "platform/ExtendedAttributes.h"

namespace zelvor {

namespace {

/// Nothing where they cannot be read; empty where the file system knows none.
std::optional<std::set<std::string>> NamesOf(int descriptor) {
    const ssize_t size = flistxattr(descriptor, nullptr, 0);
    if (size < 0) {
        return errno == ENOTSUP ? std::optional(std::set<std::string>()) : std::nullopt;
    }
    // Where there is no room at all the system tells the size again: of what has come meanwhile.
    std::vector<char> list(static_cast<std::size_t>(size) + 1);
    const ssize_t length = flistxattr(descriptor, list.data(), list.size());
    if (length < 0) {
        return std::nullopt;
    }
    std::set<std::string> names;
    for (const char* name = list.data(); name < list.data() + length; name += names.emplace(name).first->size() + 1) {
    }
    return names;
}

std::optional<std::vector<char>> ValueOf(int descriptor, const std::string& name) {
    const ssize_t size = fgetxattr(descriptor, name.c_str(), nullptr, 0);
    if (size < 0) {
        return std::nullopt;
    }
    std::vector<char> value(static_cast<std::size_t>(size));
    const ssize_t length = fgetxattr(descriptor, name.c_str(), value.data(), value.size());
    if (length != size) {
        return std::nullopt;
    }
    return value;
}

/// A value that is there already is not set: a security module may forbid it.
bool CopyAttribute(int from, int to, const std::string& name) {
    const auto value = ValueOf(from, name);
    if (!value) {
        return false;
    }
    return ValueOf(to, name) == value || fsetxattr(to, name.c_str(), value->data(), value->size(), 0) == 0;
}

} // namespace

bool CopyExtendedAttributes(int from, int to) {
    const auto wanted = NamesOf(from);
    const auto present = NamesOf(to);
    if (!wanted || !present) {
        return false;
    }
    for (const std::string& name : *present) { // a folder may hand its own down to a new file
        if (!wanted->contains(name) && fremovexattr(to, name.c_str()) != 0) {
            return false;
        }
    }
    return std::ranges::all_of(*wanted, [&](const std::string& name) { return CopyAttribute(from, to, name); });
}

} // namespace zelvor
