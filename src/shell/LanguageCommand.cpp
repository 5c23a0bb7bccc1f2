#include "shell/LanguageCommand.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "shell/ChildWindows.h"
#include "shell/DocumentView.h"
#include "shell/LanguageForm.h"

namespace zelvor {

LanguageCommand::LanguageCommand(Session& session, Services& services, ChildWindows& children, DocumentView& view,
                                 QWidget& mainWindow)
    : session_(session), services_(services), children_(children), view_(view), mainWindow_(mainWindow) {}

void LanguageCommand::Choose() {
    // No control keeps the focus that would commit by losing it in another language than it was filled in. The main
    // window takes it: where nothing has it, the toolkit hands it to the grid after the dialog, which raises the grid.
    const QPointer<QWidget> focus = QApplication::focusWidget();
    mainWindow_.setFocus(Qt::OtherFocusReason);
    if (AskLanguage()) {
        Switch();
    }
    if (focus && focus->isVisible()) {
        focus->setFocus(Qt::OtherFocusReason);
    }
}

bool LanguageCommand::AskLanguage() {
    LanguageForm dialog(session_, services_, &mainWindow_);
    dialog.exec();
    return dialog.LanguageChanged();
}

void LanguageCommand::Switch() {
    children_.DropEditors();
    view_.PlaceGrid();
    view_.ShowTitle();
    emit Switched();
    session_.Channels.Translate(session_.Image, session_.LanguageFlag);
}

} // namespace zelvor
