#pragma once

#include "controls/FilteredLineEdit.h"

namespace zelvor {

class EditGrid;

/// The text box that a grid's window lays over a cell to edit it. Hidden until it is shown over a cell.
class CellTextEditor : public FilteredLineEdit {
    Q_OBJECT

public:
    explicit CellTextEditor(QWidget* parent);

    /// Covers the grid's current cell with the text, all selected, and takes the focus.
    void ShowOver(const EditGrid& grid, const QString& text);
};

} // namespace zelvor
