#include "DialogFigures.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QElapsedTimer>
#include <QEvent>
#include <QMainWindow>
#include <QPushButton>
#include <array>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "controls/WindowState.h"
#include "data/TuneItems.h"
#include "link/ComForm.h"
#include "platform/Clock.h"
#include "platform/QtMessageBoxes.h"
#include "platform/SerialPort.h"
#include "platform/Services.h"
#include "service/DJJInfoForm.h"
#include "service/ServiceState.h"
#include "service/TestForm.h"
#include "service/TuningDialogs.h"
#include "service/TuningForm.h"
#include "shell/ProgramState.h"

namespace zelvor::bench {

namespace {

using Command = std::function<void()>;
using Work = std::function<void(QDialog& dialog)>;

constexpr int Patience = 5000; // milliseconds

/// Waits from when it is made for the first painting of another dialog than the one that is open by then.
class DialogWatch : public QObject {
public:
    DialogWatch(std::vector<double>& times, Work work)
        : open_(QApplication::activeModalWidget()), times_(times), work_(std::move(work)) {
        time_.start();
        QCoreApplication::instance()->installEventFilter(this);
    }

    [[nodiscard]] bool HasEnded() const { return hasEnded_; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            auto* dialog = qobject_cast<QDialog*>(static_cast<QWidget*>(watched)->window());
            if (dialog != nullptr && dialog != open_) {
                QCoreApplication::instance()->removeEventFilter(this);
                // Queued: the round of painting under way ends with handing the picture over.
                QMetaObject::invokeMethod(
                    this, [this, dialog] { OnPainted(*dialog); }, Qt::QueuedConnection);
            }
        }
        return false;
    }

private:
    void OnPainted(QDialog& dialog) {
        times_.push_back(static_cast<double>(time_.nsecsElapsed()) / NanosecondsPerMillisecond);
        work_(dialog);
        hasEnded_ = true;
    }

    const QWidget* open_;
    std::vector<double>& times_;
    Work work_;
    QElapsedTimer time_;
    bool hasEnded_ = false;
};

/// Does to the dialog what ends it, too: a command may return when its dialog is gone, or at once.
void Open(std::vector<double>& times, const Command& command, const Work& work) {
    const DialogWatch watch(times, work);
    command();
    const QDeadlineTimer patience(Patience);
    while (!watch.HasEnded() && !patience.hasExpired()) {
        QCoreApplication::processEvents();
    }
}

/// From when it has the focus.
void MeasureKeysIn(QDialog& dialog, std::vector<double>& times) {
    const QDeadlineTimer patience(Patience);
    while (!dialog.isActiveWindow() && !patience.hasExpired()) {
        QCoreApplication::processEvents();
    }
    MeasureKeys(dialog, times);
}

void Close(QDialog& dialog) {
    dialog.done(QDialog::Rejected); // without the questions that Escape may lead to
}

// --- Dialogs of the menus --------------------------------------------------------------------------------------------

constexpr auto PrintList = "MnuFilePrint";
constexpr auto PrintSetup = "cmdPrintSetup";

/// Those with a field are given keys. The memory map closes the windows of the Edit menu, and comes last.
constexpr std::array<std::pair<const char*, bool>, 8> Entries{{{"MnuFileOpen", false},
                                                               {PrintList, true},
                                                               {"MnuModelInformation", true},
                                                               {"MnuProgramRead", false},
                                                               {"MnuProgramWrite", false},
                                                               {"MnuSetupLanguageFileSetup", true},
                                                               {"MnuHelpAbout", false},
                                                               {"MnuProgramMemoryMap", true}}};

void MeasurePrintSetup(const QDialog& list, Times& opened) {
    auto* button = list.findChild<QPushButton*>(PrintSetup);
    Open(
        opened[PrintSetup], [button] { button->click(); }, Close);
}

void MeasureEntries(const QMainWindow& window, Times& opened, Times& keys) {
    for (const auto& [entry, hasField] : Entries) {
        auto* action = window.findChild<QAction*>(entry);
        const Work work = [&, name = std::string(entry), takesKeys = hasField](QDialog& dialog) {
            if (takesKeys) {
                MeasureKeysIn(dialog, keys[dialog.objectName().toStdString()]);
            }
            if (name == PrintList) {
                MeasurePrintSetup(dialog, opened);
            }
            Close(dialog);
        };
        Open(
            opened[entry], [action] { action->trigger(); }, work);
    }
}

void MeasureMessage(Times& opened) {
    const Command command = [] {
        [[maybe_unused]] const MessageAnswer answer =
            QtMessageBoxes().Show({"Warning", "All data will be cleared.", MessageIcon::Exclamation,
                                   MessageButtons::OkCancel, MessageAnswer::Cancel});
    };
    Open(opened["MessageBox"], command, Close);
}

// --- Dialogs that are made here --------------------------------------------------------------------------------------

/// Takes everything and says nothing.
class SilentPort : public SerialPort {
public:
    void SetNumber(int /*number*/) override {}
    void SetSettings(std::string_view /*settings*/) override {}
    void SetBufferSizes(int /*inputBytes*/, int /*outputBytes*/) override {}
    void SetBinaryInput() override {}
    [[nodiscard]] bool Open() override { return isOpen_ = true; }
    [[nodiscard]] PortFailure Failure() const override { return {}; }
    void Close() override { isOpen_ = false; }
    [[nodiscard]] bool IsOpen() const override { return isOpen_; }
    [[nodiscard]] bool IsStale() const override { return false; }
    void ClearInput() override {}
    void ClearOutput() override {}
    void SetReceiveThreshold(int /*count*/) override {}
    void SetReadLength(int /*count*/) override {}
    [[nodiscard]] std::vector<std::uint8_t> Read() override { return {}; }
    [[nodiscard]] int WaitingBytes() const override { return 0; }
    void Send(std::span<const std::uint8_t> /*bytes*/) override {}

private:
    bool isOpen_ = false;
};

class SilentPorts : public SerialPorts {
public:
    [[nodiscard]] std::unique_ptr<SerialPort> Make(std::string_view /*objectName*/) override {
        return std::make_unique<SilentPort>();
    }
    [[nodiscard]] PortDescription Describe(int /*number*/) override { return {}; }
    void NumberAnew() override {}
};

using Make = std::function<QDialog*()>;

void MeasureMade(const std::string& name, const Make& make, Times& opened, Times& keys) {
    std::unique_ptr<QDialog> made;
    const Command command = [&made, &make] {
        made.reset(make());
        made->show();
    };
    const Work work = [&](QDialog& dialog) {
        MeasureKeysIn(dialog, keys[name]);
        made.reset();
    };
    Open(opened[name], command, work);
}

/// Goes on at once.
class HurriedClock : public Clock {
public:
    explicit HurriedClock(Clock& real) : real_(real) {}

    [[nodiscard]] LocalTime Now() const override { return real_.Now(); }
    [[nodiscard]] std::int64_t TickCount() const override { return real_.TickCount(); }
    void Sleep(int /*milliseconds*/) override {}
    void WaitProcessingEvents(int /*milliseconds*/) override {}
    [[nodiscard]] std::unique_ptr<Timer> MakeTimer(std::string_view objectName) override {
        return real_.MakeTimer(objectName);
    }

private:
    Clock& real_;
};

/// Without the 200 ms for which the dialog has to wait at each port that opens.
void MeasurePortDialog(QMainWindow& window, const ProgramState& state, Services& real, Times& opened, Times& keys) {
    HurriedClock clock(real.clock);
    Services services{real.ports, real.settings, real.messages, real.files,  clock,
                      real.help,  real.pages,    real.store,    real.backups};
    const Make port = [&] { return new ComForm(state.link, state.windows.LanguageFlag, services, &window); };
    MeasureMade("ComForm", port, opened, keys);
}

/// Of the tuning dialogs one of each size.
void MeasureServiceWindows(QMainWindow& window, const ProgramState& state, Services& real, Times& opened, Times& keys) {
    SilentPorts ports;
    Services services{ports,     real.settings, real.messages, real.files,  real.clock,
                      real.help, real.pages,    real.store,    real.backups};
    Document& document = state.document;
    LinkState& link = state.link;
    ServiceState& service = state.service;
    const Language language = state.windows.LanguageFlag;
    service.TestFrequencyText.fill({"145.00000", "145.00000"});
    const Make information = [&] { return new DJJInfoForm(document, service, language, services, &window); };
    MeasureMade("DJJInfoForm", information, opened, keys);
    const Make testMode = [&] { return new TestForm(document, link, service, language, services, &window); };
    MeasureMade("TestForm", testMode, opened, keys);
    std::set<std::string_view> measured;
    for (int item = 1; item <= TuneItemCount; ++item) {
        const std::string_view name = TuningDialogOf(item, false).formName;
        if (measured.insert(name).second) {
            service.TuneItem = item;
            const Make tuning = [&] { return MakeTuningForm(document, link, service, language, services, &window); };
            MeasureMade(std::string(name), tuning, opened, keys);
        }
    }
}

} // namespace

void MeasureDialogs(QMainWindow& window, const ProgramState& state, Services& services, Times& opened, Times& keys) {
    MeasureMessage(opened);
    MeasurePortDialog(window, state, services, opened, keys);
    MeasureServiceWindows(window, state, services, opened, keys);
    MeasureEntries(window, opened, keys);
}

} // namespace zelvor::bench
