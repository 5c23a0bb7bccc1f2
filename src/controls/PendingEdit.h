#pragma once

class QWidget;

namespace zelvor {

/// Commits what the user is just editing in the widget's window, as leaving the control would. What reads or replaces
/// the image does it first: a tool bar click or a shortcut does not take the focus from an editor. A control whose edit
/// has to be committed so has an EditWatch.
void CommitPendingEdit(const QWidget& widget);

/// For a window that goes: what is still being edited in it is dropped.
void DropPendingEdit(const QWidget& window);

} // namespace zelvor
