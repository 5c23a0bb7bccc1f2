#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "controls/ChildForm.h"
#include "controls/ChildFrame.h"

namespace zelvor {
namespace {

class BoxAndButtons : public ChildForm {
public:
    BoxAndButtons()
        : ChildForm(ChildWindow::Scan, "BoxAndButtons", {6000, 3000}), box(new QLineEdit(Content())),
          help(new QPushButton("&Help", Content())), close(new QPushButton("&Close", Content())) {
        help->move(0, 60);
        close->move(0, 120);
    }
    [[nodiscard]] std::string_view HelpPage() const override { return "box.htm"; }

    QLineEdit* box;
    QPushButton* help;
    QPushButton* close;
};

/// A main window with the menus Help and File, and a child window with the buttons Help and Close.
class AccessKeysTest : public testing::Test {
protected:
    void SetUp() override {
        for (QMenu* menu : {helpMenu, fileMenu}) {
            menu->addAction("Entry");
        }
        auto* area = new QMdiArea;
        window.setCentralWidget(area);
        window.resize(600, 400);
        area->addSubWindow(new ChildFrame(form));
        window.show();
        form->box->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(form->box->hasFocus());
    }
    void TearDown() override {
        helpMenu->close();
        fileMenu->close();
    }
    void Press(Qt::Key key) const { QTest::keyClick(form->box, key, Qt::AltModifier); }

    QMainWindow window;
    QMenu* helpMenu = window.menuBar()->addMenu("&Help");
    QMenu* fileMenu = window.menuBar()->addMenu("&File");
    BoxAndButtons* form = new BoxAndButtons;
};

TEST_F(AccessKeysTest, AButtonOfTheActiveWindowComesBeforeTheMenuOfTheSameLetter) {
    QSignalSpy clicked(form->help, &QPushButton::clicked);
    Press(Qt::Key_H);
    EXPECT_FALSE(helpMenu->isVisible());
    ASSERT_TRUE(clicked.count() == 1 || clicked.wait());
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(AccessKeysTest, ItDoesSoEachTime) {
    QSignalSpy clicked(form->help, &QPushButton::clicked);
    for (int times = 1; times <= 3; ++times) {
        form->box->setFocus();
        Press(Qt::Key_H);
        EXPECT_FALSE(helpMenu->isVisible()) << times;
        ASSERT_TRUE(clicked.count() == times || clicked.wait()) << times;
    }
}

TEST_F(AccessKeysTest, TheBoxWithTheFocusDoesNotTakeTheLetter) {
    QTest::keyClick(form->box, 'h', Qt::AltModifier);
    EXPECT_EQ(form->box->text(), "");
    QTest::keyClick(form->box, 'h');
    EXPECT_EQ(form->box->text(), "h");
}

TEST_F(AccessKeysTest, ALetterOfNoButtonOpensTheMenu) {
    Press(Qt::Key_F);
    EXPECT_TRUE(fileMenu->isVisible());
}

TEST_F(AccessKeysTest, ADisabledOrHiddenButtonLeavesItsLetterToTheMenu) {
    form->help->setEnabled(false);
    Press(Qt::Key_H);
    EXPECT_TRUE(helpMenu->isVisible());
    helpMenu->close();
    form->help->setEnabled(true);
    form->help->hide();
    Press(Qt::Key_H);
    EXPECT_TRUE(helpMenu->isVisible());
}

TEST_F(AccessKeysTest, ALetterOfTwoButtonsPressesNeither) {
    auto* other = new QPushButton("C&hannel", form->Content());
    other->move(150, 60);
    other->show();
    Press(Qt::Key_H);
    EXPECT_FALSE(form->help->isDown());
    EXPECT_FALSE(other->isDown());
}

} // namespace
} // namespace zelvor
