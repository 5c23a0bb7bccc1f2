#pragma once

#include <QMainWindow>
#include <memory>
#include <optional>
#include <vector>

#include "platform/QtLanguage.h"
#include "shell/Command.h"
#include "shell/MenuTree.h"
#include "shell/ProgramState.h"

class QMdiArea;

namespace zelvor {

class ChildWindows;
class DialogCommands;
class DocumentView;
class LanguageCommand;
class Menus;
class ServiceCommands;
class SessionCommands;
class StatusBar1;
class Timer;
class Toolbar1;
class TransferCommands;
class WindowList;
struct Services;

/// The main window, and the first to open: it restores the remembered settings, makes a blank document and shows the
/// channel grid. What the commands are and do is elsewhere; here they are put to menus, toolbar and keys, and run.
class MDIForm1 : public QMainWindow {
    Q_OBJECT

public:
    /// What both refer to must outlive the window.
    MDIForm1(const ProgramState& state, Services& services);
    ~MDIForm1() override;

    [[nodiscard]] const SessionCommands& DocumentCommands() const { return *commands_; }

    /// Tiles the picture of bakGdForm over the client area.
    void TileMDIBkgd();
    /// Makes the document the blank image of its model; changes nothing else.
    void InitAllFrameData();
    /// Keeps the radio's manufacturing record, one character a byte.
    void GetDJJInfo(const std::string& record);
    /// Sets the texts of menus and tool tips in the current language.
    void ApplyMenuCaptions();

signals:
    /// The user has left the program and the settings are stored: the process is to end.
    void Ended();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void SetUpWindow();
    void StartClock();
    void RestoreSession();
    void BuildBars(QMdiArea& area);
    void BuildCommands();
    void ConnectKeys();
    void ApplyLanguage();
    void Run(const Command& command);

    const ProgramState state_;
    Services& services_;
    QtLanguage toolkitLanguage_;
    const std::vector<MenuDescription> menuTree_;
    const std::vector<Command> keyCommands_;
    std::unique_ptr<Menus> menus_;
    std::unique_ptr<WindowList> windowList_;
    std::unique_ptr<ChildWindows> children_;
    std::unique_ptr<DocumentView> view_;
    std::unique_ptr<SessionCommands> commands_;
    std::unique_ptr<TransferCommands> transfers_;
    std::unique_ptr<LanguageCommand> language_;
    std::unique_ptr<ServiceCommands> service_;
    std::unique_ptr<DialogCommands> dialogs_;
    std::optional<Program> program_; // from when all of the above is there
    std::unique_ptr<Timer> tmrStatusBar_;
    Toolbar1* toolbar1_ = nullptr;
    StatusBar1* statusBar1_ = nullptr;
    bool isStarted_ = false;
};

} // namespace zelvor
