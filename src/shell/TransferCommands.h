#pragma once

#include "shell/ProgramState.h"

class QWidget;

namespace zelvor {

class DocumentView;
struct Services;

/// Read from Radio and Write to Radio.
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
};

} // namespace zelvor
