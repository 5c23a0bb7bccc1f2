#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <memory>
#include <string>

#include "controls/WindowBlock.h"
#include "platform/Clock.h"
#include "platform/SerialPort.h"
#include "service/EntryEngine.h"
#include "shell/ProgramState.h"

class QWidget;

namespace zelvor {

struct Services;

enum class RadioTask { None, Information, TestMode };

/// Radio information and test mode: the exchange that comes first, on the main window's own port, and the window that
/// it leads to. The main window is disabled while that window is open.
class ServiceCommands : public QObject, private EntryObserver {
    Q_OBJECT

public:
    ServiceCommands(const ProgramState& state, Services& services, QWidget& mainWindow);
    ~ServiceCommands() override;

    /// An exchange for the same that is under way goes on; one for the other is ended.
    void ShowInformation() { Start(RadioTask::Information); }
    void EnterTestMode() { Start(RadioTask::TestMode); }
    /// For a command that replaces the document or wants the port: ends what is under way, so that its window does not
    /// open on another document, and says so.
    void EndForAnother();

    /// The user has chosen another language: what is still to be asked and told is in that.
    void UseLanguage();

    /// For the end of the program: refused, and said why, while a window of these commands is open.
    [[nodiscard]] bool KeepsProgramOpen();

signals:
    /// The radio's manufacturing record, one character a byte.
    void InformationRead(const std::string& record);
    /// Test mode has become the active window.
    void TestModeActivated();
    /// What the radio is being asked and how far that is, or why it ended; empty for nothing.
    void ExchangeTold(const QString& text);

private:
    void Start(RadioTask task);
    void OnInformation(const std::string& record) override;
    void OnExchangeDone() override;
    void OnInformationReady() override;
    void OnTestModeReady() override;
    void OnProgress(int replies, int all) override;
    void OnExchangeEnded() override;

    [[nodiscard]] Language CurrentLanguage() const;
    [[nodiscard]] EntryEngine& Engine();
    void Say(const QString& text);
    void ShowWindowWhenNoDialogIsUp();
    void ShowWindow(RadioTask task);
    /// Shows a window that keeps the main window disabled until it is gone.
    template<typename Window>
    void ShowOver(Window* window);

    const ProgramState state_;
    Services& services_;
    QWidget& mainWindow_;
    WindowBlock block_;
    std::unique_ptr<SerialPort> port_; // MSComm1, made with the engine at first use
    std::unique_ptr<EntryEngine> engine_;
    RadioTask task_ = RadioTask::None; // from the command until its window is open
    QTimer dialogPoll_;
    std::unique_ptr<Timer> notice_; // how long a text stays that nothing else ends
    QPointer<QWidget> open_;        // the window of a task
    RadioTask openTask_ = RadioTask::None;
};

} // namespace zelvor
