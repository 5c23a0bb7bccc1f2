#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
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
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
#ifdef Q_OS_WIN
    EXPECT_TRUE(config.endsWith("/qttest")) << config.toStdString();
    const QSettings registry("HKEY_CURRENT_USER", QSettings::NativeFormat);
    EXPECT_FALSE(registry.childGroups().contains("Environment")) << "each user has this key, and the tests have not";
#else
    const QString home = QDir::homePath();
    EXPECT_TRUE(home.startsWith(QDir::tempPath())) << home.toStdString();
    EXPECT_EQ(config, home + "/config");
#endif
}

} // namespace
} // namespace zelvor
