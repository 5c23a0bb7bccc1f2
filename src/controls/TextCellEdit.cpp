#include "controls/TextCellEdit.h"

#include <QScopedValueRollback>

#include "controls/CellTextEditor.h"
#include "controls/EditGrid.h"

namespace zelvor {

TextCellEdit::TextCellEdit(EditGrid& grid, CellTextEditor& editor) : QObject(&editor), grid_(grid), editor_(editor) {
    connect(&editor_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (open_) {
            grid_.SetText(row_, column_, text);
            emit Changed(text);
        }
    });
    connect(&editor_, &FilteredLineEdit::EnterPressed, this, &TextCellEdit::OnEnter);
    connect(&editor_, &FilteredLineEdit::EscapePressed, this, &TextCellEdit::OnEscape);
    connect(&editor_, &FilteredLineEdit::FocusLeft, this, &TextCellEdit::OnFocusLeft);
    // The editor does not travel with its cell.
    connect(&grid_, &EditGrid::Scrolled, this, &TextCellEdit::OnEscape);
}

void TextCellEdit::Open() {
    if (open_) {
        return;
    }
    row_ = grid_.Row();
    column_ = grid_.Column();
    CellText = grid_.Text(row_, column_);
    grid_.scrollToItem(grid_.currentItem());
    editor_.ShowOver(grid_, CellText);
    const int length = static_cast<int>(CellText.size());
    editor_.setSelection(length, -length);
    open_ = true;
}

void TextCellEdit::Drop() {
    open_ = false;
    editor_.hide();
}

void TextCellEdit::Close() {
    open_ = false;
    grid_.setFocus(); // before hiding, which would hand the focus on to the next control for a moment
    editor_.hide();
}

QString TextCellEdit::Text() const {
    return editor_.text();
}

bool TextCellEdit::IsChanged() const {
    return editor_.text() != CellText;
}

void TextCellEdit::PutText(const QString& text) {
    editor_.setText(text);
}

void TextCellEdit::OnEnter() {
    if (!open_ || telling_) {
        return;
    }
    const QScopedValueRollback<bool> telling(telling_, true);
    emit Entered();
}

void TextCellEdit::OnEscape() {
    if (!open_ || telling_) {
        return;
    }
    open_ = false;
    grid_.SetText(row_, column_, CellText);
    Close();
}

void TextCellEdit::OnFocusLeft() {
    if (!open_ || telling_) {
        return;
    }
    const QScopedValueRollback<bool> telling(telling_, true);
    emit Left();
    Drop();
    grid_.CatchFocus();
}

} // namespace zelvor
