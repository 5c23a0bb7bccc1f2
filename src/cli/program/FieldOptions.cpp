#include "cli/FieldCommands.h"
#include "cli/program/Describing.h"

namespace zelvor::cli {

namespace {

constexpr TextPair KeysText{"List the keys of all fields, with section, address, legal values and labels",
                            "列出所有字段的键、部分、地址、合法值和标签"};
constexpr TextPair GetText{"Print fields as key=value", "以 key=value 输出字段"};
constexpr TextPair SetText{"Store values in data files; all of them or none", "把值存入数据文件；要么全部，要么都不"};
constexpr TextPair KeyText{"Keys of fields, as \"keys\" lists them", "字段的键，见 \"keys\""};
constexpr TextPair ArgumentsText{
    "Data files, and KEY=VALUE for the fields to set; a file with an equals sign in its name "
    "is written ./NAME",
    "数据文件，以及要设置的 KEY=VALUE；名称中有等号的文件写作 ./NAME"};
constexpr TextPair OutputText{"Write the result here, for one file; otherwise in place",
                              "结果写到此处，仅限一个文件；否则写回原文件"};

void AddKeys(CLI::App& app, Language language, Action& action) {
    AddCommand(app, "keys", language, KeysText).callback([&action] {
        action = [](FileStore& /*store*/, const Console& console) { return ListKeys(console); };
    });
}

void AddGet(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "get", language, GetText);
    const auto request = MakeRequest<GetRequest>(command, action, Get);
    AddFile(command, "FILE", request->file, language, DataFileText);
    AddFiles(command, "KEY", request->keys, language, KeyText);
}

struct SetArguments {
    std::vector<std::string> arguments;
    std::optional<std::string> output;
};

void AddSet(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "set", language, SetText);
    const auto request = MakeRequest<SetArguments>(
        command, action, [](const SetArguments& read, FileStore& store, const Console& console) {
            return Set(ReadSetArguments(read.arguments, read.output), store, console);
        });
    AddFiles(command, AssignmentsName, request->arguments, language, ArgumentsText);
    AddOutput(command, request->output, "OUT", language, OutputText);
}

} // namespace

void AddFieldCommands(CLI::App& app, Language language, Action& action) {
    AddKeys(app, language, action);
    AddGet(app, language, action);
    AddSet(app, language, action);
}

} // namespace zelvor::cli
