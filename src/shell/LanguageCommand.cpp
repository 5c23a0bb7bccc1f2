#include "shell/LanguageCommand.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "channels/ChannelForm.h"
#include "channels/ChannelWindows.h"
#include "shell/ChildWindows.h"
#include "shell/DocumentView.h"
#include "shell/LanguageForm.h"

namespace zelvor {

LanguageCommand::LanguageCommand(Session& session, Services& services, ChildWindows& children, DocumentView& view,
                                 const ChannelWindows& channels, QWidget& mainWindow)
    : session_(session), services_(services), children_(children), view_(view), channels_(channels),
      mainWindow_(mainWindow) {}

void LanguageCommand::Choose() {
    // No control keeps the focus that would commit by losing it in another language than it was filled in. The main
    // window takes it: where nothing has it, the toolkit hands it to the grid after the dialog, which raises the grid.
    const QPointer<QWidget> focus = QApplication::focusWidget();
    mainWindow_.setFocus(Qt::OtherFocusReason);
    LanguageForm(session_, services_, &mainWindow_).exec();
    if (session_.LanguageChanged) {
        Switch();
    }
    if (focus && focus->isVisible()) {
        focus->setFocus(Qt::OtherFocusReason);
    }
}

void LanguageCommand::Switch() {
    children_.DropEditors();
    view_.PlaceGrid();
    view_.ShowTitle();
    emit Switched();
    // A grid that was unloaded is made in the current language.
    if (ChannelForm* grid = channels_.grid) {
        grid->SwitchLanguage();
    }
}

} // namespace zelvor
