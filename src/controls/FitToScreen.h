#pragma once

class QDialog;

namespace zelvor {

/// Keeps a dialog as large as what it holds, and no larger than its screen: what does not fit scrolls, and follows the
/// focus. Called once, when the dialog's layout is complete; its widgets then lie one level deeper.
void FitToScreen(QDialog& dialog);

} // namespace zelvor
