#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QString>

namespace zelvor::tour {

class User;
class WindowThread;

/// A message box as it has to look.
struct Box {
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton;
};

/// Deals with the boxes and dialogs that come up.
class Boxes {
public:
    Boxes(WindowThread& windows, User& user) : windows_(windows), user_(user) {}

    /// Waits for a message box, whatever it says; its text.
    [[nodiscard]] QString TextOfNext();
    /// Waits for the message box and checks all of it.
    void Expect(const Box& box);
    /// Clicks a button of the message box that is up, and waits until it is gone.
    void Answer(QMessageBox::StandardButton button);

    /// Presses Enter in the message box that is up, which takes its default button, and waits until it is gone.
    void Confirm();

    /// Waits for a dialog by its object name and checks its title.
    void ExpectDialog(const QString& name, const QString& title);
    void WaitUntilGone(const QString& name);

    /// Waits for the file dialog and checks its kind, the name that it proposes and its one filter.
    void ExpectFileDialog(QFileDialog::AcceptMode mode, const QString& fileName, const QString& filter);
    /// Clicks the name in the file dialog, types a path over it and confirms it by Enter.
    void EnterPath(const QString& path);
    /// The same where the name has the keys, as it has at first.
    void TypePath(const QString& path);

private:
    void WaitForAnother(const QWidget* box);

    WindowThread& windows_;
    User& user_;
};

} // namespace zelvor::tour
