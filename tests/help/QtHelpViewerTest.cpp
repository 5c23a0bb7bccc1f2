#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <gtest/gtest.h>

#include "help/QtHelpViewer.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

class QtHelpViewerInUse : public testing::Test {
protected:
    QtHelpViewerInUse() {
        MakePage("en/chinfo.htm", "<p>Channels</p>");
        MakePage("zh/chinfo.htm", "<meta charset=\"utf-8\"><p>信道</p>");
    }

    void MakePage(const QString& name, const char* html) {
        const QFileInfo page(folder_.filePath(name));
        QDir().mkpath(page.path());
        QFile file(page.filePath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(html);
    }
    static QWidget* Window() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "HelpWindow" && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }
    static QString Text() { return Window()->findChild<QTextBrowser*>("HelpPage")->toPlainText(); }

    QTemporaryDir folder_;
    QtHelpViewer viewer_{QStringList{"/no such folder", folder_.path()}};
};

TEST_F(QtHelpViewerInUse, ShowsAPageOfEitherLanguageInOneWindow) {
    viewer_.Show({Language::English, "chinfo.htm"});
    QWidget* window = Window();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(Text(), "Channels");
    EXPECT_EQ(window->windowTitle(), "Zelvor Help");
    viewer_.Show({Language::Chinese, "chinfo.htm"});
    EXPECT_EQ(Window(), window);
    EXPECT_EQ(Text(), "信道");
    EXPECT_EQ(window->windowTitle(), "Zelvor 帮助");
}

TEST_F(QtHelpViewerInUse, ShowsNothingForAMissingPage) {
    viewer_.Show({Language::English, "missing.htm"});
    EXPECT_EQ(Window(), nullptr);
    viewer_.Show({Language::English, ""});
    EXPECT_EQ(Window(), nullptr);
}

TEST_F(QtHelpViewerInUse, KeepsThePageShownWhereAnotherIsMissing) {
    viewer_.Show({Language::English, "chinfo.htm"});
    viewer_.Show({Language::English, "missing.htm"});
    ASSERT_NE(Window(), nullptr);
    EXPECT_EQ(Text(), "Channels");
}

TEST_F(QtHelpViewerInUse, OpensAgainAfterTheUserClosedIt) {
    viewer_.Show({Language::English, "chinfo.htm"});
    Window()->close();
    EXPECT_EQ(Window(), nullptr);
    viewer_.Show({Language::English, "chinfo.htm"});
    EXPECT_NE(Window(), nullptr);
}

} // namespace
} // namespace zelvor
