#pragma once

#include <optional>
#include <string>

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

struct ExportRequest {
    std::string file;
    std::optional<std::string> output; // otherwise standard output
};
/// The channels as a table; ChannelSheet.h tells which.
[[nodiscard]] ExitStatus ExportChannels(const ExportRequest& request, FileStore& store, const Console& console);

struct ImportRequest {
    std::string file;
    std::string table;
    std::optional<std::string> output; // otherwise in place
};
/// Every fault of the table is told as "table:line:column: reason", and then nothing is written.
[[nodiscard]] ExitStatus ImportChannels(const ImportRequest& request, FileStore& store, const Console& console);

} // namespace zelvor::cli
