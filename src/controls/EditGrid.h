#pragma once

#include <QStringList>
#include <QTableWidget>
#include <vector>

class QLabel;

namespace zelvor {

/// A table of texts whose row 0 and column 0 are its headers: rows and columns of the data count from 1, as the windows
/// speak of them. It edits nothing itself; a window lays its cell editor over the current cell (see CellTextEditor).
class EditGrid : public QTableWidget {
    Q_OBJECT

public:
    EditGrid(int rows, int columns, QWidget* parent = nullptr);

    /// captions: the corner, then one a column. rowCaptions: one a row; without them the rows are numbered from 1.
    /// FitCells has to follow.
    void SetCaptions(const QStringList& captions, const QStringList& rowCaptions = {});
    /// Captions from a table format: one a column between "|", the corner's first unless a ";" and the corner's own
    /// follow. A caption's first character places it and its column's cells: "^" in the middle, ">" at the right.
    void SetFormat(const QString& format);
    /// Widths in logical pixels: the header column's, then one a column. The height is shared out among header and
    /// rows, and nothing is shown behind the last column, unless rows have a height of their own: then they scroll.
    void FitCells(const std::vector<int>& widths, int ownRowHeight = 0);

    /// Takes the keyboard where an editor's end has left it to nothing but the frame round the window.
    void CatchFocus();

    [[nodiscard]] QString Text(int row, int column) const;
    void SetText(int row, int column, const QString& text);
    [[nodiscard]] int Row() const { return currentRow() + 1; }
    [[nodiscard]] int Column() const { return currentColumn() + 1; }
    /// Moves the cursor; does nothing outside the table.
    void MoveTo(int row, int column);
    /// One cell to the right, staying in the row's last column.
    void MoveRight();
    /// A column's caption without the blanks round it.
    [[nodiscard]] QString ColumnName(int column) const;
    /// How the texts of a column lie in their cells.
    [[nodiscard]] Qt::Alignment ColumnAlignment(int column) const;
    /// The cell's rectangle in the coordinates of the grid's parent.
    [[nodiscard]] QRect CellRect(int row, int column) const;
    /// The width of the columns behind this one.
    [[nodiscard]] int WidthBehind(int column) const;

signals:
    void CursorMoved(int row, int column);
    /// Left button, released on the cell it was pressed on; the cursor is there already.
    void CellClicked(int row, int column);
    /// A key that opens an editor may take the event by accepting it; what is left moves the cursor.
    void KeyPressed(QKeyEvent* event);
    void Scrolled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    /// Typing never searches the table: it opens an editor or does nothing.
    void keyboardSearch(const QString& /*search*/) override {}

private:
    void FitHeaderFont();
    void SetColumnAlignment(int column, Qt::Alignment alignment);

    QLabel* corner_; // caption of column 0, over the headers' corner
    QModelIndex pressed_;
};

/// What a key pressed on a grid asks for: Enter of either block, or one character typed without a command key. The
/// numeric pad's decimal key is a point, whatever is printed on it.
[[nodiscard]] bool IsEnterKey(const QKeyEvent& event);
[[nodiscard]] QChar TypedCharacter(const QKeyEvent& event); // null for any other key

/// The distance of a text that lies at the right of its cell from the cell's edge, in logical pixels.
inline constexpr int CellMargin = 6;

} // namespace zelvor
