#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <array>
#include <string_view>

#include "controls/WindowState.h"

namespace zelvor {

/// The window list at the foot of MnuWindow: entries MnuWindowSub(0), (1) and so on, one for each window whose row has
/// a caption for it, shown while the window is open; the check mark shows the window the user last went to. Nothing is
/// done for a window that is not in the list.
class WindowList : public QObject {
    Q_OBJECT

public:
    /// Adds the entries to MnuWindow, all hidden.
    explicit WindowList(QMenu& mnuWindow);

    [[nodiscard]] bool IsShown(ChildWindow window) const;
    void Show(ChildWindow window, std::string_view caption);
    void Hide(ChildWindow window);
    void SetCaption(ChildWindow window, const QString& caption);
    void ClearMark(ChildWindow window);
    /// Sets the entry's check mark and clears that of every other visible entry.
    void Mark(ChildWindow window);

    /// MnuWindow itself.
    void SetMenuShown(bool shown);

signals:
    /// The entry of the window was chosen.
    void Chosen(ChildWindow window);

private:
    /// Null for a window that is not in the list.
    [[nodiscard]] QAction* Entry(ChildWindow window) const { return entries_[static_cast<std::size_t>(window)]; }

    QMenu& mnuWindow_;
    std::array<QAction*, ChildWindowCount> entries_{};
};

} // namespace zelvor
