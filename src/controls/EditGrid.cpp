#include "controls/EditGrid.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "controls/FilteredLineEdit.h"
#include "controls/NumbersTo.h"
#include "platform/SelectionCursor.h"

namespace zelvor {

namespace {

constexpr int HeaderPadding = 6;
constexpr double SmallestHeaderPoints = 6;

/// Cells are as narrow as their columns are told to be, so texts in their middle get no margin.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem cell(option);
        initStyleOption(&cell, index);
        constexpr QStyle::State Marks = QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver;
        if (cell.text.isEmpty() && (cell.state & Marks) == QStyle::State_None) { // as most of a grid
            painter->fillRect(cell.rect, cell.palette.brush(QPalette::Base));
            return;
        }
        cell.backgroundBrush = cell.palette.brush(QPalette::Base);
        const QString text = std::exchange(cell.text, QString());
        const QStyle* style = cell.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        const bool selected = cell.state.testFlag(QStyle::State_Selected);
        painter->setFont(cell.font);
        const int margin = cell.displayAlignment.testFlag(Qt::AlignRight) ? CellMargin : 0;
        style->drawItemText(painter, cell.rect.adjusted(0, 0, -margin, 0), static_cast<int>(cell.displayAlignment),
                            cell.palette, true, text, selected ? QPalette::HighlightedText : QPalette::Text);
    }
};

/// A header whose sizes are all told by the grid: it never measures its captions.
class FixedHeader : public QHeaderView {
public:
    using QHeaderView::QHeaderView;

protected:
    [[nodiscard]] QSize sectionSizeFromContents(int /*section*/) const override { return {1, 1}; }
    void initStyleOptionForIndex(QStyleOptionHeader* option, int index) const override {
        QHeaderView::initStyleOptionForIndex(option, index);
        if (option->orientation == Qt::Horizontal) {
            option->position = QStyleOptionHeader::Middle; // the last one, too, has a border at its right
        }
        if (option->textAlignment.testFlag(Qt::AlignRight)) {
            option->text += ' '; // as far from the edge as the cells' texts
        }
    }
};

} // namespace

EditGrid::EditGrid(int rows, int columns, QWidget* parent) : QTableWidget(parent), corner_(new QLabel(this)) {
    setHorizontalHeader(new FixedHeader(Qt::Horizontal, this));
    setVerticalHeader(new FixedHeader(Qt::Vertical, this));
    setRowCount(rows);
    setColumnCount(columns);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->setMinimumSectionSize(1);
        header->setSectionsClickable(false);
        header->setHighlightSections(false);
        header->setDefaultAlignment(Qt::AlignCenter);
    }
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            auto* item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignCenter);
            setItem(row, column, item);
        }
    }
    setItemDelegate(new CellDelegate(this));
    viewport()->setBackgroundRole(QPalette::Window); // where no cell is
    corner_->setObjectName("corner");
    corner_->setAlignment(Qt::AlignCenter);
    corner_->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(this, &QTableWidget::currentCellChanged, this,
            [this](int row, int column) { emit CursorMoved(row + 1, column + 1); });
    LetCursorFollowSelection(*this);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &EditGrid::Scrolled);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &EditGrid::Scrolled);
    setCurrentCell(0, 0);
}

void EditGrid::CatchFocus() {
    const QWidget* focus = QApplication::focusWidget();
    const bool onFrame = qobject_cast<const QMdiSubWindow*>(focus) != nullptr && focus->isAncestorOf(this);
    if (isVisible() && (focus == nullptr || onFrame)) {
        setFocus(Qt::OtherFocusReason);
    }
}

void EditGrid::SetCaptions(const QStringList& captions, const QStringList& rowCaptions) {
    corner_->setText(captions.first());
    setHorizontalHeaderLabels(captions.mid(1));
    setVerticalHeaderLabels(rowCaptions.isEmpty() ? NumbersTo(rowCount()) : rowCaptions);
}

void EditGrid::SetFormat(const QString& format) {
    const QStringList parts = format.split(';');
    const QStringList columns = parts.first().split('|');
    QStringList captions;
    for (const QString& column : columns) {
        captions.append(column.mid(1));
    }
    if (parts.size() > 1) {
        captions.first() = parts.last();
    }
    SetCaptions(captions);
    for (int column = 1; column <= columnCount(); ++column) {
        SetColumnAlignment(column,
                           columns[column].startsWith('>') ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter);
    }
}

void EditGrid::SetColumnAlignment(int column, Qt::Alignment alignment) {
    horizontalHeaderItem(column - 1)->setTextAlignment(alignment);
    for (int row = 0; row < rowCount(); ++row) {
        item(row, column - 1)->setTextAlignment(alignment);
    }
}

QString EditGrid::ColumnName(int column) const {
    const QTableWidgetItem* header = horizontalHeaderItem(column - 1);
    return header == nullptr ? QString() : header->text().trimmed();
}

Qt::Alignment EditGrid::ColumnAlignment(int column) const {
    const QTableWidgetItem* cell = item(0, column - 1);
    return cell == nullptr ? Qt::Alignment(Qt::AlignCenter) : Qt::Alignment(cell->textAlignment());
}

void EditGrid::FitCells(const std::vector<int>& widths, int ownRowHeight) {
    verticalHeader()->setFixedWidth(widths.front());
    for (int column = 0; column < columnCount(); ++column) {
        setColumnWidth(column, widths[static_cast<std::size_t>(column) + 1]);
    }
    if (ownRowHeight == 0) {
        // A rest at the right would look like a column without a caption.
        const int taken = std::accumulate(widths.begin(), widths.end(), frameWidth());
        setMask(QRect(0, 0, std::min(taken, width()), height()));
    }
    const int inner = height() - 2 * frameWidth();
    const int rowHeight = ownRowHeight > 0 ? ownRowHeight : inner / (rowCount() + 1);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    horizontalHeader()->setFixedHeight(ownRowHeight > 0 ? ownRowHeight : inner - rowHeight * rowCount());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    corner_->setGeometry(frameWidth(), frameWidth(), widths.front(), horizontalHeader()->height());
    FitHeaderFont();
}

void EditGrid::FitHeaderFont() {
    // Column widths are fixed, so the headers' font gives way: the largest one in which no caption is cut off.
    QFont fitting = font();
    const QFontMetricsF metrics(fitting);
    double scale = 1;
    const auto fit = [&metrics, &scale](const QString& caption, int width) {
        const double advance = metrics.horizontalAdvance(caption.trimmed());
        if (advance > 0) {
            scale = std::min(scale, (width - HeaderPadding) / advance);
        }
    };
    fit(corner_->text(), verticalHeader()->width());
    for (int column = 0; column < columnCount(); ++column) {
        if (const QTableWidgetItem* header = horizontalHeaderItem(column)) {
            fit(header->text(), columnWidth(column));
        }
    }
    if (scale < 1) {
        fitting.setPointSizeF(std::max(SmallestHeaderPoints, std::floor(fitting.pointSizeF() * scale * 2) / 2));
    }
    horizontalHeader()->setFont(fitting);
    corner_->setFont(fitting);
}

QString EditGrid::Text(int row, int column) const {
    const QTableWidgetItem* cell = item(row - 1, column - 1);
    return cell == nullptr ? QString() : cell->text();
}

void EditGrid::SetText(int row, int column, const QString& text) {
    if (QTableWidgetItem* cell = item(row - 1, column - 1)) {
        cell->setText(text);
    }
}

void EditGrid::MoveTo(int row, int column) {
    if (row >= 1 && row <= rowCount() && column >= 1 && column <= columnCount()) {
        setCurrentCell(row - 1, column - 1);
    }
}

void EditGrid::MoveRight() {
    MoveTo(Row(), std::min(Column() + 1, columnCount()));
}

QRect EditGrid::CellRect(int row, int column) const {
    const QPoint corner = visualRect(model()->index(row - 1, column - 1)).topLeft();
    return {viewport()->mapTo(parentWidget(), corner), QSize(columnWidth(column - 1), rowHeight(row - 1))};
}

int EditGrid::WidthBehind(int column) const {
    int width = 0;
    for (int behind = column; behind < columnCount(); ++behind) {
        width += columnWidth(behind);
    }
    return width;
}

void EditGrid::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    emit KeyPressed(event);
    if (!event->isAccepted()) {
        QTableWidget::keyPressEvent(event);
    }
}

// The toolkit asks for an input method wherever a cell could be edited by it. That would keep for itself, and for
// nothing, the letters that open our editors.
void EditGrid::focusInEvent(QFocusEvent* event) {
    QTableWidget::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void EditGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableWidget::currentChanged(current, previous);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void EditGrid::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
    QTableWidget::mousePressEvent(event);
}

void EditGrid::mouseReleaseEvent(QMouseEvent* event) {
    QTableWidget::mouseReleaseEvent(event);
    const QModelIndex released = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && released.isValid() && released == pressed_) {
        emit CellClicked(released.row() + 1, released.column() + 1);
    }
    pressed_ = QModelIndex();
}

bool IsEnterKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

QChar TypedCharacter(const QKeyEvent& event) {
    const QString text = TypedText(event);
    return text.size() == 1 ? text.front() : QChar();
}

} // namespace zelvor
