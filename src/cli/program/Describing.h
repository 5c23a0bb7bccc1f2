#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/program/CommandLine.h"

/// What the descriptions of all commands are made with.
namespace zelvor::cli {

inline constexpr TextPair OptionsText{"Options", "选项"};

/// What the arguments of "set" are called. Some versions of the reader take no space and no equals sign in a
/// name: they know them by another.
inline constexpr const char* AssignmentsName = "ASSIGNMENTS";
inline constexpr std::string_view ShownAssignmentsName = "FILE... KEY=VALUE";

inline std::string ShownNameOf(std::string_view name) {
    return std::string(name == AssignmentsName ? ShownAssignmentsName : name);
}

/// A command under its name; what is read into `request` is handed to `run`.
template<typename Request, typename Run>
std::shared_ptr<Request> MakeRequest(CLI::App& command, Action& action, Run run) {
    auto request = std::make_shared<Request>();
    command.callback([request, &action, run] {
        action = [request, run](FileStore& store, const Console& console) { return run(*request, store, console); };
    });
    return request;
}

inline CLI::App& AddCommand(CLI::App& app, const char* name, Language language, const TextPair& text) {
    CLI::App& command = *app.add_subcommand(name, std::string(text.In(language)));
    command.get_help_ptr()->group(std::string(OptionsText.In(language))); // the reader gives it no group of ours
    return command;
}

inline CLI::Option& AddFile(CLI::App& command, const char* name, std::string& file, Language language,
                            const TextPair& text) {
    return *command.add_option(name, file, std::string(text.In(language)))->type_name("")->required();
}

inline CLI::Option& AddFiles(CLI::App& command, const char* name, std::vector<std::string>& files, Language language,
                             const TextPair& text) {
    return *command.add_option(name, files, std::string(text.In(language)))->type_name("")->required();
}

inline CLI::Option& AddOutput(CLI::App& command, std::optional<std::string>& output, const char* type,
                              Language language, const TextPair& text) {
    return *command.add_option("-o,--output", output, std::string(text.In(language)))->type_name(type);
}

inline void AddSections(CLI::App& command, std::vector<std::string>& sections, const std::vector<std::string>& names,
                        Language language, const TextPair& text) {
    command.add_option("--section", sections, std::string(text.In(language)))
        ->type_name("S")
        ->allow_extra_args(false)
        ->check(CLI::IsMember(names));
}

inline constexpr TextPair DataFileText{"Data file", "数据文件"};
inline constexpr TextPair DataFilesText{"Data files", "数据文件，可以多个"};
inline constexpr TextPair JsonFlagText{"As a JSON document", "输出为 JSON 文档"};

} // namespace zelvor::cli
