#include "tour/Boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <chrono>

#include "tour/Checks.h"
#include "tour/User.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

const QString FileDialogName = "dlgFile";

QMessageBox* BoxOnTop() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return box && box->isVisible() ? box : nullptr;
}

QFileDialog* FileDialogOnTop() {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return dialog && dialog->isVisible() ? dialog : nullptr;
}

QLineEdit* NameEditOf(const QFileDialog* dialog) {
    return dialog ? dialog->findChild<QLineEdit*>("fileNameEdit") : nullptr;
}

Box Seen(const QMessageBox& box) {
    Box seen{box.windowTitle(), box.text(), box.icon(), box.standardButtons(), QMessageBox::NoButton};
    for (QAbstractButton* button : box.buttons()) {
        const auto* push = qobject_cast<QPushButton*>(button);
        if (push && push->isDefault()) {
            seen.defaultButton = box.standardButton(button);
        }
    }
    return seen;
}

} // namespace

QString Boxes::TextOfNext() {
    constexpr std::chrono::seconds patience(30); // of a whole transfer on a busy machine
    windows_.WaitUntil(
        "a message", [] { return BoxOnTop() != nullptr; }, patience);
    return windows_.Ask([] { return BoxOnTop()->text(); });
}

void Boxes::Expect(const Box& box) {
    windows_.WaitUntil("the message \"" + box.text.toStdString() + "\"", [] { return BoxOnTop() != nullptr; });
    const Box seen = windows_.Ask([] { return Seen(*BoxOnTop()); });
    CheckEqual("text of the message box", seen.text, box.text);
    CheckEqual("title of the message box", seen.title, box.title);
    Check("icon of \"" + box.text.toStdString() + "\"", seen.icon == box.icon);
    Check("buttons of \"" + box.text.toStdString() + "\"", seen.buttons == box.buttons);
    Check("default button of \"" + box.text.toStdString() + "\"", seen.defaultButton == box.defaultButton);
}

void Boxes::Answer(QMessageBox::StandardButton button) {
    const QWidget* box = windows_.Ask([] { return static_cast<const QWidget*>(BoxOnTop()); });
    user_.ClickOn("the button of a message box", [button]() -> QWidget* {
        const QMessageBox* up = BoxOnTop();
        return up ? up->button(button) : nullptr;
    });
    WaitForAnother(box);
}

void Boxes::Confirm() {
    const QWidget* box = windows_.Ask([] { return static_cast<const QWidget*>(BoxOnTop()); });
    user_.Press(Qt::Key_Return);
    WaitForAnother(box);
}

void Boxes::WaitForAnother(const QWidget* box) {
    windows_.WaitUntil("the message box to close", [box] { return QApplication::activeModalWidget() != box; });
}

void Boxes::ExpectDialog(const QString& name, const QString& title) {
    windows_.WaitUntil("the dialog " + name.toStdString(), [&] {
        const QWidget* modal = QApplication::activeModalWidget();
        return modal && modal->isVisible() && modal->objectName() == name;
    });
    CheckEqual("title of " + name.toStdString(),
               windows_.Ask([] { return QApplication::activeModalWidget()->windowTitle(); }), title);
}

void Boxes::WaitUntilGone(const QString& name) {
    windows_.WaitUntil("the dialog " + name.toStdString() + " to close", [&] {
        const QWidget* modal = QApplication::activeModalWidget();
        return !modal || modal->objectName() != name;
    });
}

void Boxes::ExpectFileDialog(QFileDialog::AcceptMode mode, const QString& fileName, const QString& filter) {
    windows_.WaitUntil("the file dialog", [] { return FileDialogOnTop() != nullptr; });
    Check("kind of the file dialog", windows_.Ask([=] { return FileDialogOnTop()->acceptMode() == mode; }));
    CheckEqual("file name proposed", windows_.Ask([] { return NameEditOf(FileDialogOnTop())->text(); }), fileName);
    CheckEqual("file filter", windows_.Ask([] { return FileDialogOnTop()->nameFilters().join(u'|'); }), filter);
}

void Boxes::EnterPath(const QString& path) {
    user_.ClickOn("the file name", [] { return NameEditOf(FileDialogOnTop()); });
    TypePath(path);
}

void Boxes::TypePath(const QString& path) {
    user_.Press(Qt::Key_A, Qt::ControlModifier);
    user_.Type(path);
    windows_.WaitUntil("the path typed", [&] {
        const QLineEdit* edit = NameEditOf(FileDialogOnTop());
        return edit && edit->text() == path;
    });
    // The list of the completer, which takes the first Escape.
    if (windows_.Ask([] { return QApplication::activePopupWidget() != nullptr; })) {
        user_.Press(Qt::Key_Escape);
        windows_.WaitUntil("the completer's list to close",
                           [] { return QApplication::activePopupWidget() == nullptr; });
    }
    user_.Press(Qt::Key_Return);
    WaitUntilGone(FileDialogName);
}

} // namespace zelvor::tour
