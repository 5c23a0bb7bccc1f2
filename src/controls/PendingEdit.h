#pragma once

class QWidget;

namespace zelvor {

/// Commits what the user is just editing, as leaving the control would. Commands that read or replace the image call it
/// first: a tool bar click or a shortcut does not take the focus from an editor.
void CommitPendingEdit();

/// For the destructor of a window whose controls commit on leaving: what is still being edited is dropped, since the
/// window is no longer there to store it.
void DropPendingEdit(const QWidget& window);

} // namespace zelvor
