#include <QApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QListWidget>
#include <QMdiArea>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QWindow>
#include <string>

#include "help/QtHelpViewer.h"
#include "platform/QtFileDialogs.h"
#include "platform/QtMessageBoxes.h"
#include "platform/QtPageDevice.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

/// The windows that a window is transient for, from the nearest on. The toolkit follows them without counting.
std::vector<const QWindow*> OwnersOf(const QWindow& window) {
    std::vector<const QWindow*> owners;
    const auto most = static_cast<std::size_t>(QGuiApplication::allWindows().size());
    for (const QWindow* owner = window.transientParent(); owner != nullptr && owners.size() <= most;
         owner = owner->transientParent()) {
        owners.push_back(owner);
    }
    return owners;
}

/// The help window and the dialogs as they really are, over a radio that never answers and a virtual time.
class HelpBesideDialogsTest : public ShellTest {
protected:
    void SetUp() override {
        window = std::make_unique<MDIForm1>(State(), services_);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void ShowHelp() {
        help_.Show({Language::English, "general.htm"});
        ASSERT_TRUE(QTest::qWaitForWindowActive(HelpWindow()));
    }
    static QWidget* HelpWindow() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "HelpWindow" && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }

    static void ExpectNoCircle(const std::string& when) {
        const QWindowList windows = QGuiApplication::allWindows();
        for (const QWindow* each : windows) {
            EXPECT_LE(OwnersOf(*each).size(), static_cast<std::size_t>(windows.size()))
                << when << ", from " << each->objectName().toStdString();
        }
    }
    static void ExpectNoDialogOfTheHelpWindow(const QWidget& dialog) {
        if (const QWidget* help = HelpWindow()) {
            for (const QWindow* owner : OwnersOf(*dialog.windowHandle())) {
                EXPECT_NE(owner, help->windowHandle()) << dialog.objectName().toStdString();
            }
        }
    }

    /// Does what brings up a modal dialog, looks at it once it is up, and closes it.
    void WithDialog(const std::string& dialog, const std::function<void()>& bringUp,
                    const std::function<void(QWidget&)>& look) {
        bool wasShown = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal == nullptr || !modal->isVisible() || wasShown) {
                return;
            }
            wasShown = true;
            EXPECT_EQ(modal->objectName().toStdString(), dialog);
            look(*modal);
            modal->close();
        });
        watch.start(1);
        bringUp();
        EXPECT_TRUE(QTest::qWaitFor([&] { return wasShown && QApplication::activeModalWidget() == nullptr; }))
            << dialog;
    }

    /// Both orders: the help is open and has the keys when the dialog comes up, and it is opened over the dialog. And
    /// it is still there when the next dialog comes up.
    void TryBothOrders(const std::string& dialog, const std::function<void()>& bringUp) {
        const auto look = [&](QWidget& modal) {
            QCoreApplication::processEvents();
            ExpectNoCircle("help, then " + dialog);
            ExpectNoDialogOfTheHelpWindow(modal);
            ShowHelp();
            QCoreApplication::processEvents();
            ExpectNoCircle("help over " + dialog);
        };
        ShowHelp();
        WithDialog(dialog, bringUp, look);
        HelpWindow()->close();
        WithDialog(dialog, bringUp, look);
        WithDialog(dialog, bringUp, look);
        HelpWindow()->close();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QtMessageBoxes messages_;
    QtFileDialogs files_;
    QtHelpViewer help_;
    Services services_{fakes.ports, fakes.settings, messages_,   files_,       fakes.clock,
                       help_,       fakes.pages,    fakes.store, fakes.backups};
};

struct DialogOfEntry {
    const char* entry;
    const char* dialog;
};

TEST_F(HelpBesideDialogsTest, NoDialogOfTheMenusMakesACircleWithTheHelpWindow) {
    constexpr DialogOfEntry Entries[] = {
        {"MnuFileNew", "MessageBox"},
        {"MnuFileOpen", "dlgFile"},
        {"MnuFileSaveAs", "dlgFile"},
        {"MnuFilePrint", "frmPrintList"},
        {"MnuFileExit", "MessageBox"},
        {"MnuModelInformation", "ModelTypeForm"},
        {"MnuProgramRead", "ConnectForm"},
        {"MnuProgramWrite", "ConnectForm"},
        {"MnuSetupCommunicationPort", "ComForm"},
        {"MnuSetupLanguageFileSetup", "LanguageForm"},
        {"MnuHelpAbout", "AboutForm"},
    };
    for (const DialogOfEntry& entry : Entries) {
        SCOPED_TRACE(entry.entry);
        TryBothOrders(entry.dialog, [&] { Choose(entry.entry); });
    }
}

TEST_F(HelpBesideDialogsTest, TheMemoryMapMakesNoCircleWithTheHelpWindow) {
    TryBothOrders("CPUForm", [this] {
        const auto* area = window->findChild<QMdiArea*>();
        QTest::mouseClick(area->viewport(), Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier,
                          {area->viewport()->width() - 1, 0});
    });
}

TEST_F(HelpBesideDialogsTest, ThePrintSetupMakesNoCircleWithTheHelpWindow) {
    const QTemporaryDir folder;
    QtPageDevice pages(folder.filePath("report.pdf"), [] { return PrinterLookUp::Printers{}; });
    // Before the printing system has answered it is a dialog for a file alone.
    TryBothOrders("dlgPrintFile", [&] { EXPECT_FALSE(pages.ShowSetup("radio.dat")); });
    bool isAnswered = false;
    pages.AskForPrinters([&isAnswered](bool answer) { isAnswered = answer; });
    ASSERT_TRUE(QTest::qWaitFor([&isAnswered] { return isAnswered; }, 20'000));
    TryBothOrders("dlgPrint", [&] { EXPECT_FALSE(pages.ShowSetup("radio.dat")); });
}

TEST_F(HelpBesideDialogsTest, TheConnectionPromptMakesNoCircleWithTheHelpWindow) {
    for (const char* entry : {"MnuToolRadioInformation", "MnuProgramTestMode"}) {
        SCOPED_TRACE(entry);
        TryBothOrders("MessageBox", [&] {
            Choose(entry);
            fakes.clock.Advance(1000);
        });
    }
}

TEST_F(HelpBesideDialogsTest, TheExitQuestionMakesNoCircleWithTheHelpWindow) {
    TryBothOrders("MessageBox", [this] { EXPECT_FALSE(window->close()); });
}

TEST_F(HelpBesideDialogsTest, TheConnectionPromptBelongsToTheMainWindowWhereTheHelpHasTheKeys) {
    ShowHelp();
    WithDialog(
        "MessageBox",
        [this] {
            Choose("MnuToolRadioInformation");
            fakes.clock.Advance(1000);
        },
        [this](QWidget& box) { EXPECT_EQ(box.parentWidget(), window.get()); });
    EXPECT_TRUE(HelpWindow()->isVisible());
}

TEST_F(HelpBesideDialogsTest, TheHelpIsUsableBesideThePromptThatCameWhileItHadTheKeys) {
    ShowHelp();
    WithDialog(
        "MessageBox",
        [this] {
            Choose("MnuProgramTestMode");
            fakes.clock.Advance(1000);
        },
        [](QWidget&) {
            QCoreApplication::processEvents();
            const auto* contents = HelpWindow()->findChild<QListWidget*>("HelpContents");
            const QPoint seventh = contents->visualItemRect(contents->item(7)).center();
            QTest::mouseClick(HelpWindow()->windowHandle(), Qt::LeftButton, {},
                              contents->viewport()->mapTo(HelpWindow(), seventh));
        });
    EXPECT_EQ(HelpWindow()->findChild<QTextBrowser*>("HelpPage")->documentTitle(), "DTMF");
}

} // namespace
} // namespace zelvor
