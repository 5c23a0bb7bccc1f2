#include "platform/QtMessageBoxes.h"

#include <QMessageBox>
#include <QPointer>
#include <QWindow>
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
    box->exec();
    if (!box) { // its parent went while it was up
        return EscapeOf(message);
    }
    const std::unique_ptr<QMessageBox> owner(box);
    return AnswerOf(*box, message);
}

} // namespace zelvor
