#pragma once

#include <QAction>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "controls/WindowState.h"
#include "data/Document.h"
#include "fakes/FakeServices.h"
#include "link/LinkState.h"
#include "service/ServiceState.h"
#include "shell/MDIForm1.h"
#include "shell/SessionCommands.h"

namespace zelvor {

/// A main window over fake services, shown and active.
class ShellTest : public testing::Test {
protected:
    [[nodiscard]] ProgramState State() { return {document, windows, link, service}; }
    void OpenMainWindow();
    /// With the language flag of an earlier run set.
    void OpenMainWindowInChinese();

    [[nodiscard]] QAction* Entry(const std::string& name) const;
    [[nodiscard]] QString TextOf(const std::string& entry) const { return Entry(entry)->text(); }
    /// Chooses a visible menu entry with the mouse.
    void Choose(const std::string& name);
    /// Clicks a toolbar button.
    void ClickToolbar(int index);
    /// As Choose, for entries that show a modal dialog: whileUp gets it once it is shown.
    void ChooseDialog(const std::string& name, const std::function<void(QWidget&)>& whileUp);

    [[nodiscard]] const SessionCommands& Commands() const { return window->DocumentCommands(); }

    template<class Widget>
    [[nodiscard]] Widget* Find(const char* name) const {
        return window->findChild<Widget*>(QString::fromLatin1(name));
    }
    /// The child window of that class name, null where it is not loaded.
    [[nodiscard]] QWidget* Child(const char* name) const { return Find<QWidget>(name); }
    [[nodiscard]] bool IsChildShown(const char* name) const;
    /// Opens all windows of the menus Edit and View, one after the other, and each page of each.
    void VisitChildWindows(const std::function<void(QWidget& form)>& visit) const;
    /// Sends the close button's event to the child window's frame.
    void CloseFrame(const char* name) const;
    void ClickButton(const char* child, const char* button) const;

    /// Takes every byte of the image to a value of its own, but leaves the model bytes.
    void FillImage();

    FakeServices fakes;
    Document document;
    WindowState windows;
    LinkState link;
    ServiceState service;
    std::unique_ptr<MDIForm1> window;
};

/// Clicks a button of a dialog.
void Click(QWidget& dialog, const char* button);

} // namespace zelvor
