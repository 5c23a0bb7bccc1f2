#pragma once

#include "text/Language.h"

class QDialog;
class QHBoxLayout;
class QPushButton;

namespace zelvor {

/// The three buttons of a link dialog, in one row: cmdOK (the default button), cmdCancel, cmdHelp (also F1).
struct DialogButtons {
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    QPushButton* cmdHelp;
    QHBoxLayout* row; // to be put into the dialog's layout
};

[[nodiscard]] DialogButtons MakeDialogButtons(QDialog& dialog, Language language);

} // namespace zelvor
