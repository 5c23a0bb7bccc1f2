#pragma once

class QWidget;

namespace zelvor {

class FilteredLineEdit;

/// Moves the focus on from a control as the Tab key does.
void MoveOn(QWidget& control);

/// Enter in the box moves on like Tab.
void EnterMovesOn(FilteredLineEdit& box);

} // namespace zelvor
