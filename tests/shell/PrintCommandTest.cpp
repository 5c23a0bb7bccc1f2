#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include "ShellTest.h"
#include "print/frmPrintList.h"

namespace zelvor {
namespace {

class PrintCommandTest : public ShellTest {
protected:
    bool shown = false;
    void ExpectPrintList(QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmPrintList");
        EXPECT_EQ(dialog.windowTitle(), "Print Out List");
        EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
        shown = true;
        Click(dialog, "cmdCancel");
    }
};

TEST_F(PrintCommandTest, TheFileMenusEntryShowsThePrintList) {
    OpenMainWindow();
    ChooseDialog("MnuFilePrint", [this](QWidget& dialog) { ExpectPrintList(dialog); });
    EXPECT_TRUE(shown);
}

TEST_F(PrintCommandTest, TheToolbarsFifthButtonShowsItToo) {
    OpenMainWindow();
    QTimer::singleShot(0, window.get(), [this] { ExpectPrintList(*QApplication::activeModalWidget()); });
    ClickToolbar(5);
    EXPECT_TRUE(shown);
}

} // namespace
} // namespace zelvor
