#include <QString>
#include <iostream>

#include "cli/program/CommandLine.h"
#include "platform/QtFileStore.h"

namespace {

using zelvor::cli::Console;
using zelvor::cli::ExitStatus;

constexpr zelvor::TextPair NoOutput{"standard output cannot be written", "无法写入标准输出"};

/// Texts and file names are UTF-8 here in every locale, of which the toolkit complains.
void PassOnWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith(QLatin1String("Detected locale"))) {
        std::cerr << "zelvor-cli: " << text.toStdString() << '\n';
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
    qInstallMessageHandler(PassOnWarnings);
    const zelvor::cli::CommandLine commandLine = zelvor::cli::ReadCommandLine(argc, argv);
    return commandLine.action ? static_cast<int>(Run(commandLine)) : commandLine.exitCode;
}
