#include "controls/EnterAsTab.h"

#include <QApplication>
#include <QKeyEvent>

#include "controls/FilteredLineEdit.h"

namespace zelvor {

void MoveOn(QWidget& control) {
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    QApplication::sendEvent(&control, &tab);
}

void EnterMovesOn(FilteredLineEdit& box) {
    QObject::connect(&box, &FilteredLineEdit::EnterPressed, &box, [&box] { MoveOn(box); });
}

} // namespace zelvor
