#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <array>
#include <optional>
#include <string_view>

#include "data/Session.h"

namespace zelvor {

inline constexpr int WindowListSize = 9;

/// The entry of the window list that belongs to a window: 0 to 8; the navigator has none.
[[nodiscard]] std::optional<int> WindowListEntry(ChildWindow window);
/// The window of an entry, 0 to 8.
[[nodiscard]] ChildWindow WindowOfListEntry(int entry);

/// The window list at the foot of MnuWindow: entries MnuWindowSub(0) to MnuWindowSub(8), one per window, shown while
/// the window is open; the check mark shows the window the user last went to. Entries are numbered 0 to 8.
class WindowList : public QObject {
    Q_OBJECT

public:
    /// Adds the entries to MnuWindow, all hidden.
    explicit WindowList(QMenu& mnuWindow);

    [[nodiscard]] bool IsShown(int entry) const;
    void Show(int entry, std::string_view caption);
    void Hide(int entry);
    void SetCaption(int entry, const QString& caption);
    void ClearMark(int entry);
    /// Sets the entry's check mark and clears that of every other visible entry.
    void Mark(int entry);

    /// MnuWindow itself.
    void SetMenuShown(bool shown);

signals:
    /// An entry was chosen.
    void Chosen(int entry);

private:
    [[nodiscard]] QAction& Entry(int entry) const { return *entries_[static_cast<std::size_t>(entry)]; }

    QMenu& mnuWindow_;
    std::array<QAction*, WindowListSize> entries_{};
};

} // namespace zelvor
