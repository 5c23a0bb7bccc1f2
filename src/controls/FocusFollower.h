#pragma once

#include <QObject>

#include "controls/FocusPlace.h"

namespace zelvor {

/// Follows the keyboard over a panel that scrolls: tells what is to be seen whenever a control of the panel gets the
/// keyboard, or the cursor moves in the table, list or tabs that have it. Not while a mouse button is down: what the
/// mouse is on stays under it.
class FocusFollower : public QObject {
    Q_OBJECT

public:
    /// Belongs to the panel.
    explicit FocusFollower(QWidget& panel);

signals:
    /// In the panel's coordinates.
    void Moved(const FocusPlace& place);

private:
    void OnFocusMoved(QWidget* now);
    void Tell(const QWidget& control);

    const QWidget& panel_;
    QMetaObject::Connection cursor_;
};

} // namespace zelvor
