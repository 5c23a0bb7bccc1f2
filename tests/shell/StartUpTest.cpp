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
    EXPECT_EQ(session.LanguageFlag, Language::English);
    EXPECT_EQ(session.Image.At(0x1BD), 1);
    EXPECT_EQ(session.Image.At(0x1BE), 0xF8);
    EXPECT_EQ(session.CurrentFileName, "Zelvor.dat");
    EXPECT_EQ(session.CurrentDirectory, "");
}

TEST_F(StartUpTest, AFirstRunStoresTheModelBeforeTheWindowAppears) {
    window = std::make_unique<MDIForm1>(session, fakes.Get());
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
    session.Priority.SetError(true);
    session.OwnIdError = true;
    session.TxCodeError = true;
    session.ExitConfirmed = true;
    session.SaveCancelled = true;
    session.Link.SentState = 4;
    session.CommPortNumber = 7;
    OpenMainWindow();
    EXPECT_FALSE(session.Priority.PriorityChannelError() || session.OwnIdError || session.TxCodeError);
    EXPECT_FALSE(session.ExitConfirmed || session.SaveCancelled);
    EXPECT_EQ(session.Link.SentState, 55);
    EXPECT_EQ(session.CommPortNumber, 1);
    EXPECT_FALSE(session.IsDocumentChanged());
}

TEST_F(StartUpTest, TheGridIsOpenListedAndActive) {
    OpenMainWindow();
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_EQ(Child("ChannelForm")->parentWidget()->pos(), QPoint(0, 0));
    EXPECT_EQ(session.ChildOpen, (std::array<bool, 10>{true}));
    EXPECT_EQ(session.Cursor.CurrentChannel(), 1);
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
