#pragma once

namespace zelvor {

/// What the session's commands ask of the windows.
class DocumentWindows {
public:
    virtual ~DocumentWindows() = default;

    /// Unloads every open child window but the grid.
    virtual void UnloadEditors() = 0;
    /// Makes the grid visible, hides its editors without committing them, and places it.
    virtual void ResetGrid() = 0;
    virtual void ShowGridIfClosed() = 0;
    /// Sets the grid to its normal state, at left 0, top 0.
    virtual void PlaceGrid() = 0;
    virtual void DecodeImageToGrid() = 0;
    /// Lists the grid as the window of a new document, and moves its cursor to the first cell.
    virtual void ListNewDocument() = 0;
    /// Shows MnuWindow, and the grid's entry of the window list for channel 1 where it is hidden.
    virtual void ListGrid() = 0;
    /// Sets the main window's caption from the document.
    virtual void ShowTitle() = 0;
    /// Shows ModelTypeForm modally.
    virtual void ChooseModel() = 0;
    /// Shows CPUForm modally.
    virtual void EditMemory() = 0;
};

} // namespace zelvor
