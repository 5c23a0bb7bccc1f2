#include "tour/FieldHands.h"

#include "tour/Checks.h"
#include "tour/FieldEdits.h"
#include "tour/User.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

void FieldHands::Do(const FieldEdit& edit) {
    switch (edit.kind) {
    case FieldEdit::Kind::Text:
        TypeText(edit);
        break;
    case FieldEdit::Kind::List:
        ChooseEntry(edit);
        break;
    case FieldEdit::Kind::Check:
        user_.TabTo(edit.control);
        user_.Press(Qt::Key_Space);
        user_.Press(Qt::Key_Tab);
        break;
    case FieldEdit::Kind::Cell:
        TypeIntoCell(edit);
        break;
    case FieldEdit::Kind::Look:
        CheckCell(edit);
        break;
    case FieldEdit::Kind::Page:
        user_.ClickTab(edit.control, edit.place);
        break;
    }
}

void FieldHands::TypeText(const FieldEdit& edit) {
    user_.TabTo(edit.control);
    user_.Press(Qt::Key_A, Qt::ControlModifier);
    // Typed over, not emptied first: some boxes erase more than their text when they are empty.
    if (edit.typed.isEmpty()) {
        user_.Press(Qt::Key_Backspace);
    }
    user_.Type(edit.typed);
    user_.Press(Qt::Key_Tab);
    CheckShown(edit);
}

void FieldHands::ChooseEntry(const FieldEdit& edit) {
    user_.TabTo(edit.control);
    user_.Press(Qt::Key_Home);
    for (int entry = 0; entry < edit.place; ++entry) {
        user_.Press(Qt::Key_Down);
    }
    user_.Press(Qt::Key_Tab);
    CheckShown(edit);
}

void FieldHands::TypeIntoCell(const FieldEdit& edit) {
    user_.ClickCell(edit.control, edit.place, edit.column);
    user_.Type(edit.typed); // the click has opened the cell's editor, with all of its text selected
    user_.Press(Qt::Key_Return);
    CheckCell(edit);
}

void FieldHands::CheckShown(const FieldEdit& edit) {
    if (edit.shows.isNull()) {
        return;
    }
    CheckEqual("what " + edit.control.toStdString() + " shows", windows_.Ask([&] { return TextOnTop(edit.control); }),
               edit.shows);
}

void FieldHands::CheckCell(const FieldEdit& edit) {
    CheckEqual("cell " + std::to_string(edit.place) + ", " + std::to_string(edit.column) + " of " +
                   edit.control.toStdString(),
               windows_.Ask([&] { return CellOnTop(edit.control, edit.place, edit.column); }), edit.shows);
}

} // namespace zelvor::tour
