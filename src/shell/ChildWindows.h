#pragma once

#include <QObject>
#include <QPointer>
#include <array>
#include <functional>
#include <string>

#include "data/Session.h"

class QMdiArea;
class QMdiSubWindow;

namespace zelvor {

class ChildForm;
class ChildFrame;
class WindowList;

enum class Arrangement { Cascade, TileHorizontally, TileVertically, Icons };

/// The child windows: one instance of each, made by its factory at first use and hosted in a frame of the area. Keeps
/// ChildOpen, the window list and the visibility of MnuWindow in step with what is opened, hidden, closed and
/// activated. A window without a factory is not part of the program: every request for it does nothing.
class ChildWindows : public QObject {
    Q_OBJECT

public:
    using Factory = std::function<ChildForm*()>;

    ChildWindows(Session& session, QMdiArea& area, WindowList& list);

    void Register(ChildWindow window, Factory factory);
    [[nodiscard]] bool IsRegistered(ChildWindow window) const;

    /// The window's form, made where it does not exist; it must be registered. Not yet shown where it is new.
    ChildForm& Load(ChildWindow window);
    [[nodiscard]] bool IsVisible(ChildWindow window) const;
    /// The form of the visible window that is active; null where there is none.
    [[nodiscard]] ChildForm* ActiveForm() const;

    /// What the Edit menu, the navigator's nodes and the channel grid do to open a window.
    void OpenChildWindow(ChildWindow window);
    void OpenNavigator();
    /// A choice in the window list.
    void GoTo(ChildWindow window);
    /// Makes the window visible and counts it as open, without a change to the window list.
    void Show(ChildWindow window);
    /// A window that is minimised or maximised is set to normal; then it moves to left 0, top 0.
    void PlaceAtOrigin(ChildWindow window);

    /// The window's own ways to close: it is no longer open, and its entry of the window list is hidden.
    void CloseByHiding(ChildWindow window);
    void CloseByUnloading(ChildWindow window);
    /// Unloads every open window but the grid, in the order told for a new document.
    void UnloadEditors();
    /// Unloads every window but the grid, also those that are only hidden; what is being edited in them is dropped.
    void DropEditors();
    /// Close All: hides what is open, and clears no ChildOpen entry.
    void CloseAll();
    /// Hides MnuWindow when nothing is open, the navigator included.
    void UpdateWindowMenu();

    /// Arranges the windows; the navigator takes no part.
    void Arrange(Arrangement arrangement);

private:
    struct Slot {
        Factory factory;
        QPointer<ChildFrame> frame;
    };

    [[nodiscard]] Slot& SlotOf(ChildWindow window) { return slots_[static_cast<std::size_t>(window)]; }
    [[nodiscard]] const Slot& SlotOf(ChildWindow window) const { return slots_[static_cast<std::size_t>(window)]; }
    [[nodiscard]] std::string ListCaption(ChildWindow window) const;
    void Connect(ChildForm& form);
    void BringToFront(ChildWindow window);
    void HideFrame(ChildWindow window);
    void Unload(ChildWindow window);
    void LeaveList(ChildWindow window);
    void OnActivated(QMdiSubWindow* frame);

    Session& session_;
    QMdiArea& area_;
    WindowList& list_;
    std::array<Slot, ChildWindowCount> slots_;
    bool keepMarks_ = false; // while a window that is open is brought forward
};

} // namespace zelvor
