#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

using AboutFormTest = ShellTest;

TEST_F(AboutFormTest, TellsNameModelsAndVersionInEnglish) {
    OpenMainWindow();
    ChooseDialog("MnuHelpAbout", [](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "AboutForm");
        EXPECT_EQ(dialog.windowTitle(), "About Zelvor");
        EXPECT_EQ(dialog.findChild<QLabel*>("LblAbout")->text(), "Zelvor RADIO PROGRAMMING SOFTWARE\n"
                                                                 "FOR 4618/4613/4617/5618/5613/5617\n"
                                                                 "\n"
                                                                 "VERSION 1.00\n"
                                                                 "RELEASE Jan/30/2007");
        Click(dialog, "cmdClose");
    });
}

TEST_F(AboutFormTest, TellsNameModelsAndVersionInChinese) {
    OpenMainWindowInChinese();
    ChooseDialog("MnuHelpAbout", [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "关于 Zelvor");
        EXPECT_EQ(dialog.findChild<QLabel*>("LblAbout")->text(), "Zelvor对讲机编程软件\n"
                                                                 "用于4618/4613/4617/5618/5613/5617\n"
                                                                 "\n"
                                                                 "版本 1.00\n"
                                                                 "发布2007/01/30");
        Click(dialog, "cmdClose");
    });
}

TEST_F(AboutFormTest, OpensFromTheToolbarAsWell) {
    OpenMainWindow();
    QString shown;
    QTimer::singleShot(0, window.get(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        shown = dialog->objectName();
        dialog->close();
    });
    ClickToolbar(11);
    EXPECT_EQ(shown, "AboutForm");
}

} // namespace
} // namespace zelvor
