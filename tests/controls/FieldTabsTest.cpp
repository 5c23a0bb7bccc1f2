#include "controls/FieldTabs.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "support/QtPrinting.h"

namespace zelvor {
namespace {

TEST(FieldTabs, AClickTakesTheFocusAndTheWheelDoesNothing) {
    QWidget window;
    FieldTabs tabs("SSTab1", &window);
    for (const char* caption : {"One", "Two"}) {
        auto* box = new QLineEdit(tabs.AddPage(caption));
        box->setObjectName(caption);
    }
    tabs.resize(300, 200);
    window.resize(300, 200);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(tabs.objectName(), "SSTab1");
    EXPECT_EQ(tabs.tabText(1), "Two");
    tabs.findChild<QLineEdit*>("One")->setFocus();

    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
    EXPECT_EQ(tabs.currentIndex(), 1);
    EXPECT_TRUE(tabs.tabBar()->hasFocus());
    QWheelEvent wheel({5, 5}, tabs.tabBar()->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(tabs.tabBar(), &wheel);
    EXPECT_EQ(tabs.currentIndex(), 1);
    QTest::keyClick(tabs.tabBar(), Qt::Key_Return);
    EXPECT_TRUE(tabs.findChild<QLineEdit*>("Two")->hasFocus());
}

} // namespace
} // namespace zelvor
