#pragma once

#include <QMainWindow>
#include <memory>

#include "platform/QtLanguage.h"

namespace zelvor {

class ChildForm;
class ChildWindows;
class DocumentView;
class LanguageCommand;
class Menus;
class Session;
class ServiceCommands;
class SessionCommands;
class StatusBar1;
class Timer;
class Toolbar1;
class TransferCommands;
class WindowList;
struct Services;

/// The main window, and the first to open: it restores the remembered settings, makes a blank document and shows the
/// channel grid. What the commands do is elsewhere; here they are put to menus, toolbar and keys.
class MDIForm1 : public QMainWindow {
    Q_OBJECT

public:
    /// Both must outlive the window.
    MDIForm1(Session& session, Services& services);
    ~MDIForm1() override;

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
    void RegisterChildWindows();
    [[nodiscard]] ChildForm* MakeGrid();
    [[nodiscard]] ChildForm* MakeNavigator();
    void ConnectFileMenu();
    void ConnectEditMenu();
    void ConnectProgramMenu();
    void ConnectMemoryMapGesture();
    void ConnectViewMenu();
    void ConnectWindowMenu();
    void ConnectHelpMenu();
    void ConnectToolbar();
    void ApplyLanguage();
    void ReplaceDocument(void (SessionCommands::*command)());
    void Transfer(void (TransferCommands::*transfer)());
    void ShowCommunicationPort();
    void ShowPrintList();
    void ShowAbout();
    void ShowHelpPage(std::string_view page);
    void ShowHelpOfActiveWindow();

    Session& session_;
    Services& services_;
    QtLanguage toolkitLanguage_;
    std::unique_ptr<Menus> menus_;
    std::unique_ptr<WindowList> windowList_;
    std::unique_ptr<ChildWindows> children_;
    std::unique_ptr<DocumentView> view_;
    std::unique_ptr<SessionCommands> commands_;
    std::unique_ptr<TransferCommands> transfers_;
    std::unique_ptr<LanguageCommand> language_;
    std::unique_ptr<ServiceCommands> service_;
    std::unique_ptr<Timer> tmrStatusBar_;
    Toolbar1* toolbar1_ = nullptr;
    StatusBar1* statusBar1_ = nullptr;
    bool isStarted_ = false;
};

} // namespace zelvor
