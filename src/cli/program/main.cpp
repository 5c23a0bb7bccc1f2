#include <QString>
#include <iostream>

#include "cli/program/CommandLine.h"
#include "platform/Arguments.h"
#include "platform/QtFileStore.h"
#include "platform/Terminal.h"

namespace {

using zelvor::cli::Console;
using zelvor::cli::ExitStatus;

constexpr zelvor::TextPair NoOutput{"standard output cannot be written", "无法写入标准输出"};

/// What the toolkit warns of (a locale without UTF-8, no runtime folder) is nothing to a command.
void PassOnErrors(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        Console{std::cout, std::cerr}.Complain(text.toStdString());
    }
}

ExitStatus Run(const zelvor::cli::CommandLine& commandLine) {
    const Console console{std::cout, std::cerr, commandLine.language};
    zelvor::QtFileStore store;
    const ExitStatus status = commandLine.action(store, console);
    if (console.out.flush()) {
        return status;
    }
    console.Complain(console.Say(NoOutput));
    return Worse(status, ExitStatus::File);
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const zelvor::StandardOutput output;
    qInstallMessageHandler(PassOnErrors);
    const zelvor::cli::CommandLine commandLine = zelvor::cli::ReadCommandLine(zelvor::ArgumentsOf(argc, argv));
    return static_cast<int>(commandLine.action ? Run(commandLine) : ExitStatus::Usage);
}
