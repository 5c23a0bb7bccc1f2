#pragma once

#include "platform/FileStore.h"

namespace zelvor {

/// The machine's files. Needs no application object and no window.
///
/// A write prepares a new file, ".zelvor-<number>.tmp", beside the old one, forces it onto the disk and renames it in
/// place as the last step, so that a reader, a power cut or the end of the process finds the old content or the new
/// one. The new file takes over what belonged to the old one: rights, owner, access lists, extended attributes. What
/// cannot be taken over (other names of the file, an owner or attribute that only an administrator may set), and a
/// folder that may not be changed, make it write into the old file instead; that keeps everything, and is not
/// indivisible. New files that a process left behind when it was killed are removed by the next write in their folder.
class QtFileStore : public FileStore {
public:
    [[nodiscard]] std::optional<std::vector<std::string>> NamesIn(const std::string& folder) override;
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Read(const std::string& path, std::size_t atMost) override;
    [[nodiscard]] bool Write(const std::string& path, std::span<const std::uint8_t> bytes, FileTail tail) override;
};

} // namespace zelvor
