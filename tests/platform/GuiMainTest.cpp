#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include "support/QtPrinting.h"

namespace zelvor {
namespace {

TEST(TestsWithWindows, HaveAScreenThatHoldsTheLargestWindow) {
    if (QGuiApplication::platformName() != QStringLiteral("offscreen")) {
        GTEST_SKIP() << "A real screen is as large as it is";
    }
    EXPECT_EQ(QGuiApplication::primaryScreen()->size().width(), 1600);
    EXPECT_EQ(QGuiApplication::primaryScreen()->size().height(), 1200);
    EXPECT_EQ(QGuiApplication::primaryScreen()->devicePixelRatio(), 1);
    EXPECT_EQ(QGuiApplication::primaryScreen()->logicalDotsPerInch(), 96);
}

TEST(TestsWithWindows, ReadAndWriteNothingOfTheUsers) {
    const QString home = QDir::homePath();
    EXPECT_TRUE(home.startsWith(QDir::tempPath())) << home.toStdString();
    EXPECT_EQ(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), home + "/config");
}

} // namespace
} // namespace zelvor
