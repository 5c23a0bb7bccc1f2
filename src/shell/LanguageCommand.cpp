#include "shell/LanguageCommand.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <utility>

#include "controls/PendingEdit.h"
#include "shell/ChildWindows.h"
#include "shell/DocumentView.h"
#include "shell/LanguageForm.h"

namespace zelvor {

LanguageCommand::LanguageCommand(Session& session, Services& services, Windows windows)
    : session_(session), services_(services), windows_(std::move(windows)) {}

void LanguageCommand::Choose() {
    CommitPendingEdit();
    // No control keeps the focus that would commit by losing it in another language than it was filled in. The main
    // window takes it: where nothing has it, the toolkit hands it to the grid after the dialog, which raises the grid.
    const QPointer<QWidget> focus = QApplication::focusWidget();
    windows_.mainWindow.setFocus(Qt::OtherFocusReason);
    if (AskLanguage()) {
        Switch();
    }
    if (focus && focus->isVisible()) {
        focus->setFocus(Qt::OtherFocusReason);
    }
}

bool LanguageCommand::AskLanguage() {
    LanguageForm dialog(session_, services_, &windows_.mainWindow);
    dialog.exec();
    return dialog.LanguageChanged();
}

void LanguageCommand::Switch() {
    windows_.children.DropEditors();
    windows_.view.PlaceGrid();
    windows_.view.ShowTitle();
    windows_.applyMainWindowTexts();
    session_.Channels.Translate(session_.Image, session_.LanguageFlag);
}

} // namespace zelvor
