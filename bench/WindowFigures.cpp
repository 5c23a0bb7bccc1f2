#include "WindowFigures.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWindow>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "AnsweringMessageBoxes.h"
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
constexpr double NanosecondsPerMillisecond = 1e6;

/// Those of the Edit menu and the navigator. The channel edit window opens by a button of the grid.
constexpr std::array Entries{
    "MnuEditOptionalFeatures", "MnuEditKeyAssignment", "MnuEditScanInformation", "MnuEditDTMF",
    "MnuEditCorvane",          "MnuEditTestFrequency", "MnuEditEmbeddedMessage", "MnuViewTreeView"};
constexpr auto ChannelEdit = "cmdChannelEdit";

using Times = std::map<std::string, std::vector<double>>; // milliseconds

/// Until all that is to be painted is painted and handed over.
template<typename Work>
double UntilPainted(QWidget& window, Work work) {
    QElapsedTimer time;
    time.start();
    work();
    QCoreApplication::sendPostedEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
    return static_cast<double>(time.nsecsElapsed()) / NanosecondsPerMillisecond;
}

void Press(Qt::Key key, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (QWidget* focus = QApplication::focusWidget()) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(focus, &event);
        }
    }
}

void MeasureKeys(MDIForm1& window, Times& times) {
    auto* area = window.findChild<QMdiArea*>();
    for (QMdiSubWindow* frame : area->subWindowList()) {
        area->setActiveSubWindow(frame);
        QCoreApplication::processEvents();
        std::vector<double>& keys = times[frame->widget()->objectName().toStdString()];
        for (int i = 0; i < 8; ++i) {
            keys.push_back(UntilPainted(window, [] { Press(Qt::Key_Tab, "\t"); }));
            keys.push_back(UntilPainted(window, [] { Press(Qt::Key_Down, {}); }));
            keys.push_back(UntilPainted(window, [] { Press(Qt::Key_1, "1"); }));
        }
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
    MeasureKeys(window, keys);
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
        report.Add("Open " + entry + scale, MedianOf(times), OpensWithin, 1, Spread(times, 1));
    }
    for (const auto& [form, times] : keys) {
        report.Add("Keys in " + form + scale, MedianOf(times), KeyWithin, 1, Spread(times, 1));
    }
}

} // namespace zelvor::bench
