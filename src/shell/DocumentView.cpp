#include "shell/DocumentView.h"

#include <QWidget>

#include "channels/ChannelForm.h"
#include "data/ModelCatalogue.h"
#include "data/Session.h"
#include "features/CPUForm.h"
#include "platform/Toolkit.h"
#include "shell/ChildWindows.h"
#include "shell/ModelTypeForm.h"
#include "shell/WindowList.h"

namespace zelvor {

DocumentView::DocumentView(Session& session, Services& services, ChildWindows& children, WindowList& list,
                           QWidget& mainWindow)
    : session_(session), services_(services), children_(children), list_(list), mainWindow_(mainWindow) {}

ChannelForm& DocumentView::Grid() {
    return static_cast<ChannelForm&>(children_.Load(ChildWindow::Channels));
}

void DocumentView::ShowGrid() {
    children_.Show(ChildWindow::Channels);
}

void DocumentView::UnloadEditors() {
    children_.UnloadEditors();
}

void DocumentView::ResetGrid() {
    ShowGrid();
    Grid().HideEditors();
    PlaceGrid();
}

void DocumentView::ShowGridIfClosed() {
    if (!session_.IsOpen(ChildWindow::Channels)) {
        ShowGrid();
    }
}

void DocumentView::PlaceGrid() {
    children_.PlaceAtOrigin(ChildWindow::Channels);
}

void DocumentView::DecodeImageToGrid() {
    session_.Channels.DecodeImageToGrid(session_.Image, session_.LanguageFlag);
}

void DocumentView::ListNewDocument() {
    list_.SetMenuShown(true);
    // The cursor first: it writes the other form of the caption.
    Grid().SelectFirstCell();
    list_.Show(ChildWindow::Channels, NewDocumentChannelCaption(session_.LanguageFlag));
}

void DocumentView::ListGrid() {
    list_.SetMenuShown(true);
    if (!list_.IsShown(ChildWindow::Channels)) {
        session_.Cursor.SetCurrentChannel(1);
        list_.Show(ChildWindow::Channels, ChannelCaption(session_.LanguageFlag, session_.Cursor.CurrentChannel()));
        list_.ClearMark(ChildWindow::Channels);
    }
}

void DocumentView::ShowTitle() {
    QString title = ToQString(BuildMainTitle(session_.Image, session_.BaseName(), session_.LanguageFlag));
    // The toolkit's mark for changed documents, where a file is named so.
    title.replace("[*]", "[*][*]");
    mainWindow_.setWindowTitle(title);
}

void DocumentView::ChooseModel() {
    ModelTypeForm dialog(session_, services_, &mainWindow_);
    dialog.exec();
}

void DocumentView::EditMemory() {
    CPUForm(session_, services_, &mainWindow_).exec();
}

void DocumentView::ResetAfterTransfer() {
    UnloadEditors();
    PlaceGrid();
}

void DocumentView::MarkGrid() {
    session_.SetOpen(ChildWindow::Channels, true);
    list_.Mark(ChildWindow::Channels);
    ListGrid();
}

} // namespace zelvor
