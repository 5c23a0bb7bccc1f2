#include "WindowFigures.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWindow>
#include <array>
#include <string>
#include <vector>

#include "AnsweringMessageBoxes.h"
#include "DialogFigures.h"
#include "Report.h"
#include "controls/WindowState.h"
#include "data/Document.h"
#include "help/QtHelpViewer.h"
#include "link/LinkState.h"
#include "platform/QtServices.h"
#include "service/ServiceState.h"
#include "shell/MDIForm1.h"

namespace zelvor::bench {

namespace {

constexpr int Runs = 7;
constexpr double OpensWithin = 30; // milliseconds
constexpr double KeyWithin = 16;

/// Those of the Edit menu and the navigator. The channel edit window opens by a button of the grid.
constexpr std::array Entries{
    "MnuEditOptionalFeatures", "MnuEditKeyAssignment", "MnuEditScanInformation", "MnuEditDTMF",
    "MnuEditCorvane",          "MnuEditTestFrequency", "MnuEditEmbeddedMessage", "MnuViewTreeView"};
constexpr auto ChannelEdit = "cmdChannelEdit";

void MeasureKeysInChildren(MDIForm1& window, Times& times) {
    auto* area = window.findChild<QMdiArea*>();
    for (QMdiSubWindow* frame : area->subWindowList()) {
        area->setActiveSubWindow(frame);
        QCoreApplication::processEvents();
        MeasureKeys(window, times[frame->widget()->objectName().toStdString()]);
    }
}

void Measure(Times& opened, Times& keys) {
    QtHelpViewer help;
    QtServices machine(help);
    AnsweringMessageBoxes messages;
    const Services& real = machine.Get();
    Services services{real.ports, real.settings, messages,   real.files,  real.clock,
                      real.help,  real.pages,    real.store, real.backups};
    Document document;
    WindowState windows;
    LinkState link;
    ServiceState service;
    MDIForm1 window({document, windows, link, service}, services);
    machine.NumberPorts(); // as the program does when it has begun
    window.show();
    window.activateWindow();
    while (!window.windowHandle()->isExposed()) { // nothing is painted before
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    for (const char* entry : Entries) {
        auto* action = window.findChild<QAction*>(entry);
        opened[entry].push_back(UntilPainted(window, [action] { action->trigger(); }));
    }
    auto* button = window.findChild<QWidget*>(ChannelEdit);
    opened[ChannelEdit].push_back(
        UntilPainted(window, [button] { QMetaObject::invokeMethod(button, "click", Qt::DirectConnection); }));
    MeasureKeysInChildren(window, keys);
    MeasureDialogs(window, {document, windows, link, service}, services, opened, keys);
}

void Add(const std::string& name, const std::vector<double>& times, double limit, Report& report) {
    if (times.empty()) {
        report.AddFailure(name, "not painted");
        return;
    }
    report.Add(name, MedianOf(times), limit, 1, Spread(times, 1));
}

} // namespace

void AddWindowFigures(Report& report) {
    Times opened;
    Times keys;
    for (int run = 0; run < Runs; ++run) {
        Measure(opened, keys);
    }
    const std::string scale = ", at " + Formatted(100 * qApp->devicePixelRatio(), 0) + " %, in ms";
    for (const auto& [entry, times] : opened) {
        Add(std::string("Open ").append(entry).append(scale), times, OpensWithin, report);
    }
    for (const auto& [form, times] : keys) {
        Add(std::string("Keys in ").append(form).append(scale), times, KeyWithin, report);
    }
}

} // namespace zelvor::bench
