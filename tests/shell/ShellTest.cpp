#include "shell/ShellTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QWindow>
#include <array>
#include <utility>

namespace zelvor {

namespace {

constexpr std::array ChildEntries{std::pair{"ChannelForm", "MnuEditChannelInformation"},
                                  std::pair{"OptionalForm", "MnuEditOptionalFeatures"},
                                  std::pair{"KeyAssign", "MnuEditKeyAssignment"},
                                  std::pair{"ScanForm", "MnuEditScanInformation"},
                                  std::pair{"DTMFForm", "MnuEditDTMF"},
                                  std::pair{"CorvaneForm", "MnuEditCorvane"},
                                  std::pair{"TestChannelForm", "MnuEditTestFrequency"},
                                  std::pair{"EmbedInfoForm", "MnuEditEmbeddedMessage"},
                                  std::pair{"TreeViewForm", "MnuViewTreeView"}};

/// Clicks as the window system does: the toolkit finds who gets it, and an open menu follows the pointer there.
void ClickInWindow(const QWidget& widget, const QPoint& place) {
    QWindow* top = widget.window()->windowHandle();
    const QPoint point = widget.mapTo(widget.window(), place);
    QTest::mouseMove(top, point);
    QTest::mouseClick(top, Qt::LeftButton, {}, point);
}

} // namespace

void ShellTest::OpenMainWindow() {
    window = std::make_unique<MDIForm1>(State(), fakes.Get());
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

void ShellTest::OpenMainWindowInChinese() {
    fakes.settings.Preset("LastModel", "50:34:36:31:38:01:F8:FF");
    fakes.settings.Preset("Language", "1");
    OpenMainWindow();
}

QAction* ShellTest::Entry(const std::string& name) const {
    return window->findChild<QAction*>(QString::fromStdString(name));
}

void ShellTest::Choose(const std::string& name) {
    QAction* entry = Entry(name);
    ASSERT_NE(entry, nullptr) << name;
    for (QAction* title : window->menuBar()->actions()) {
        QMenu* menu = title->menu();
        if (!menu->actions().contains(entry)) {
            continue;
        }
        ASSERT_TRUE(title->isVisible() && entry->isVisible() && entry->isEnabled()) << name;
        ClickInWindow(*window->menuBar(), window->menuBar()->actionGeometry(title).center());
        ASSERT_TRUE(menu->isVisible()) << name;
        ClickInWindow(*menu, menu->actionGeometry(entry).center());
        return;
    }
    FAIL() << name << " is in no menu";
}

void ShellTest::ClickToolbar(int index) {
    auto* button = window->findChild<QToolButton*>(QStringLiteral("Toolbar1(%1)").arg(index));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
}

void ShellTest::ChooseDialog(const std::string& name, const std::function<void(QWidget&)>& whileUp) {
    bool wasShown = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible()) {
            return; // the menu is still open
        }
        poll.stop();
        wasShown = true;
        whileUp(*dialog);
        if (QWidget* left = QApplication::activeModalWidget()) {
            ADD_FAILURE() << "The dialog of " << name << " was left open";
            left->close();
        }
    });
    poll.start();
    Choose(name);
    EXPECT_TRUE(wasShown) << name;
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

bool ShellTest::IsChildShown(const char* name) const {
    const QWidget* child = Child(name);
    return child != nullptr && child->isVisible();
}

void ShellTest::VisitChildWindows(const std::function<void(QWidget& form)>& visit) const {
    for (const auto& [name, entry] : ChildEntries) {
        Entry(entry)->trigger();
        QCoreApplication::processEvents();
        QWidget& form = *Child(name);
        auto* tabs = form.findChild<QTabWidget*>();
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr) {
                tabs->setCurrentIndex(page);
                QCoreApplication::processEvents();
            }
            visit(form);
        }
    }
}

void ShellTest::CloseFrame(const char* name) const {
    ASSERT_NE(Child(name), nullptr) << name;
    Child(name)->parentWidget()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ShellTest::ClickButton(const char* child, const char* button) const {
    ASSERT_NE(Child(child), nullptr) << child;
    Click(*Child(child), button);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ShellTest::FillImage() {
    for (int address = 0; address < 0x400; ++address) {
        if (address != 0x1BD && address != 0x1BE) {
            document.Image.Set(address, static_cast<std::uint8_t>(address * 7 + address / 256));
        }
    }
}

void Click(QWidget& dialog, const char* button) {
    auto* found = dialog.findChild<QAbstractButton*>(QString::fromLatin1(button));
    ASSERT_NE(found, nullptr) << button;
    QTest::mouseClick(found, Qt::LeftButton);
}

} // namespace zelvor
