#include <QDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include "ModalDriver.h"
#include "fakes/FakeMessageBoxes.h"
#include "help/QtHelpViewer.h"
#include "platform/QtMessageBoxes.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

/// Presses Escape until the box goes: a shortcut of another window takes the key while that one is active, which it may
/// become late on a busy machine. A box that stayed would be waited for without end.
void Escape(QMessageBox& box) {
    for (int attempt = 0; attempt < 10 && box.isVisible(); ++attempt) {
        box.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&box));
        QTest::keyClick(&box, Qt::Key_Escape);
    }
    if (box.isVisible()) {
        ADD_FAILURE() << "Escape does not close it";
        box.reject();
    }
}

/// Shows the message, looks at the box, and leaves it as the user would by Escape.
MessageAnswer LookAt(const Message& message, std::function<void(QMessageBox&)> look) {
    WithNextDialog<QMessageBox>([look](QMessageBox& box) {
        look(box);
        Escape(box);
    });
    return QtMessageBoxes().Show(message);
}

MessageAnswer Press(const Message& message, Qt::Key key) {
    WithNextDialog<QMessageBox>([key](QMessageBox& box) {
        box.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &box, key);
    });
    return QtMessageBoxes().Show(message);
}

TEST(QtMessageBoxes, ShowTitleTextAndIcon) {
    LookAt({"Warning", "Overwrite Warning!\r\nSave File Name:a.dat", MessageIcon::Exclamation}, [](QMessageBox& box) {
        EXPECT_EQ(box.objectName(), "MessageBox");
        EXPECT_EQ(box.windowTitle(), "Warning");
        EXPECT_EQ(box.text(), "Overwrite Warning!\nSave File Name:a.dat");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_TRUE(box.isModal());
    });
    LookAt({"错误", "文件类型不正确。", MessageIcon::Critical}, [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "错误");
        EXPECT_EQ(box.text(), "文件类型不正确。");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
    });
    LookAt({"", "x", MessageIcon::Question}, [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Question); });
    LookAt({"", "x", MessageIcon::Information},
           [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Information); });
    LookAt({"", "x", MessageIcon::None}, [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::NoIcon); });
}

TEST(QtMessageBoxes, HideNothingOfTheDialogThatTheyBelongTo) {
    for (const QPoint place : {QPoint(300, 100), QPoint(0, 0), QPoint(700, 900)}) {
        QDialog dialog;
        dialog.setModal(true);
        dialog.setFixedSize(350, 150);
        dialog.move(place);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        LookAt({"Error", "please check all connections and communication port settings."}, [&](QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), &dialog);
            EXPECT_FALSE(box.frameGeometry().intersects(dialog.frameGeometry())) << place.x() << ", " << place.y();
            EXPECT_TRUE(dialog.screen()->availableGeometry().contains(box.frameGeometry()));
        });
    }
}

TEST(QtMessageBoxes, StayOnTheScreenOverADialogThatLeavesNoRoom) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.setFixedSize(dialog.screen()->availableGeometry().size() * 0.9);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    LookAt({"Error", "x"},
           [&](QMessageBox& box) { EXPECT_TRUE(dialog.screen()->availableGeometry().contains(box.frameGeometry())); });
}

TEST(QtMessageBoxes, ShowTextsThatLookLikeMarkupAsTheyAre) {
    LookAt({"", "<b>a & b</b>"}, [](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), "<b>a & b</b>");
    });
}

TEST(QtMessageBoxes, ShowAnEmptyTitleEmptyAndNotTheNameOfTheProgram) {
    LookAt({"", "x"}, [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "");
        ASSERT_NE(box.windowHandle(), nullptr);
        EXPECT_EQ(box.windowHandle()->title(), " ");
    });
}

TEST(QtMessageBoxes, HaveExactlyTheButtonsTold) {
    const auto buttonsOf = [](MessageButtons buttons) {
        QMessageBox::StandardButtons shown;
        LookAt({"", "x", MessageIcon::None, buttons}, [&](QMessageBox& box) { shown = box.standardButtons(); });
        return shown;
    };
    EXPECT_EQ(buttonsOf(MessageButtons::Ok), QMessageBox::Ok);
    EXPECT_EQ(buttonsOf(MessageButtons::OkCancel), QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(buttonsOf(MessageButtons::YesNo), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(buttonsOf(MessageButtons::YesNoCancel), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(buttonsOf(MessageButtons::RetryCancel), QMessageBox::Retry | QMessageBox::Cancel);
}

TEST(QtMessageBoxes, AnswerEscapeWithCancelElseNoElseOk) {
    const auto escape = [](MessageButtons buttons) {
        return LookAt({"", "x", MessageIcon::None, buttons}, [](QMessageBox&) {});
    };
    EXPECT_EQ(escape(MessageButtons::Ok), MessageAnswer::Ok);
    EXPECT_EQ(escape(MessageButtons::OkCancel), MessageAnswer::Cancel);
    EXPECT_EQ(escape(MessageButtons::YesNo), MessageAnswer::No);
    EXPECT_EQ(escape(MessageButtons::YesNoCancel), MessageAnswer::Cancel);
    EXPECT_EQ(escape(MessageButtons::RetryCancel), MessageAnswer::Cancel);
}

TEST(QtMessageBoxes, AnswerTheFramesCloseButtonAsEscape) {
    WithNextDialog<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(QtMessageBoxes().Show({"", "x", MessageIcon::None, MessageButtons::YesNo}), MessageAnswer::No);
}

TEST(QtMessageBoxes, AnswerEnterWithTheDefaultButton) {
    EXPECT_EQ(Press({"", "x", MessageIcon::None, MessageButtons::YesNo}, Qt::Key_Return), MessageAnswer::Yes);
    EXPECT_EQ(Press({"", "x", MessageIcon::None, MessageButtons::OkCancel, MessageAnswer::Cancel}, Qt::Key_Return),
              MessageAnswer::Cancel);
    EXPECT_EQ(Press({"", "x", MessageIcon::None, MessageButtons::YesNo, MessageAnswer::No}, Qt::Key_Return),
              MessageAnswer::No);
}

TEST(QtMessageBoxes, KeepTimersGoingOn) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++ticks; });
    timer.start(1);
    WithNextDialog<QMessageBox>([&](QMessageBox& box) {
        const int before = ticks;
        EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > before + 2; }, 2000));
        box.close();
    });
    QtMessageBoxes().Show({"", "x"});
}

TEST(QtMessageBoxes, BelongToTheDialogOnTop) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    LookAt({"", "x"}, [&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &dialog); });
}

TEST(QtMessageBoxes, BelongToTheInnermostWindowThatIsEnabledWhoeverHasTheKeys) {
    QMainWindow main;
    QDialog over(&main);
    QtHelpViewer help{QStringList{HELP_FOLDER}};
    main.show();
    over.show();
    main.setEnabled(false);
    over.setEnabled(true);
    help.Show({Language::English, "general.htm"});
    ASSERT_TRUE(QTest::qWaitFor(
        [] { return QApplication::activeWindow() && QApplication::activeWindow()->objectName() == "HelpWindow"; }));
    LookAt({"", "x"}, [&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &over); });
    over.close();
    LookAt({"", "x"}, [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), nullptr) << "a box of a disabled window would be disabled";
        EXPECT_TRUE(box.isEnabled());
    });
    main.setEnabled(true);
    LookAt({"", "x"}, [&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &main); });
}

TEST(QtMessageBoxes, AreAnsweredAsEscapeWhenTheirDialogGoes) {
    auto* dialog = new QDialog;
    dialog->setModal(true);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    WithNextDialog<QMessageBox>([&](QMessageBox&) { delete dialog; });
    EXPECT_EQ(QtMessageBoxes().Show({"", "x", MessageIcon::None, MessageButtons::RetryCancel}), MessageAnswer::Cancel);
}

} // namespace
} // namespace zelvor
