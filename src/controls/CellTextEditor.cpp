#include "controls/CellTextEditor.h"

#include "controls/EditGrid.h"

namespace zelvor {

CellTextEditor::CellTextEditor(QWidget* parent) : FilteredLineEdit(parent) {
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    setTextMargins(0, 0, 0, 0);
    hide();
}

void CellTextEditor::ShowOver(const EditGrid& grid, const QString& text) {
    setGeometry(grid.CellRect(grid.Row(), grid.Column()));
    setText(text);
    setEnabled(true);
    show();
    raise();
    setFocus();
    selectAll();
}

} // namespace zelvor
