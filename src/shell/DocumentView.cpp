#include "shell/DocumentView.h"

#include <QWidget>

#include "channels/ChannelCaption.h"
#include "channels/ChannelForm.h"
#include "data/Document.h"
#include "data/ModelCatalogue.h"
#include "features/CPUForm.h"
#include "platform/Toolkit.h"
#include "shell/ChildWindows.h"
#include "shell/ModelTypeForm.h"
#include "shell/WindowList.h"

namespace zelvor {

DocumentView::DocumentView(Document& document, WindowState& windows, Services& services, ChildWindows& children,
                           WindowList& list, QWidget& mainWindow)
    : document_(document), windows_(windows), services_(services), children_(children), list_(list),
      mainWindow_(mainWindow) {}

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
    if (!windows_.IsOpen(ChildWindow::Channels)) {
        ShowGrid();
    }
}

void DocumentView::PlaceGrid() {
    children_.PlaceAtOrigin(ChildWindow::Channels);
}

void DocumentView::DecodeImageToGrid() {
    document_.Channels.DecodeImageToGrid(document_.Image, windows_.LanguageFlag);
}

void DocumentView::ListNewDocument() {
    list_.SetMenuShown(true);
    // The cursor first: it writes the other form of the caption.
    Grid().SelectFirstCell();
    list_.Show(ChildWindow::Channels, NewDocumentChannelCaption(windows_.LanguageFlag));
}

void DocumentView::ListGrid() {
    list_.SetMenuShown(true);
    if (!list_.IsShown(ChildWindow::Channels)) {
        windows_.Cursor.SetCurrentChannel(1);
        list_.Show(ChildWindow::Channels, ChannelCaption(windows_.LanguageFlag, windows_.Cursor.CurrentChannel()));
        list_.ClearMark(ChildWindow::Channels);
    }
}

void DocumentView::ShowTitle() {
    QString title = ToQString(BuildMainTitle(document_.Image, document_.BaseName(), windows_.LanguageFlag));
    // The toolkit's mark for changed documents, where a file is named so.
    title.replace("[*]", "[*][*]");
    mainWindow_.setWindowTitle(title);
}

void DocumentView::ChooseModel() {
    ModelTypeForm dialog(document_, windows_.LanguageFlag, services_, &mainWindow_);
    dialog.exec();
}

void DocumentView::EditMemory() {
    CPUForm(document_, windows_.LanguageFlag, services_, &mainWindow_).exec();
}

void DocumentView::ResetAfterTransfer() {
    UnloadEditors();
    PlaceGrid();
}

void DocumentView::MarkGrid() {
    windows_.SetOpen(ChildWindow::Channels, true);
    list_.Mark(ChildWindow::Channels);
    ListGrid();
}

} // namespace zelvor
