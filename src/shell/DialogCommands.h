#pragma once

#include <QObject>
#include <string_view>

#include "shell/ProgramState.h"

class QWidget;

namespace zelvor {

class ChildWindows;
struct Services;

/// The commands that show a dialog of the main window or a page of the help, and do nothing else.
class DialogCommands : public QObject {
    Q_OBJECT

public:
    DialogCommands(const ProgramState& state, Services& services, const ChildWindows& children, QWidget& mainWindow);

    void ShowCommunicationPort();
    void ShowPrintList();
    void ShowAbout();

    void ShowHelpTopics();
    /// The page of the child window that is active, the first page where there is none.
    void ShowHelpOfActiveWindow();

signals:
    /// The dialog of the port has chosen one.
    void PortChosen();

private:
    void ShowHelpPage(std::string_view page);

    const ProgramState state_;
    Services& services_;
    const ChildWindows& children_;
    QWidget& mainWindow_;
};

} // namespace zelvor
