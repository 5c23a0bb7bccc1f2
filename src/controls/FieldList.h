#pragma once

#include <QComboBox>
#include <QStringList>

namespace zelvor {

class EditWatch;

/// A list to choose a value from. What is chosen is told at once; what is to be stored only on leaving waits for
/// FocusLeft. Enter moves on like Tab.
class FieldList : public QComboBox {
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
    /// The focus went to another control; the list's own popup, another window in front, and the menu bar, are no such
    /// thing.
    void FocusLeft();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    EditWatch* watch_;
    bool silent_ = false;
    bool told_ = false; // the selection that `activated` is about to tell again
};

} // namespace zelvor
