#pragma once

#include <QComboBox>

namespace zelvor {

class EditWatch;

/// A list that tells when it is left. Scrolling past it changes nothing, and it has no context menu.
class WatchedList : public QComboBox {
    Q_OBJECT

public:
    explicit WatchedList(QWidget* parent);

signals:
    /// The focus went to another control; the list's own popup, another window in front, and the menu bar, are no such
    /// thing.
    void FocusLeft();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    EditWatch* watch_;
};

} // namespace zelvor
