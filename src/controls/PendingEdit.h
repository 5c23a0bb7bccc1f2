#pragma once

namespace zelvor {

/// Commits what the user is just editing, as leaving the control would. Commands that read or replace the image call it
/// first: a tool bar click or a shortcut does not take the focus from an editor.
void CommitPendingEdit();

} // namespace zelvor
