#include "controls/FieldList.h"

#include <QKeyEvent>

#include "controls/EnterAsTab.h"
#include "controls/FilteredLineEdit.h"

namespace zelvor {

FieldList::FieldList(QWidget* parent) : WatchedList(parent) {
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!silent_) {
            told_ = true;
            emit Selected(index);
        }
    });
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (!told_) {
            emit Selected(index);
        }
    });
}

void FieldList::SetEntries(const QStringList& entries) {
    silent_ = true;
    clear();
    addItems(entries);
    setCurrentIndex(-1);
    silent_ = false;
}

void FieldList::ShowEntry(int index) {
    silent_ = true;
    setCurrentIndex(index);
    silent_ = false;
}

void FieldList::showPopup() {
    // Only in its popup can the entry be taken that is selected already.
    told_ = false;
    WatchedList::showPopup();
}

void FieldList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        MoveOn(*this);
        return;
    }
    if (!isEditable() && !event->text().isEmpty() && TypedText(*event).isEmpty()) {
        event->ignore(); // the letter of a command finds no entry
        return;
    }
    WatchedList::keyPressEvent(event);
}

} // namespace zelvor
