#include "shell/TransferCommands.h"

#include <QObject>

#include "data/Session.h"
#include "link/ConnectForm.h"
#include "link/PreWriteChecks.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "shell/DocumentView.h"

namespace zelvor {

TransferCommands::TransferCommands(Session& session, Services& services, DocumentView& view, QWidget& mainWindow)
    : session_(session), services_(services), view_(view), mainWindow_(mainWindow) {}

void TransferCommands::Read() {
    ShowTransfer(false);
}

void TransferCommands::Write() {
    if (const auto complaint = CheckBeforeWrite(session_)) {
        services_.messages.Show(*complaint);
        return;
    }
    ShowTransfer(true);
}

void TransferCommands::ShowTransfer(bool isWrite) {
    ConnectForm dialog(session_, services_, isWrite ? TransferDirection::Write : TransferDirection::Read, &mainWindow_);
    QObject::connect(&dialog, &ConnectForm::ReadCompleted, &dialog, [this] {
        // What the editors complained of was in the document before.
        session_.OwnIdError = false;
        session_.TxCodeError = false;
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
