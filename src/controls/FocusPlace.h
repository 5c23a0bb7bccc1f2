#pragma once

#include <QRect>
#include <QWidget>

class QScrollBar;

namespace zelvor {

/// What is to be seen of a control that has the keyboard, in the coordinates of a widget that it lies on.
struct FocusPlace {
    /// The control itself: of a list or a table the current item, of tabs the current one, of a check box its text.
    QRect control;
    /// The same with what tells its meaning: its label; in a table's first row and column the captions.
    QRect whole;

    [[nodiscard]] FocusPlace Translated(QPoint offset) const {
        return {control.translated(offset), whole.translated(offset)};
    }
};

/// ancestor: any widget that the control lies on, however deep.
[[nodiscard]] FocusPlace FocusPlaceOf(const QWidget& control, const QWidget& ancestor);

/// Moves the bars of a view of that size until the place, told in the view's coordinates, can be seen: as much of the
/// whole as there is room for, and all of the control; of a control larger than the view its start, unless it fills
/// half of the view already. Returns by how much the contents have moved.
QPoint BringIntoView(QScrollBar& horizontal, QScrollBar& vertical, QSize view, const FocusPlace& place);

} // namespace zelvor
