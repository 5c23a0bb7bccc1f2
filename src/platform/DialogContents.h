#pragma once

#include <QScrollArea>

class QDialog;

namespace zelvor {

/// What a dialog holds, on a panel that scrolls where the dialog is smaller. How large the panel and the dialog are to
/// be is for those who derive from it; both are told to its event filter.
class DialogContents : public QScrollArea {
public:
    /// Takes the layout of the dialog, which has to be complete, and fills the dialog: its widgets then lie deeper.
    explicit DialogContents(QDialog& dialog);

protected:
    [[nodiscard]] QWidget& Panel() const { return *widget(); }
};

} // namespace zelvor
