#pragma once

#include <QStringList>

#include "controls/FilteredLineEdit.h"
#include "controls/WatchedList.h"

namespace zelvor {

class EditGrid;

/// The list that a grid's window lays over a cell: entries to choose from, and a text box where typing is allowed.
class CellListEditor : public WatchedList {
    Q_OBJECT

public:
    explicit CellListEditor(QWidget* parent);

    /// Covers the grid's current cell, its text placed as the cell's, and takes the focus. Where an entry would be cut
    /// off in the cell's width it is wider, but never reaches beyond the grid. Choosing an entry from code here is no
    /// choice of the user's: Chosen is not raised.
    void ShowOver(const EditGrid& grid, const QStringList& entries, const QString& text, bool typing);

    /// Enters a character as the user would.
    void Enter(const QString& text) { edit_->Enter(text); }
    void SetFilter(FilteredLineEdit::Filter filter) { edit_->SetFilter(std::move(filter)); }
    void SetEnterLetter(QChar letter) { enterLetter_ = letter; }
    [[nodiscard]] bool HasSelectedText() const { return edit_->hasSelectedText(); }
    void PutText(const QString& text);

signals:
    /// The user took an entry from the list.
    void Chosen(const QString& text);
    /// Up (-1) or Down (+1).
    void Stepped(int direction);
    /// Enter or Escape.
    void EditEnded();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// The width in which no entry is cut off.
    [[nodiscard]] int ReadableWidth() const;

    FilteredLineEdit* edit_;
    QChar enterLetter_;
};

} // namespace zelvor
