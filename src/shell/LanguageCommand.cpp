#include "shell/LanguageCommand.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "data/Document.h"
#include "shell/ChildWindows.h"
#include "shell/DocumentView.h"
#include "shell/LanguageForm.h"

namespace zelvor {

LanguageCommand::LanguageCommand(Document& document, WindowState& windows, Services& services, ChildWindows& children,
                                 DocumentView& view, QWidget& mainWindow)
    : document_(document), windows_(windows), services_(services), children_(children), view_(view),
      mainWindow_(mainWindow) {}

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
    LanguageForm dialog(windows_, services_, &mainWindow_);
    dialog.exec();
    return dialog.LanguageChanged();
}

void LanguageCommand::Switch() {
    children_.DropEditors();
    view_.PlaceGrid();
    view_.ShowTitle();
    emit Switched();
    document_.Channels.Translate(document_.Image, windows_.LanguageFlag);
}

} // namespace zelvor
