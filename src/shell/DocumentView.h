#pragma once

#include "shell/DocumentWindows.h"

class QWidget;

namespace zelvor {

class ChannelForm;
class ChildWindows;
class Document;
class WindowList;
class WindowState;
struct Services;

/// The windows as the session's commands see them.
class DocumentView : public DocumentWindows {
public:
    DocumentView(Document& document, WindowState& windows, Services& services, ChildWindows& children, WindowList& list,
                 QWidget& mainWindow);

    void UnloadEditors() override;
    void ResetGrid() override;
    void ShowGridIfClosed() override;
    void PlaceGrid() override;
    void DecodeImageToGrid() override;
    void ListNewDocument() override;
    void ListGrid() override;
    void ShowTitle() override;
    void ChooseModel() override;
    void EditMemory() override;

    /// What a transfer that got under way leaves of the windows: no editor open, the grid at its place.
    void ResetAfterTransfer();
    /// Every end of a transfer leaves the grid listed and current.
    void MarkGrid();
    /// The channel grid, made where it does not exist.
    [[nodiscard]] ChannelForm& Grid();
    void ShowGrid();

private:
    Document& document_;
    WindowState& windows_;
    Services& services_;
    ChildWindows& children_;
    WindowList& list_;
    QWidget& mainWindow_;
};

} // namespace zelvor
