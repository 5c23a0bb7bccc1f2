#pragma once

class QAbstractItemView;

namespace zelvor {

/// Assistive technology cannot move a list's cursor nor give the list the keyboard: it selects an item. That then is as
/// good as a click. For views that select one item at a time, once their model is set.
void LetCursorFollowSelection(QAbstractItemView& view);

} // namespace zelvor
