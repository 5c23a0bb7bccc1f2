#include "shell/TransferCommands.h"

#include <QObject>

#include "controls/WindowState.h"
#include "data/Document.h"
#include "link/ConnectForm.h"
#include "link/PreWriteChecks.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "shell/DocumentView.h"

namespace zelvor {

TransferCommands::TransferCommands(const ProgramState& state, Services& services, DocumentView& view,
                                   QWidget& mainWindow)
    : state_(state), services_(services), view_(view), mainWindow_(mainWindow),
      backups_(services.store, services.backups, services.clock) {}

void TransferCommands::Read() {
    ShowTransfer(false);
}

void TransferCommands::Write() {
    if (const auto complaint = CheckBeforeWrite(state_.document, state_.windows.LanguageFlag)) {
        services_.messages.Show(*complaint);
        return;
    }
    ShowTransfer(true);
}

void TransferCommands::ShowTransfer(bool isWrite) {
    ConnectForm dialog(state_.document, state_.link, state_.windows.LanguageFlag, services_,
                       isWrite ? TransferDirection::Write : TransferDirection::Read, &mainWindow_);
    if (isWrite) {
        QObject::connect(&dialog, &ConnectForm::Confirmed, &dialog,
                         [this] { backups_.Keep(state_.document.Image, BackupDirection::Write); });
    }
    // When the radio waits for nothing any more and the user has seen that all is read.
    QObject::connect(&dialog, &ConnectForm::ReadCompleted, &dialog, [this] {
        backups_.Keep(state_.document.Image, BackupDirection::Read);
        // What the editors complained of was in the document before.
        state_.document.Flags.Clear();
        view_.DecodeImageToGrid();
        view_.ShowTitle();
    });
    QObject::connect(&dialog, &ConnectForm::Unloaded, &dialog, [this](bool cancelPressed) {
        if (!cancelPressed) {
            view_.ResetAfterTransfer();
        }
        view_.MarkGrid();
    });
    dialog.exec();
    view_.ShowGrid();
}

} // namespace zelvor
