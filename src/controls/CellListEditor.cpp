#include "controls/CellListEditor.h"

#include <QKeyEvent>
#include <QProxyStyle>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "controls/EditGrid.h"

namespace zelvor {

namespace {

constexpr int EditMargin = 2; // the toolkit's own, on either side of a text box's text
constexpr int CaretWidth = 1;

/// A list as low as a row: without a frame round it, and its text box as high as the list itself.
class InCellStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                       const QWidget* widget) const override {
        const QRect place = QProxyStyle::subControlRect(control, option, part, widget);
        if (control != CC_ComboBox || part != SC_ComboBoxEditField) {
            return place;
        }
        return {option->rect.topLeft(), QPoint(place.right(), option->rect.bottom())};
    }
};

} // namespace

CellListEditor::CellListEditor(QWidget* parent) : WatchedList(parent), edit_(new FilteredLineEdit) {
    setLineEdit(edit_);
    auto* inCell = new InCellStyle;
    inCell->setParent(this);
    setStyle(inCell); // behind the text box: by it the list below is made as that of an editable one
    setFrame(false);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setMaxVisibleItems(12);
    connect(this, &QComboBox::activated, this, [this](int index) { emit Chosen(itemText(index)); });
    hide();
}

void CellListEditor::ShowOver(const EditGrid& grid, const QStringList& entries, const QString& text, bool typing) {
    const QRect cell = grid.CellRect(grid.Row(), grid.Column());
    const QString column = grid.ColumnName(grid.Column());
    setAccessibleName(column);
    edit_->setAccessibleName(column);
    setAccessibleDescription(column); // some systems name a list by its value
    clear();
    addItems(entries);
    PutText(text);
    edit_->setReadOnly(!typing);
    edit_->setAlignment(grid.ColumnAlignment(grid.Column()));
    const int width = std::max(cell.width(), ReadableWidth());
    const int rightmost = cell.x() + cell.width() + grid.WidthBehind(grid.Column()) - width;
    setGeometry(std::min(cell.x(), rightmost), cell.y(), width, cell.height());
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
    if (!enterLetter_.isNull() && TypedText(*event) == enterLetter_) {
        emit EditEnded();
        event->accept();
        return;
    }
    WatchedList::keyPressEvent(event);
}

} // namespace zelvor
