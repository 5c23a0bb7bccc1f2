#pragma once

#include <functional>

class QFocusEvent;
class QWidget;

namespace zelvor {

/// Commits what the user is just editing, as leaving the control would. Commands that read or replace the image call it
/// first: a tool bar click or a shortcut does not take the focus from an editor.
void CommitPendingEdit();

/// For the focusOutEvent of a control that commits when it is left: whether it is left now. It is not where another
/// program or window only comes to the front, or the keyboard goes to the menu bar: the edit goes on when it is back.
/// Until then CommitPendingEdit ends it by calling leave.
[[nodiscard]] bool IsLeft(QWidget& control, const QFocusEvent& event, std::function<void()> leave);
/// For its focusInEvent: whether an edit goes on.
[[nodiscard]] bool GoesOn(const QWidget& control);

/// For the destructor of a window whose controls commit on leaving: what is still being edited is dropped, since the
/// window is no longer there to store it.
void DropPendingEdit(const QWidget& window);

} // namespace zelvor
