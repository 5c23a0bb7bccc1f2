#include "controls/CellListEditor.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>

#include "controls/EditGrid.h"
#include "controls/PendingEdit.h"

namespace zelvor {

namespace {

constexpr int EditMargin = 2; // the toolkit's own, on either side of a text box's text
constexpr int CaretWidth = 1;

} // namespace

CellListEditor::CellListEditor(QWidget* parent) : QComboBox(parent), edit_(new FilteredLineEdit) {
    setLineEdit(edit_);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setMaxVisibleItems(12);
    connect(this, &QComboBox::activated, this, [this](int index) { emit Chosen(itemText(index)); });
    hide();
}

void CellListEditor::ShowOver(const EditGrid& grid, const QStringList& entries, const QString& text, bool typing) {
    const QRect cell = grid.CellRect(grid.Row(), grid.Column());
    setAccessibleName(grid.ColumnName(grid.Column()));
    clear();
    addItems(entries);
    PutText(text);
    edit_->setReadOnly(!typing);
    setGeometry(cell.x(), cell.y(), std::max(cell.width(), ReadableWidth()), sizeHint().height());
    setEnabled(true);
    show();
    raise();
    setFocus();
    edit_->selectAll();
}

int CellListEditor::ReadableWidth() const {
    int text = 0;
    for (int i = 0; i < count(); ++i) {
        text = std::max(text, fontMetrics().horizontalAdvance(itemText(i)));
    }
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return text + 2 * EditMargin + CaretWidth + width() - field.width();
}

void CellListEditor::PutText(const QString& text) {
    setCurrentIndex(findText(text));
    edit_->setText(text);
}

void CellListEditor::keyPressEvent(QKeyEvent* event) {
    const bool opensList = event->modifiers().testFlag(Qt::AltModifier);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        emit EditEnded();
        event->accept();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (!opensList) {
            emit Stepped(event->key() == Qt::Key_Up ? -1 : 1);
            event->accept();
            return;
        }
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        event->accept();
        return;
    default:
        break;
    }
    if (!enterLetter_.isNull() && event->text() == enterLetter_) {
        emit EditEnded();
        event->accept();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void CellListEditor::wheelEvent(QWheelEvent* event) {
    // Scrolling past an open editor must not change a channel.
    event->ignore();
}

void CellListEditor::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    // Opening the list gives the focus to the list's own window, in two steps with two reasons.
    if (event->reason() != Qt::PopupFocusReason && !view()->isVisible() &&
        IsLeft(*this, *event, [this] { emit FocusLeft(); })) {
        emit FocusLeft();
    }
}

} // namespace zelvor
