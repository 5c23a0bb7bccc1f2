#pragma once

#include <QObject>
#include <QString>

namespace zelvor {

class CellTextEditor;
class EditGrid;

/// The edit of one cell with a text box over it: what is typed shows in the cell at once; Escape, and scrolling the
/// grid, bring the cell's own text back. The window of the grid opens it, and stores what was entered when a signal
/// asks for it.
class TextCellEdit : public QObject {
    Q_OBJECT

public:
    /// Belongs to the editor.
    TextCellEdit(EditGrid& grid, CellTextEditor& editor);

    /// Opens over the grid's current cell: its text selected, the caret at the start. Does nothing while it is open.
    void Open();
    /// Hides the editor without a signal; the cell keeps what it shows.
    void Drop();
    /// The same, and the focus goes to the grid.
    void Close();

    [[nodiscard]] bool IsOpen() const { return open_; }
    /// The cell that is edited, or was last.
    [[nodiscard]] int Row() const { return row_; }
    [[nodiscard]] int Column() const { return column_; }
    [[nodiscard]] QString Text() const;
    /// Whether the text differs from the cell's at opening.
    [[nodiscard]] bool IsChanged() const;
    /// Replaces the text, in the cell too; the caret goes behind it.
    void PutText(const QString& text);

signals:
    /// The text was changed, by key, paste or code; the cell shows it already. Neither opening nor Escape raises it.
    void Changed(const QString& text);
    /// Enter: who listens stores the text and closes the edit.
    void Entered();
    /// The focus went elsewhere; the editor is hidden after the signal.
    void Left();

private:
    void OnEnter();
    void OnEscape();
    void OnFocusLeft();

    EditGrid& grid_;
    CellTextEditor& editor_;
    int row_ = 1;
    int column_ = 1;
    QString CellText; // the cell's text on opening
    bool open_ = false;
    bool telling_ = false; // a message box of the listener takes the focus, which is no leaving of the editor
};

} // namespace zelvor
