#include "controls/EditGrid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace zelvor {

namespace {

constexpr int HeaderPadding = 6;

int Width(const QFont& font, const QString& text) {
    return QFontMetrics(font).horizontalAdvance(text.trimmed()) + HeaderPadding;
}

/// Cells are as narrow as their columns are told to be, so texts get no margin.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem cell(option);
        initStyleOption(&cell, index);
        const QString text = std::exchange(cell.text, QString());
        const QStyle* style = cell.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        const bool selected = cell.state.testFlag(QStyle::State_Selected);
        style->drawItemText(painter, cell.rect, static_cast<int>(cell.displayAlignment), cell.palette, true, text,
                            selected ? QPalette::HighlightedText : QPalette::Text);
    }
};

} // namespace

EditGrid::EditGrid(int rows, int columns, QWidget* parent)
    : QTableWidget(rows, columns, parent), corner_(new QLabel(this)) {
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
    corner_->setAlignment(Qt::AlignCenter);
    corner_->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(this, &QTableWidget::currentCellChanged, this,
            [this](int row, int column) { emit CursorMoved(row + 1, column + 1); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &EditGrid::Scrolled);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &EditGrid::Scrolled);
    setCurrentCell(0, 0);
}

void EditGrid::SetCaptions(const QStringList& captions, const QStringList& rowCaptions) {
    corner_->setText(captions.first());
    setHorizontalHeaderLabels(captions.mid(1));
    setVerticalHeaderLabels(rowCaptions);
    FitHeaderFont();
}

void EditGrid::FitCells(const std::vector<int>& widths) {
    verticalHeader()->setFixedWidth(widths.front());
    for (int column = 0; column < columnCount(); ++column) {
        setColumnWidth(column, widths[static_cast<std::size_t>(column) + 1]);
    }
    const int inner = height() - 2 * frameWidth();
    const int rowHeight = inner / (rowCount() + 1);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    horizontalHeader()->setFixedHeight(inner - rowHeight * rowCount());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    corner_->setGeometry(frameWidth(), frameWidth(), widths.front(), horizontalHeader()->height());
    FitHeaderFont();
}

void EditGrid::FitHeaderFont() {
    // Column widths are fixed, so the headers' font gives way: the largest one in which no caption is cut off.
    QFont fitting = font();
    const auto cutOff = [this](const QFont& candidate) {
        if (Width(candidate, corner_->text()) > verticalHeader()->width()) {
            return true;
        }
        for (int column = 0; column < columnCount(); ++column) {
            const QTableWidgetItem* header = horizontalHeaderItem(column);
            if (header != nullptr && Width(candidate, header->text()) > columnWidth(column)) {
                return true;
            }
        }
        return false;
    };
    while (fitting.pointSizeF() > 6 && cutOff(fitting)) {
        fitting.setPointSizeF(fitting.pointSizeF() - 0.5);
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

void EditGrid::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    emit KeyPressed(event);
    if (!event->isAccepted()) {
        QTableWidget::keyPressEvent(event);
    }
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

} // namespace zelvor
