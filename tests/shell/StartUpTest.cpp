#include <QMdiArea>
#include <QMdiSubWindow>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

using StartUpTest = ShellTest;
using Writes = std::vector<std::pair<std::string, std::string>>;

TEST_F(StartUpTest, AFirstRunIsADocumentOfModel4618InEnglish) {
    OpenMainWindow();
    EXPECT_EQ(window->objectName(), "MDIForm1");
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
    EXPECT_EQ(windows.LanguageFlag, Language::English);
    EXPECT_EQ(document.Image.At(0x1BD), 1);
    EXPECT_EQ(document.Image.At(0x1BE), 0xF8);
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(Commands().LastDirectory(), "");
}

TEST_F(StartUpTest, AFirstRunStoresTheModelBeforeTheWindowAppears) {
    window = std::make_unique<MDIForm1>(State(), fakes.Get());
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(fakes.settings.Writes(), (Writes{{"LastModel", "50:34:36:31:38:01:F8:FF"}}));
}

TEST_F(StartUpTest, ALaterRunStoresNothingAtStart) {
    fakes.settings.Preset("LastModel", "50:35:36:31:33:70:F9:FF");
    OpenMainWindow();
    EXPECT_TRUE(fakes.settings.Writes().empty());
    EXPECT_EQ(window->windowTitle(), "Zelvor [5613: UHF: 470-512 MHz(K2)] [ File Name:Zelvor.dat]");
}

TEST_F(StartUpTest, ASettingThatCannotBeReadIsTheDefaultModel) {
    fakes.settings.Preset("LastModel", "50:35:36:31");
    OpenMainWindow();
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST_F(StartUpTest, TheRememberedLanguageIsUsedFromTheStart) {
    OpenMainWindowInChinese();
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ 文件名:Zelvor.dat]");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " 信道信息 [ 信道 - 1 ]");
    Choose("MnuHelpTopics");
    EXPECT_TRUE(fakes.help.Topics().back().ends_with("\\Zelvor_c.chm::/html/general.htm"));
}

TEST_F(StartUpTest, TheHelpFileIsTheEnglishOneInEnglish) {
    OpenMainWindow();
    Choose("MnuHelpTopics");
    EXPECT_TRUE(fakes.help.Topics().back().ends_with("\\Zelvor_e.chm::/html/general.htm"));
}

TEST_F(StartUpTest, TheSessionStartsCleanWhateverItHeld) {
    document.Priority.SetError(true);
    document.Flags.OwnIdError = true;
    document.Flags.TxCodeError = true;
    windows.ExitConfirmed = true;
    link.SentState = 4;
    link.CommPortNumber = 7;
    OpenMainWindow();
    EXPECT_FALSE(document.Priority.PriorityChannelError() || document.Flags.OwnIdError || document.Flags.TxCodeError);
    EXPECT_FALSE(windows.ExitConfirmed || Commands().IsSaveCancelled());
    EXPECT_EQ(link.SentState, 55);
    EXPECT_EQ(link.CommPortNumber, 1);
    EXPECT_FALSE(document.IsDocumentChanged());
}

TEST_F(StartUpTest, TheGridIsOpenListedAndActive) {
    OpenMainWindow();
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_EQ(Child("ChannelForm")->parentWidget()->pos(), QPoint(0, 0));
    EXPECT_EQ(windows.Open(), (std::array<bool, 10>{true}));
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 1);
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isChecked());
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
}

TEST_F(StartUpTest, TheGridIsWhollyVisible) {
    OpenMainWindow();
    auto* area = window->findChild<QMdiArea*>();
    const QWidget* frame = Child("ChannelForm")->parentWidget();
    EXPECT_EQ(Child("ChannelForm")->size(), QSize(800, 433));
    EXPECT_TRUE(area->viewport()->rect().contains(frame->geometry()));
}

TEST_F(StartUpTest, TheWindowIconIsDrawnAtEverySize) {
    OpenMainWindow();
    EXPECT_FALSE(window->windowIcon().isNull());
    EXPECT_EQ(window->windowIcon().pixmap(QSize(48, 48), 2.0).size(), QSize(96, 96));
}

} // namespace
} // namespace zelvor
