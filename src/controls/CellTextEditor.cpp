#include "controls/CellTextEditor.h"

#include "controls/EditGrid.h"

namespace zelvor {

namespace {

constexpr int FrameMargin = 2; // the toolkit's own, right of a text box's text

} // namespace

CellTextEditor::CellTextEditor(QWidget* parent) : FilteredLineEdit(parent) {
    setFrame(false);
    // The grid is the stop of the Tab key. For a control whose focus proxy the editor is, it would be one, also while
    // it is hidden: a stop that nothing leaves.
    setFocusPolicy(Qt::ClickFocus);
    hide();
}

void CellTextEditor::ShowOver(const EditGrid& grid, const QString& text) {
    setAccessibleName(grid.ColumnName(grid.Column()));
    const Qt::Alignment alignment = grid.ColumnAlignment(grid.Column());
    setAlignment(alignment);
    setTextMargins(0, 0, alignment.testFlag(Qt::AlignRight) ? CellMargin - FrameMargin : 0, 0);
    setGeometry(grid.CellRect(grid.Row(), grid.Column()));
    setText(text);
    setEnabled(true);
    show();
    raise();
    setFocus();
    selectAll();
}

} // namespace zelvor
