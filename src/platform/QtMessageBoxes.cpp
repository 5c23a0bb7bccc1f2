#include "platform/QtMessageBoxes.h"

#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <memory>

#include "platform/QtDialogs.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

QMessageBox::StandardButton ButtonOf(MessageAnswer answer) {
    switch (answer) {
    case MessageAnswer::Ok:
        return QMessageBox::Ok;
    case MessageAnswer::Cancel:
        return QMessageBox::Cancel;
    case MessageAnswer::Yes:
        return QMessageBox::Yes;
    case MessageAnswer::No:
        return QMessageBox::No;
    case MessageAnswer::Retry:
        return QMessageBox::Retry;
    }
    return QMessageBox::NoButton;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::None:
        return QMessageBox::NoIcon;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

// The toolkit shows the program's name in place of an empty title.
void ShowTitle(QMessageBox& box, const QString& title) {
    box.setWindowTitle(title);
    if (title.isEmpty()) {
        box.winId(); // makes the window that has the title
        box.windowHandle()->setTitle(QStringLiteral(" "));
    }
}

void SetUp(QMessageBox& box, const Message& message) {
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setIcon(IconOf(message.icon));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(message.text).remove(u'\r'));
    for (const MessageAnswer answer : AnswersOf(message.buttons)) {
        box.addButton(ButtonOf(answer));
    }
    box.setDefaultButton(ButtonOf(DefaultOf(message)));
    box.setEscapeButton(ButtonOf(EscapeOf(message)));
    ShowTitle(box, ToQString(message.title));
}

// A box over a dialog would hide what the dialog tells of the matter: it opens below it, or above, where the screen has
// the room.
void PlaceBesideDialog(QMessageBox& box) {
    const auto* dialog = qobject_cast<const QDialog*>(box.parentWidget());
    if (!dialog || !dialog->isVisible()) {
        return;
    }
    const QRect screen = dialog->screen()->availableGeometry();
    const QRect occupied = dialog->frameGeometry();
    box.ensurePolished();
    // Some systems place the window's inside where its frame should be: room for one more frame.
    const QSize frame = occupied.size() - dialog->size();
    const QSize size = box.sizeHint() + frame * 2;
    const int left = std::clamp(occupied.left(), screen.left(), std::max(screen.left(), screen.right() - size.width()));
    if (occupied.bottom() + size.height() <= screen.bottom()) {
        box.move(left, occupied.bottom() + 1 + frame.height());
    } else if (occupied.top() - size.height() >= screen.top()) {
        box.move(left, occupied.top() - size.height() + frame.height());
    }
}

MessageAnswer AnswerOf(const QMessageBox& box, const Message& message) {
    for (const MessageAnswer answer : AnswersOf(message.buttons)) {
        if (box.clickedButton() && box.clickedButton() == box.button(ButtonOf(answer))) {
            return answer;
        }
    }
    return EscapeOf(message);
}

} // namespace

MessageAnswer QtMessageBoxes::Show(const Message& message) {
    const QPointer<QMessageBox> box = new QMessageBox(DialogParent());
    SetUp(*box, message);
    PlaceBesideDialog(*box);
    box->exec();
    if (!box) { // its parent went while it was up
        return EscapeOf(message);
    }
    const std::unique_ptr<QMessageBox> owner(box);
    return AnswerOf(*box, message);
}

} // namespace zelvor
