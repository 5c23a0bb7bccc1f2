#include "cli/ChannelCommands.h"
#include "cli/program/Describing.h"

namespace zelvor::cli {

namespace {

constexpr TextPair ChannelsText{"Channels as a table of comma-separated values", "以逗号分隔值表格处理信道"};
constexpr TextPair ExportText{"Write the channels as a table", "把信道写成表格"};
constexpr TextPair ImportText{"Store the channels of a table; all of them or none",
                              "存入表格中的信道；要么全部，要么都不"};
constexpr TextPair TableText{"Table of channels", "信道表"};
constexpr TextPair TableOutputText{"Write the table here; otherwise to standard output",
                                   "表格写到此处；否则写到标准输出"};
constexpr TextPair FileOutputText{"Write the result here; otherwise in place", "结果写到此处；否则写回原文件"};

void AddExport(CLI::App& channels, Language language, Action& action) {
    CLI::App& command = AddCommand(channels, "export", language, ExportText);
    const auto request = MakeRequest<ExportRequest>(
        command, action, [](const ExportRequest& read, FileStore& store, const Console& console) {
            return ExportChannels(read, store, console);
        });
    AddFile(command, "FILE", request->file, language, DataFileText);
    AddOutput(command, request->output, "CSV", language, TableOutputText);
}

void AddImport(CLI::App& channels, Language language, Action& action) {
    CLI::App& command = AddCommand(channels, "import", language, ImportText);
    const auto request = MakeRequest<ImportRequest>(
        command, action, [](const ImportRequest& read, FileStore& store, const Console& console) {
            return ImportChannels(read, store, console);
        });
    AddFile(command, "FILE", request->file, language, DataFileText);
    AddFile(command, "CSV", request->table, language, TableText);
    AddOutput(command, request->output, "OUT", language, FileOutputText);
}

} // namespace

void AddChannelCommands(CLI::App& app, Language language, Action& action) {
    CLI::App& channels = AddCommand(app, "channels", language, ChannelsText);
    channels.require_subcommand(1);
    AddExport(channels, language, action);
    AddImport(channels, language, action);
}

} // namespace zelvor::cli
