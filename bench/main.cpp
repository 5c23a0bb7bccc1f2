// zelvor-bench [clone] [start] [data] [print] [cli] [windows]: measures those parts, or all of them, and prints the
// table.

#include <QApplication>
#include <QTemporaryDir>

#include "CliFigures.h"
#include "CloneFigures.h"
#include "DataFigures.h"
#include "PrintFigures.h"
#include "Report.h"
#include "StartFigures.h"
#include "WindowFigures.h"

namespace {

/// Nothing of the user's is read or written, by this process or those that it starts.
void UsePrivateFolders(const QTemporaryDir& home) {
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.filePath("data").toLocal8Bit());
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    }
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    UsePrivateFolders(home);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList parts = QApplication::arguments().mid(1);
    const auto isWanted = [&parts](const char* part) { return parts.isEmpty() || parts.contains(part); };

    zelvor::bench::Report report;
    if (isWanted("clone")) {
        zelvor::bench::AddCloneFigures(report);
    }
    if (isWanted("start")) {
        zelvor::bench::AddStartFigures(report);
    }
    if (isWanted("data")) {
        zelvor::bench::AddDataFigures(report);
    }
    if (isWanted("print")) {
        zelvor::bench::AddPrintFigures(report);
    }
    if (isWanted("cli")) {
        zelvor::bench::AddCliFigures(report);
    }
    if (isWanted("windows")) {
        zelvor::bench::AddWindowFigures(report);
    }
    report.Print();
    return report.IsComplete() ? 0 : 1;
}
