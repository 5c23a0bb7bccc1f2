#pragma once

#include "platform/Backups.h"
#include "shell/ProgramState.h"

class QWidget;

namespace zelvor {

class DocumentView;
struct Services;

/// Read from Radio and Write to Radio. A backup is kept of every image that was read, and of every one before it is
/// written; where that fails, nothing is said.
class TransferCommands {
public:
    TransferCommands(const ProgramState& state, Services& services, DocumentView& view, QWidget& mainWindow);

    void Read();
    /// Refused with a message box while an editor's setting is incorrect.
    void Write();

private:
    void ShowTransfer(bool isWrite);

    const ProgramState state_;
    Services& services_;
    DocumentView& view_;
    QWidget& mainWindow_;
    Backups backups_;
};

} // namespace zelvor
