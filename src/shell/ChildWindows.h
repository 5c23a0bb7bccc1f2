#pragma once

#include <QObject>
#include <QPointer>
#include <array>
#include <functional>

#include "controls/WindowState.h"

class QMdiArea;
class QMdiSubWindow;

namespace zelvor {

class ChildForm;
class ChildFrame;
class WindowList;
struct ChildWindowRow;

enum class Arrangement { Cascade, TileHorizontally, TileVertically, Icons };

/// The child windows: one instance of each, made at first use and hosted in a frame of the area. Keeps what is open,
/// the window list and the visibility of MnuWindow in step with what is opened, hidden, closed and activated.
class ChildWindows : public QObject {
    Q_OBJECT

public:
    /// Makes the form of a row's window.
    using Factory = std::function<ChildForm*(const ChildWindowRow& row)>;

    ChildWindows(WindowState& windows, QMdiArea& area, WindowList& list, Factory make);

    /// The window's form, made where it does not exist. Not yet shown where it is new.
    ChildForm& Load(ChildWindow window);
    [[nodiscard]] bool IsVisible(ChildWindow window) const;
    /// The form of the visible window that is active; null where there is none.
    [[nodiscard]] ChildForm* ActiveForm() const;

    /// What the menus, the navigator's nodes and the channel grid do to open a window.
    void OpenChildWindow(ChildWindow window);
    /// A choice in the window list.
    void GoTo(ChildWindow window);
    /// Makes the window visible and counts it as open, without a change to the window list.
    void Show(ChildWindow window);
    /// A window that is minimised or maximised is set to normal; then it moves to left 0, top 0.
    void PlaceAtOrigin(ChildWindow window);

    /// The window's own ways to close: it is no longer open, and its entry of the window list is hidden.
    void CloseByHiding(ChildWindow window);
    void CloseByUnloading(ChildWindow window);
    /// Unloads every open window that does not outlive its document, as the grid does, in the order of the rows.
    void UnloadEditors();
    /// The same for those that are only hidden, too; what is being edited in them is dropped.
    void DropEditors();
    /// Close All: hides what is open, and all of it still counts as open.
    void CloseAll();
    /// Hides MnuWindow when nothing is open, the navigator included.
    void UpdateWindowMenu();

    /// Arranges the windows; the navigator takes no part.
    void Arrange(Arrangement arrangement);

private:
    [[nodiscard]] ChildFrame* FrameOf(ChildWindow window) const;
    void ListAsOpened(const ChildWindowRow& row);
    void Connect(ChildForm& form);
    void BringToFront(ChildWindow window);
    void HideFrame(ChildWindow window);
    void Unload(ChildWindow window);
    void LeaveList(ChildWindow window);
    void OnActivated(QMdiSubWindow* frame);

    WindowState& windows_;
    QMdiArea& area_;
    WindowList& list_;
    const Factory make_;
    std::array<QPointer<ChildFrame>, ChildWindowCount> frames_;
    bool keepMarks_ = false; // while a window that is open is brought forward
};

} // namespace zelvor
