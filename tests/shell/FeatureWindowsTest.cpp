#include <QMdiSubWindow>

#include "ShellTest.h"
#include "controls/ChildForm.h"

namespace zelvor {
namespace {

struct FeatureWindow {
    const char* entry = "";
    const char* name = "";
    int listEntry = 0;
    const char* listed = "";
    const char* listedInChinese = "";
    const char* title = "";
    const char* titleInChinese = "";
    QSize size; // logical pixels
    const char* page = "";
};

const FeatureWindow FeatureWindows[]{
    {"MnuEditOptionalFeatures", "OptionalForm", 1, " Optional Features", " 可选功能", "Optional Features", "可选功能",
     QSize(410, 600), "optfeatures.htm"},
    {"MnuEditKeyAssignment", "KeyAssign", 2, " Key Assignment", " 键设定", "Key Assignment", "键设定", QSize(327, 440),
     "keyassign.htm"},
    {"MnuEditDTMF", "DTMFForm", 4, " DTMF", " DTMF(双音多频)", "DTMF", "DTMF(双音多频)", QSize(419, 338), "dtmf.htm"},
    {"MnuEditCorvane", "CorvaneForm", 5, " Corvane", " Corvane(科瓦讯)", " Corvane", " Corvane(科瓦讯)", QSize(),
     "corvane.htm"},
};

class FeatureWindowsTest : public ShellTest {
protected:
    [[nodiscard]] QString Listed(int entry) { return TextOf("MnuWindowSub(" + std::to_string(entry) + ")"); }
    [[nodiscard]] ChildForm* Form(const char* name) const { return Find<ChildForm>(name); }
};

TEST_F(FeatureWindowsTest, MenuEntriesOpenThemListedAndMarked) {
    OpenMainWindow();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
        ASSERT_TRUE(IsChildShown(feature.name)) << feature.name;
        EXPECT_EQ(Form(feature.name)->windowTitle(), QString(feature.title));
        EXPECT_TRUE(windows.Open()[static_cast<std::size_t>(feature.listEntry)]) << feature.name;
        const QAction* entry = Entry("MnuWindowSub(" + std::to_string(feature.listEntry) + ")");
        EXPECT_TRUE(entry->isVisible());
        EXPECT_TRUE(entry->isChecked());
        EXPECT_EQ(entry->text(), QString(feature.listed));
    }
}

TEST_F(FeatureWindowsTest, TheirTextsAreChineseWhereTheLanguageIs) {
    OpenMainWindowInChinese();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
        EXPECT_EQ(Form(feature.name)->windowTitle(), QString(feature.titleInChinese));
        EXPECT_EQ(Listed(feature.listEntry), QString(feature.listedInChinese));
    }
}

TEST_F(FeatureWindowsTest, EachOpensAtTheTopLeftInItsSize) {
    OpenMainWindow();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
        const ChildForm* form = Form(feature.name);
        EXPECT_EQ(form->parentWidget()->pos(), QPoint(0, 0)) << feature.name;
        if (feature.size.isValid()) {
            EXPECT_EQ(form->size(), feature.size) << feature.name;
        }
    }
}

TEST_F(FeatureWindowsTest, CloseUnloadsThemAndTakesThemOffTheList) {
    OpenMainWindow();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
        ClickButton(feature.name, "cmdClose");
        EXPECT_EQ(Child(feature.name), nullptr) << feature.name;
        EXPECT_FALSE(windows.Open()[static_cast<std::size_t>(feature.listEntry)]);
        EXPECT_FALSE(Entry("MnuWindowSub(" + std::to_string(feature.listEntry) + ")")->isVisible());
    }
}

TEST_F(FeatureWindowsTest, ClosingTheFrameDoesTheSame) {
    OpenMainWindow();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
        CloseFrame(feature.name);
        EXPECT_EQ(Child(feature.name), nullptr) << feature.name;
        EXPECT_FALSE(windows.Open()[static_cast<std::size_t>(feature.listEntry)]);
    }
}

TEST_F(FeatureWindowsTest, EachExistsOnce) {
    OpenMainWindow();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
        const ChildForm* first = Form(feature.name);
        Choose(feature.entry);
        EXPECT_EQ(window->findChildren<ChildForm*>(feature.name), QList<ChildForm*>{const_cast<ChildForm*>(first)});
    }
}

TEST_F(FeatureWindowsTest, TheHelpButtonAndF1OpenTheWindowsPage) {
    OpenMainWindow();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
        const std::size_t before = fakes.help.Topics().size();
        ClickButton(feature.name, "cmdHelp");
        QTest::keyClick(Child(feature.name), Qt::Key_F1);
        ASSERT_EQ(fakes.help.Topics().size(), before + 2) << feature.name;
        for (std::size_t i = before; i < before + 2; ++i) {
            const std::string& topic = fakes.help.Topics()[i];
            EXPECT_TRUE(topic.ends_with(std::string("\\Zelvor_e.chm::/html/") + feature.page)) << topic;
        }
    }
}

TEST_F(FeatureWindowsTest, NewUnloadsThem) {
    OpenMainWindow();
    for (const FeatureWindow& feature : FeatureWindows) {
        Choose(feature.entry);
    }
    fakes.messages.Expect({"Warning", "All data will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                           MessageAnswer::Cancel},
                          MessageAnswer::Ok);
    Choose("MnuFileNew");
    for (const FeatureWindow& feature : FeatureWindows) {
        EXPECT_EQ(Child(feature.name), nullptr) << feature.name;
    }
}

} // namespace
} // namespace zelvor
