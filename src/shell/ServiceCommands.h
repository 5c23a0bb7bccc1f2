#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>

#include "controls/WindowBlock.h"
#include "platform/SerialPort.h"
#include "service/EntryEngine.h"

class QWidget;

namespace zelvor {

struct Services;

/// Radio information and test mode: the exchange that comes first, on the main window's own port, and the window that
/// it leads to. The main window is disabled while that window is open.
class ServiceCommands : public QObject, private EntryObserver {
    Q_OBJECT

public:
    /// What these commands ask of the main window.
    struct MainWindow {
        QWidget& window;
        std::function<void(const std::string& record)> GetDJJInfo;
        /// Test mode has become the active window.
        std::function<void()> OnTestModeActive;
    };

    ServiceCommands(Session& session, Services& services, MainWindow mainWindow);
    ~ServiceCommands() override;

    void ShowInformation();
    void EnterTestMode();
    /// Ends an exchange that is under way, for a command that wants the port.
    void Abort();

private:
    void OnInformation(const std::string& record) override;
    void OnExchangeDone() override;
    void OnInformationReady() override;
    void OnTestModeReady() override;

    [[nodiscard]] EntryEngine& Engine();
    void WhenNoDialogIsUp(const std::function<void()>& show);
    /// Shows a window that keeps the main window disabled until it is gone.
    template<typename Window>
    void ShowOver(Window* window);

    Session& session_;
    Services& services_;
    const MainWindow mainWindow_;
    WindowBlock block_;
    std::unique_ptr<SerialPort> port_; // MSComm1, made with the engine at first use
    std::unique_ptr<EntryEngine> engine_;
};

} // namespace zelvor
