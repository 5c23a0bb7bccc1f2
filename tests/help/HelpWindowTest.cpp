#include "help/HelpWindow.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QWindow>
#include <gtest/gtest.h>
#include <memory>

#include "help/QtHelpViewer.h"

namespace zelvor {
namespace {

class AHelpWindow : public testing::Test {
protected:
    void Show(const HelpTopic& topic) {
        viewer_.Show(topic);
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "HelpWindow") {
                window = widget;
            }
        }
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    }
    void ShowEnglish(const char* page) { Show({Language::English, page}); }
    void ShowChinese(const char* page) { Show({Language::Chinese, page}); }

    template<class Part>
    Part& Get(const char* name) const {
        return *window->findChild<Part*>(name);
    }
    [[nodiscard]] QTextBrowser& Page() const { return Get<QTextBrowser>("HelpPage"); }
    [[nodiscard]] QListWidget& Contents() const { return Get<QListWidget>("HelpContents"); }
    [[nodiscard]] QListWidget& Results() const { return Get<QListWidget>("HelpResults"); }
    [[nodiscard]] QLineEdit& SearchBox() const { return Get<QLineEdit>("HelpSearch"); }
    [[nodiscard]] QString Title() const { return Page().documentTitle(); }
    [[nodiscard]] QString PageFile() const { return Page().source().fileName(); }
    [[nodiscard]] QString SelectedTitle() const {
        return Contents().currentItem() != nullptr ? Contents().currentItem()->text() : QString();
    }
    static QStringList TextsOf(const QListWidget& list) {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row) {
            texts.append(list.item(row)->text());
        }
        return texts;
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : window, key, modifiers);
    }
    void SearchFor(const QString& words) const {
        Press(Qt::Key_F, Qt::ControlModifier);
        SearchBox().insert(words);
    }
    /// As the window system sends it, so that a modal dialog can block it.
    void ClickInContents(int row) const {
        QListWidget& list = Contents();
        const QPoint place = list.visualItemRect(list.item(row)).center();
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, list.viewport()->mapTo(window, place));
    }

    QtHelpViewer viewer_{QStringList{HELP_FOLDER}};
    QWidget* window = nullptr;
};

TEST_F(AHelpWindow, ListsAllPagesInEnglish) {
    ShowEnglish("general.htm");
    EXPECT_EQ(TextsOf(Contents()),
              (QStringList{"Getting started", "Tree View", "Channel Information", "Channel Edit", "Scan Information",
                           "Optional Features", "Key Assignment", "DTMF", "Corvane", "Test Frequency",
                           "Embedded Message", "Model Information", "Communication Port", "Read data from radio",
                           "Write data to radio", "Radio Information", "Print Out List", "Language File Setup"}));
    EXPECT_EQ(SelectedTitle(), "Getting started");
}

TEST_F(AHelpWindow, ListsAllPagesInChinese) {
    ShowChinese("dtmf.htm");
    EXPECT_EQ(TextsOf(Contents()),
              (QStringList{"使用入门", "树视图", "信道信息", "信道编辑", "扫描信息", "可选功能", "键设定",
                           "DTMF(双音多频)", "Corvane(科瓦讯)", "测试频率", "嵌入信息", "机型信息", "通信端口",
                           "从对讲机读取数据", "向对讲机写入数据", "对讲机信息", "打印列表", "语言文件设置"}));
    EXPECT_EQ(SelectedTitle(), "DTMF(双音多频)");
}

TEST_F(AHelpWindow, OpensThePageThatIsChosenInTheContents) {
    ShowEnglish("general.htm");
    ClickInContents(7);
    EXPECT_EQ(Title(), "DTMF");
    Contents().setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(Title(), "Corvane");
    EXPECT_EQ(SelectedTitle(), "Corvane");
}

TEST_F(AHelpWindow, FollowsALinkByKeyboard) {
    ShowEnglish("treeview.htm");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
    EXPECT_EQ(Title(), "Channel Information");
    EXPECT_EQ(SelectedTitle(), "Channel Information");
}

TEST_F(AHelpWindow, GoesBackForwardAndHomeByKeyboard) {
    ShowEnglish("dtmf.htm");
    EXPECT_FALSE(Get<QAction>("HelpBack").isEnabled());
    EXPECT_FALSE(Get<QAction>("HelpForward").isEnabled());
    ShowEnglish("corvane.htm");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Title(), "DTMF");
    EXPECT_EQ(SelectedTitle(), "DTMF");
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Title(), "Corvane");
    Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Title(), "Getting started");
}

TEST_F(AHelpWindow, ChangesTheSizeOfLettersByKeyboardWithinBounds) {
    ShowEnglish("dtmf.htm");
    const qreal usual = Page().font().pointSizeF();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(Page().font().pointSizeF(), usual * 1.1, 0.01);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(Page().font().pointSizeF(), usual * 0.9, 0.01);
    for (int step = 0; step < 50; ++step) {
        Press(Qt::Key_Minus, Qt::ControlModifier);
    }
    EXPECT_NEAR(Page().font().pointSizeF(), usual * 0.5, 0.01);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(Page().font().pointSizeF(), usual, 0.01);
}

TEST_F(AHelpWindow, KeepsTheSizeOfLettersOnThePagesShownNext) {
    ShowEnglish("dtmf.htm");
    const qreal usual = Page().font().pointSizeF();
    Press(Qt::Key_Equal, Qt::ControlModifier);
    ShowChinese("corvane.htm");
    EXPECT_NEAR(Page().font().pointSizeF(), usual * 1.1, 0.01);
}

TEST_F(AHelpWindow, ListsThePagesThatASearchFindsInAnyCase) {
    ShowEnglish("general.htm");
    SearchFor("SQUELCH level");
    EXPECT_TRUE(Results().isVisible());
    EXPECT_FALSE(Contents().isVisible());
    EXPECT_EQ(TextsOf(Results()).first(), "Optional Features");
}

TEST_F(AHelpWindow, FindsAChineseWord) {
    ShowChinese("general.htm");
    SearchFor("遥毙码");
    EXPECT_EQ(TextsOf(Results()), QStringList{"DTMF(双音多频)"});
}

TEST_F(AHelpWindow, SaysThatASearchFoundNothing) {
    ShowEnglish("general.htm");
    SearchFor("elephant");
    EXPECT_EQ(TextsOf(Results()), QStringList{"No page has these words."});
    Press(Qt::Key_Return);
    EXPECT_EQ(Title(), "Getting started");
    ShowChinese("general.htm");
    SearchFor("大象");
    EXPECT_EQ(TextsOf(Results()), QStringList{"没有页面包含这些文字。"});
}

TEST_F(AHelpWindow, OpensAFoundPageAtTheWordAndGoesOnToTheNextPlace) {
    ShowEnglish("general.htm");
    SearchFor("Stun");
    Press(Qt::Key_Return);
    EXPECT_EQ(Title(), "DTMF");
    EXPECT_EQ(Page().textCursor().selectedText(), "Stun");
    const int first = Page().textCursor().position();
    Press(Qt::Key_F3);
    EXPECT_GT(Page().textCursor().position(), first);
    EXPECT_EQ(Page().textCursor().selectedText(), "Stun");
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Page().textCursor().position(), first);
}

TEST_F(AHelpWindow, GoesRoundFromTheLastPlaceOfAPageToTheFirst) {
    ShowEnglish("embmsg.htm");
    SearchFor("sixteen");
    EXPECT_FALSE(Get<QAction>("HelpFindNext").isEnabled());
    SearchFor("European");
    EXPECT_TRUE(Get<QAction>("HelpFindNext").isEnabled());
    Press(Qt::Key_F3);
    const int only = Page().textCursor().position();
    Press(Qt::Key_F3);
    EXPECT_EQ(Page().textCursor().position(), only);
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Page().textCursor().position(), only);
}

TEST_F(AHelpWindow, TakesWhatIsTypedIntoTheSearchLiterally) {
    ShowEnglish("dtmf.htm");
    SearchFor("[ms]");
    ASSERT_FALSE(Page().extraSelections().isEmpty());
    for (const QTextEdit::ExtraSelection& mark : Page().extraSelections()) {
        EXPECT_EQ(mark.cursor.selectedText(), "[ms]");
    }
}

TEST_F(AHelpWindow, EndsTheSearchByEscapeAndThenCloses) {
    ShowEnglish("dtmf.htm");
    SearchFor("squelch");
    Press(Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(Contents().isVisible());
    EXPECT_TRUE(Page().extraSelections().isEmpty());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(AHelpWindow, LeavesTheSearchWhenATopicIsAskedFor) {
    ShowEnglish("dtmf.htm");
    SearchFor("squelch");
    ShowEnglish("corvane.htm");
    EXPECT_EQ(SearchBox().text(), "");
    EXPECT_TRUE(Contents().isVisible());
}

TEST_F(AHelpWindow, GoesFromTheSearchBoxToTheListByTheDownKey) {
    ShowEnglish("dtmf.htm");
    SearchFor("fleet");
    Press(Qt::Key_Down);
    EXPECT_TRUE(Results().hasFocus());
}

TEST_F(AHelpWindow, ShowsAllItsTextsInTheLanguageOfThePage) {
    ShowEnglish("dtmf.htm");
    EXPECT_EQ(window->windowTitle(), "Zelvor Help");
    EXPECT_EQ(SearchBox().placeholderText(), "Search all pages");
    EXPECT_EQ(Get<QAction>("HelpBack").text(), "Back");
    EXPECT_EQ(Get<QAction>("HelpForward").text(), "Forward");
    EXPECT_EQ(Get<QAction>("HelpHome").text(), "Home");
    EXPECT_EQ(Get<QAction>("HelpZoomIn").text(), "Larger letters");
    EXPECT_EQ(Get<QAction>("HelpZoomIn").iconText(), "A+");
    ShowChinese("dtmf.htm");
    EXPECT_EQ(window->windowTitle(), "Zelvor 帮助");
    EXPECT_EQ(SearchBox().placeholderText(), "搜索所有页面");
    EXPECT_EQ(SearchBox().accessibleName(), "搜索所有页面");
    EXPECT_EQ(Get<QAction>("HelpBack").text(), "后退");
    EXPECT_EQ(Get<QAction>("HelpForward").text(), "前进");
    EXPECT_EQ(Get<QAction>("HelpHome").text(), "首页");
    EXPECT_EQ(Get<QAction>("HelpZoomIn").text(), "放大文字");
    EXPECT_EQ(Get<QAction>("HelpZoomIn").iconText(), "A+");
    EXPECT_EQ(Contents().accessibleName(), "目录");
    EXPECT_EQ(Page().accessibleName(), "帮助页面");
}

TEST_F(AHelpWindow, GoesBackToThePageOfTheOtherLanguageWithItsContents) {
    ShowEnglish("dtmf.htm");
    ShowChinese("corvane.htm");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Title(), "DTMF");
    EXPECT_EQ(SelectedTitle(), "DTMF");
    EXPECT_EQ(TextsOf(Contents()).first(), "Getting started");
    EXPECT_EQ(window->windowTitle(), "Zelvor Help");
}

TEST_F(AHelpWindow, IsUsableWhileTheModalDialogThatOpenedItIsUp) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    ShowEnglish("modelinfo.htm");
    QCoreApplication::processEvents();
    ClickInContents(12);
    EXPECT_EQ(Title(), "Communication Port");
}

TEST_F(AHelpWindow, StaysUsableWhenAModalDialogComesUp) {
    ShowEnglish("general.htm");
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QCoreApplication::processEvents();
    ClickInContents(12);
    EXPECT_EQ(Title(), "Communication Port");
}

TEST_F(AHelpWindow, StaysUsableBesideAMessageBoxOverADialog) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    ShowEnglish("modelinfo.htm");
    auto box = std::make_unique<QDialog>(&dialog);
    box->setModal(true);
    box->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(box.get()));
    QCoreApplication::processEvents();
    ClickInContents(12);
    EXPECT_EQ(Title(), "Communication Port");
    box.reset();
    QCoreApplication::processEvents();
    ClickInContents(7);
    EXPECT_EQ(Title(), "DTMF");
}

TEST_F(AHelpWindow, OutlivesTheDialogThatOpenedIt) {
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        ShowEnglish("commport.htm");
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(window->isVisible());
    ClickInContents(7);
    EXPECT_EQ(Title(), "DTMF");
    ShowEnglish("corvane.htm");
    EXPECT_EQ(Title(), "Corvane");
}

TEST_F(AHelpWindow, DoesNotBelongToADialogThatBelongsToIt) {
    ShowEnglish("general.htm");
    QDialog dialog(window);
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.windowHandle()->transientParent(), window->windowHandle());
    EXPECT_EQ(window->windowHandle()->transientParent(), nullptr);
}

class AHelpWindowOnAPageWithALink : public AHelpWindow {
protected:
    void Follow(const char* link) {
        QDir().mkpath(folder_.filePath("en"));
        for (const char* name : {"en/dtmf.htm", "en/readme.txt"}) {
            QFile file(folder_.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write((std::string("<title>Here</title><p><a href=\"") + link + "\">Link</a></p>").c_str());
        }
        QtHelpViewer viewer(QStringList{folder_.path()});
        viewer.Show({Language::English, "dtmf.htm"});
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "HelpWindow") {
                window = widget;
            }
        }
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
        EXPECT_EQ(PageFile(), "dtmf.htm") << link;
        EXPECT_EQ(Title(), "Here") << link;
    }

    QTemporaryDir folder_;
};

TEST_F(AHelpWindowOnAPageWithALink, DoesNothingForLinksThatLeadToNoPageOfTheHelp) {
    Follow("http://example.org/page.htm");
    Follow("mailto:nobody@example.org");
    Follow("missing.htm");
    Follow("readme.txt");
    Follow("file:///etc/passwd");
    Follow("../../../../../../../etc/hostname");
}

TEST_F(AHelpWindowOnAPageWithALink, DoesNothingForALinkOutOfTheHelp) {
    QTemporaryDir elsewhere;
    QFile file(elsewhere.filePath("other.htm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<title>Other</title>");
    file.close();
    Follow(QUrl::fromLocalFile(file.fileName()).toEncoded().constData());
}

} // namespace
} // namespace zelvor
