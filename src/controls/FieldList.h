#pragma once

#include <QStringList>

#include "controls/WatchedList.h"

namespace zelvor {

/// A list to choose a value from. What is chosen is told at once; what is to be stored only on leaving waits for
/// FocusLeft. Enter moves on like Tab.
class FieldList : public WatchedList {
    Q_OBJECT

public:
    explicit FieldList(QWidget* parent = nullptr);

    /// Replaces the entries, with none selected. Selected is not raised.
    void SetEntries(const QStringList& entries);
    /// Shows an entry, or none for -1, without raising Selected.
    void ShowEntry(int index);

    void showPopup() override;

signals:
    /// An entry was selected, by the user or by code; also the one that was selected already, taken again by the user.
    void Selected(int index);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool silent_ = false;
    bool told_ = false; // the selection that `activated` is about to tell again
};

} // namespace zelvor
