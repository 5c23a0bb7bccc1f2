#include "shell/LanguageForm.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

class LanguageFormTest : public ShellTest {
protected:
    void WithDialog(const std::function<void(QWidget&, QComboBox&)>& whileUp) {
        ChooseDialog("MnuSetupLanguageFileSetup", [&](QWidget& dialog) {
            ASSERT_EQ(dialog.objectName(), "LanguageForm");
            whileUp(dialog, *dialog.findChild<QComboBox*>("ComLanguage"));
            languageChanged = static_cast<LanguageForm&>(dialog).LanguageChanged();
        });
    }
    [[nodiscard]] std::string HelpTopic() {
        Choose("MnuHelpTopics");
        return fakes.help.Topics().back();
    }
    static QString TextOfButton(QWidget& dialog, const char* name) {
        return dialog.findChild<QPushButton*>(name)->text();
    }

    bool languageChanged = false; // of the dialog that was up last
};

TEST_F(LanguageFormTest, ShowsItsTextsAndTheLanguageInEnglish) {
    OpenMainWindow();
    WithDialog([](QWidget& dialog, QComboBox& list) {
        EXPECT_EQ(dialog.windowTitle(), "Language File Setup");
        EXPECT_EQ(dialog.findChild<QLabel*>("labLanguage")->text(), "Language Mode");
        EXPECT_EQ(list.accessibleName(), "Language Mode");
        EXPECT_EQ(TextOfButton(dialog, "CmdOK"), "&OK");
        EXPECT_EQ(TextOfButton(dialog, "CmdCancel"), "&Cancel");
        EXPECT_EQ(TextOfButton(dialog, "CmdHelp"), "&Help");
        ASSERT_EQ(list.count(), 2);
        EXPECT_EQ(list.itemText(0), "English");
        EXPECT_EQ(list.itemText(1), "Chinese");
        EXPECT_EQ(list.currentIndex(), 0);
        EXPECT_FALSE(list.isEditable());
        dialog.close();
    });
}

TEST_F(LanguageFormTest, ShowsItsTextsAndTheLanguageInChinese) {
    OpenMainWindowInChinese();
    WithDialog([](QWidget& dialog, QComboBox& list) {
        EXPECT_EQ(dialog.windowTitle(), "语言文件设置");
        EXPECT_EQ(dialog.findChild<QLabel*>("labLanguage")->text(), "语言模式");
        EXPECT_EQ(TextOfButton(dialog, "CmdOK"), "确定(&O)");
        EXPECT_EQ(TextOfButton(dialog, "CmdCancel"), "取消(&C)");
        EXPECT_EQ(TextOfButton(dialog, "CmdHelp"), "帮助(&H)");
        ASSERT_EQ(list.count(), 2);
        EXPECT_EQ(list.itemText(0), "英文");
        EXPECT_EQ(list.itemText(1), "中文");
        EXPECT_EQ(list.currentIndex(), 1);
        dialog.close();
    });
}

TEST_F(LanguageFormTest, OkSetsTheFlagAndTheHelpFile) {
    OpenMainWindow();
    WithDialog([](QWidget& dialog, QComboBox& list) {
        list.setCurrentIndex(1);
        Click(dialog, "CmdOK");
    });
    EXPECT_EQ(windows.LanguageFlag, Language::Chinese);
    EXPECT_TRUE(languageChanged);
    EXPECT_TRUE(HelpTopic().ends_with("\\Zelvor_c.chm::/html/general.htm"));
    WithDialog([](QWidget& dialog, QComboBox& list) {
        list.setCurrentIndex(0);
        Click(dialog, "CmdOK");
    });
    EXPECT_EQ(windows.LanguageFlag, Language::English);
    EXPECT_TRUE(languageChanged);
    EXPECT_TRUE(HelpTopic().ends_with("\\Zelvor_e.chm::/html/general.htm"));
}

TEST_F(LanguageFormTest, OkWithTheLanguageOfBeforeChangesNothing) {
    OpenMainWindow();
    WithDialog([](QWidget& dialog, QComboBox&) { Click(dialog, "CmdOK"); });
    EXPECT_EQ(windows.LanguageFlag, Language::English);
    EXPECT_FALSE(languageChanged);
}

TEST_F(LanguageFormTest, AnyOtherEndChangesNothing) {
    OpenMainWindow();
    const std::vector<std::function<void(QWidget&)>> ends{
        [](QWidget& dialog) { Click(dialog, "CmdCancel"); },
        [](QWidget& dialog) { dialog.close(); },
        [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
    };
    for (const auto& end : ends) {
        WithDialog([&](QWidget& dialog, QComboBox& list) {
            list.setCurrentIndex(1);
            end(dialog);
        });
        EXPECT_EQ(windows.LanguageFlag, Language::English);
        EXPECT_FALSE(languageChanged);
        EXPECT_TRUE(HelpTopic().ends_with("\\Zelvor_e.chm::/html/general.htm"));
    }
}

TEST_F(LanguageFormTest, HelpShowsItsPage) {
    OpenMainWindow();
    WithDialog([](QWidget& dialog, QComboBox&) {
        Click(dialog, "CmdHelp");
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
        QTest::keyClick(&dialog, Qt::Key_F1);
        dialog.close();
    });
    ASSERT_EQ(fakes.help.Topics().size(), 2U);
    for (const std::string& topic : fakes.help.Topics()) {
        EXPECT_TRUE(QString::fromStdString(topic).endsWith("\\Zelvor_e.chm::/html/language.htm"));
    }
}

TEST_F(LanguageFormTest, HelpShowsTheChinesePageInChinese) {
    OpenMainWindowInChinese();
    WithDialog([](QWidget& dialog, QComboBox&) {
        Click(dialog, "CmdHelp");
        dialog.close();
    });
    ASSERT_EQ(fakes.help.Topics().size(), 1U);
    EXPECT_TRUE(QString::fromStdString(fakes.help.Topics()[0]).endsWith("\\Zelvor_c.chm::/html/language.htm"));
}

} // namespace
} // namespace zelvor
