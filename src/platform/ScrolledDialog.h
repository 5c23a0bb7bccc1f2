#pragma once

class QDialog;

namespace zelvor {

/// Keeps a dialog of the toolkit usable that may grow while it is up: no larger than its screen, with scroll bars for
/// what does not fit, and all of it on the screen. Does nothing for a dialog that is the system's own.
void ScrollOnScreen(QDialog& dialog);

} // namespace zelvor
