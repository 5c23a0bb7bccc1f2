#include "CloneRun.h"

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QPushButton>
#include <QTimer>

#include "AnsweringMessageBoxes.h"
#include "RadioProcess.h"
#include "controls/WindowState.h"
#include "data/Document.h"
#include "help/QtHelpViewer.h"
#include "link/CloneEngine.h"
#include "link/CloneFrames.h"
#include "platform/QtServices.h"
#include "service/ServiceState.h"
#include "shell/MDIForm1.h"
#include "simulator/SampleRadio.h"

namespace zelvor::bench {

namespace {

constexpr int BeforePress = 300; // milliseconds in which the dialog gets on the screen

/// The machine's services, but for the messages, which answer themselves.
struct Bed {
    QtHelpViewer help;
    QtServices machine{help};
    AnsweringMessageBoxes messages;
    Services services{machine.Get().ports, machine.Get().settings, messages,
                      machine.Get().files, machine.Get().clock,    machine.Get().help,
                      machine.Get().pages, machine.Get().store,    machine.Get().backups};
    Document document;
    WindowState windows;
    LinkState link;
    ServiceState service;
    RadioProcess radio;

    [[nodiscard]] std::optional<SessionTimes> Outcome(TransferDirection direction) {
        const bool isRead = direction == TransferDirection::Read;
        if (!messages.TakeOnly(isRead ? "Reading Completed" : "Writing Completed") ||
            (isRead && document.Image != SampleRadioMemory())) {
            return std::nullopt;
        }
        return ReadTrace(radio.TraceOfSession());
    }
};

void PressOkOfDialog() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (auto* button = dialog != nullptr ? dialog->findChild<QPushButton*>("cmdOK") : nullptr) {
        button->click();
    }
}

class EngineOwner : public CloneObserver {
public:
    void OnProgress(int /*value*/) override {}
    void OnButtonsEnabled(bool /*enabled*/) override {}
    void OnStandstill() override {}
    void OnTransferDone() override {}
    void OnReadCompleted() override {}
    void OnWriteCompleted() override {}
    void OnUnloadRequested() override { Loop.quit(); }

    QEventLoop Loop;
};

} // namespace

std::optional<SessionTimes> RunFromMainWindow(TransferDirection direction) {
    Bed bed;
    MDIForm1 window({bed.document, bed.windows, bed.link, bed.service}, bed.services);
    window.show();
    bed.document.Image = SampleRadioMemory();
    if (direction == TransferDirection::Read) {
        bed.document.Image.Fill(0);
    }
    auto* entry =
        window.findChild<QAction*>(direction == TransferDirection::Read ? "MnuProgramRead" : "MnuProgramWrite");
    if (entry == nullptr || !bed.radio.IsReady()) {
        return std::nullopt;
    }
    QTimer::singleShot(BeforePress, PressOkOfDialog);
    entry->trigger();
    return bed.Outcome(direction);
}

std::optional<SessionTimes> RunEngineAlone(TransferDirection direction) {
    Bed bed;
    const bool isRead = direction == TransferDirection::Read;
    if (!isRead) {
        bed.document.Image = SampleRadioMemory();
    }
    bed.link.TransferMode = isRead ? transfer::Reading : transfer::Writing;
    if (!bed.radio.IsReady()) {
        return std::nullopt;
    }
    const std::unique_ptr<SerialPort> port = bed.services.ports.Make("MSComm1");
    EngineOwner owner;
    CloneEngine engine(bed.document,
                       {bed.link, *port, bed.services.clock, bed.services.messages, bed.windows.LanguageFlag}, owner);
    engine.Load();
    engine.Start();
    owner.Loop.exec();
    engine.Unload();
    return bed.Outcome(direction);
}

} // namespace zelvor::bench
