#include <QCoreApplication>
#include <iostream>

#include "cli/BackupCommands.h"
#include "cli/RadioInfo.h"
#include "cli/RadioProgress.h"
#include "cli/RadioRead.h"
#include "cli/RadioVerify.h"
#include "cli/RadioWrite.h"
#include "cli/program/Describing.h"
#include "platform/Backups.h"
#include "platform/QtClock.h"
#include "platform/QtFolder.h"
#include "platform/QtSerialPorts.h"
#include "platform/StopRequest.h"
#include "platform/Terminal.h"

namespace zelvor::cli {

namespace {

constexpr TextPair InfoText{"Print what the connected radio says of itself", "输出所连接对讲机的信息"};
constexpr TextPair ReadText{"Read the connected radio into a data file", "把所连接对讲机读入数据文件"};
constexpr TextPair VerifyText{"Read the connected radio and compare it with a data file",
                              "读取所连接对讲机并与数据文件比较"};
constexpr TextPair WriteText{"Write a data file to the connected radio, keep what it held, and verify",
                             "把数据文件写入所连接对讲机，保存其原有内容并校验"};
constexpr TextPair BackupText{"What was read from radios and written to them", "从对讲机读取和写入的备份"};
constexpr TextPair ListText{"List the backups, newest first", "列出备份，最新的在前"};
constexpr TextPair PathText{"Print the folder of the backups", "输出备份所在的文件夹"};
constexpr TextPair PortText{"Port number, 1 to 20", "端口号，1 至 20"};
constexpr TextPair ReadOutputText{"The file to make", "要生成的文件"};
constexpr TextPair RetriesText{"How often a transfer begins again where the radio does not answer",
                               "对讲机没有应答时重新开始的次数"};
constexpr TextPair NoBackupText{"Do not read the radio first", "写入之前不读取对讲机"};
constexpr TextPair NoVerifyText{"Do not read the radio again and compare", "写入之后不回读比较"};
constexpr TextPair OverwriteText{"Write also where the radio is another model than the file is for",
                                 "对讲机机型与文件不同时也写入"};

constexpr int LastPort = 20;
constexpr int MostRetries = 1000;

/// Runs a command with the machine's port, time and backups, on an event loop.
template<typename Request>
ExitStatus RunOnMachine(ExitStatus (*run)(const Request& request, RadioMachine& machine, const Console& console),
                        const Request& request, FileStore& store, const Console& console) {
    int argc = 1;
    char name[] = "zelvor-cli";
    char* argv[] = {name, nullptr};
    // GLib's event loop sleeps whole milliseconds: what is left of the wait between two packets would be rounded up.
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication application(argc, argv);
    QtSerialPorts ports;
    QtClock clock(&application);
    QtFolder backups(BackupFolderPath());
    RadioProgress none;
    RadioProgressBar bar(std::cerr);
    RadioProgress& progress = IsStandardErrorTerminal() ? bar : none;
    CatchStopRequests();
    RadioMachine machine{ports, clock, store, backups, progress, IsStopRequested};
    return run(request, machine, console);
}

template<typename Request>
std::shared_ptr<Request> MakeRadioRequest(CLI::App& command, Action& action,
                                          ExitStatus (*run)(const Request&, RadioMachine&, const Console&)) {
    return MakeRequest<Request>(command, action, [run](const Request& read, FileStore& store, const Console& console) {
        return RunOnMachine(run, read, store, console);
    });
}

void AddRadio(CLI::App& command, RadioRequest& request, Language language) {
    command.add_option("--port", request.port, std::string(PortText.In(language)))
        ->type_name("N")
        ->check(CLI::Range(1, LastPort))
        ->required();
    command.add_option("--retries", request.retries, std::string(RetriesText.In(language)))
        ->type_name("R")
        ->check(CLI::Range(0, MostRetries))
        ->capture_default_str();
}

void AddInfo(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "info", language, InfoText);
    AddRadio(command, *MakeRadioRequest<RadioRequest>(command, action, InfoOfRadio), language);
}

void AddRead(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "read", language, ReadText);
    const auto request = MakeRadioRequest<ReadRequest>(command, action, ReadRadio);
    AddRadio(command, request->radio, language);
    AddFile(command, "-o,--output", request->output, language, ReadOutputText).type_name("FILE");
}

void AddVerify(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "verify", language, VerifyText);
    const auto request = MakeRadioRequest<VerifyRequest>(command, action, VerifyRadio);
    AddRadio(command, request->radio, language);
    AddFile(command, "FILE", request->file, language, DataFileText);
}

void AddWrite(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "write", language, WriteText);
    const auto request = MakeRadioRequest<WriteRequest>(command, action, WriteRadio);
    AddRadio(command, request->radio, language);
    AddFile(command, "FILE", request->file, language, DataFileText);
    command.add_flag("!--no-backup", request->keepsBackup, std::string(NoBackupText.In(language)));
    command.add_flag("!--no-verify", request->verifies, std::string(NoVerifyText.In(language)));
    command.add_flag("--overwrite-model", request->radio.overwritesModel, std::string(OverwriteText.In(language)));
}

void AddBackupCommand(CLI::App& backup, const char* name, Language language, const TextPair& text, Action& action,
                      ExitStatus (*run)(const Backups& backups, const Console& console)) {
    AddCommand(backup, name, language, text).callback([&action, run] {
        action = [run](FileStore& store, const Console& console) {
            QtClock clock;
            QtFolder folder(BackupFolderPath());
            return run(Backups(store, folder, clock), console);
        };
    });
}

} // namespace

void AddRadioCommands(CLI::App& app, Language language, Action& action) {
    AddInfo(app, language, action);
    AddRead(app, language, action);
    AddVerify(app, language, action);
    AddWrite(app, language, action);
    CLI::App& backup = AddCommand(app, "backup", language, BackupText);
    backup.require_subcommand(1);
    AddBackupCommand(backup, "list", language, ListText, action, ListBackups);
    AddBackupCommand(backup, "path", language, PathText, action, TellBackupFolder);
}

} // namespace zelvor::cli
