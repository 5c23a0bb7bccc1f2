#include "cli/ChannelCommands.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "cli/ChannelSheet.h"
#include "cli/RadioFile.h"
#include "cli/SameFile.h"
#include "platform/FileStore.h"

namespace zelvor::cli {

namespace {

constexpr std::size_t LargestTable = std::size_t{1} << 20U;
constexpr TextPair TooLarge{"is too large for a table of channels", "对信道表来说太大"};

/// Nothing, and told, where it cannot be read.
std::optional<std::string> ReadTable(FileStore& store, const std::string& path, const Console& console) {
    const auto bytes = store.Read(path, LargestTable + 1);
    if (!bytes || bytes->size() > LargestTable) {
        console.Complain(path, bytes ? TooLarge : Unreadable);
        return std::nullopt;
    }
    return std::string(bytes->begin(), bytes->end());
}

void Tell(std::vector<SheetFault> faults, const std::string& table, const Console& console) {
    std::ranges::stable_sort(faults, {}, &SheetFault::line);
    for (const SheetFault& fault : faults) {
        console.Complain(Printable(table) + ':' + std::to_string(fault.line) + ':' + Printable(fault.column) + ": " +
                         fault.reason);
    }
}

} // namespace

ExitStatus ExportChannels(const ExportRequest& request, FileStore& store, const Console& console) {
    if (request.output && OverwritesInput(*request.output, request.file, console)) {
        return ExitStatus::Usage;
    }
    const std::optional<RadioFile> file = ReadRadioFile(store, request.file, console);
    if (!file) {
        return ExitStatus::File;
    }
    const std::string table = ExportChannels(file->image);
    if (!request.output) {
        console.out << table;
        return ExitStatus::Done;
    }
    const std::vector<std::uint8_t> bytes(table.begin(), table.end());
    return WriteBytes(store, *request.output, bytes, console) ? ExitStatus::Done : ExitStatus::File;
}

ExitStatus ImportChannels(const ImportRequest& request, FileStore& store, const Console& console) {
    if (request.output && OverwritesInput(*request.output, request.table, console)) {
        return ExitStatus::Usage;
    }
    std::optional<RadioFile> file = ReadRadioFile(store, request.file, console);
    const std::optional<std::string> table = ReadTable(store, request.table, console);
    if (!file || !table) {
        return ExitStatus::File;
    }
    SheetImport import = ImportChannels(*table, file->image, console.language);
    if (!import.faults.empty()) {
        Tell(std::move(import.faults), request.table, console);
        return ExitStatus::File;
    }
    file->image = import.image;
    return WriteBytes(store, request.output.value_or(request.file), BytesOf(*file), console) ? ExitStatus::Done
                                                                                             : ExitStatus::File;
}

} // namespace zelvor::cli
