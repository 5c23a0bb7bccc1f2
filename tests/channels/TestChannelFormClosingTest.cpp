#include "TestChannelFormFixture.h"

namespace zelvor {
namespace {

TEST_F(TestChannelFormTest, TheCloseButtonWarnsOfChangedFrequencies) {
    Show();
    Enter(1, 1, "145");
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    ExpectMessage("Warning", "Test Frequency data have changed.\n"
                             "please execute write to radio before entering into Test Mode.");
    Click("cmdClose");
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_EQ(services.messages.Pending(), 0);
    EXPECT_EQ(PairBytes(1), "0000501400005014"); // it only informs
}

TEST_F(TestChannelFormTest, TheWarningIsChineseInChinese) {
    Show(Language::Chinese);
    Enter(1, 1, "145");
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    ExpectMessage("警告", "测试频率数据已更改。\n在进入测试模式之前执行\"向对讲机写入数据\"。");
    Click("cmdClose");
    EXPECT_EQ(unloaded.count(), 1);
}

TEST_F(TestChannelFormTest, TheCloseButtonSaysNothingOfUnchangedFrequencies) {
    PutPair(1, "0025511400005015");
    Show();
    document.Image.Set(0x27F, 0x12); // other windows' bytes, either side of the table
    document.Image.Set(0x300, 0x12);
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    Click("cmdClose");
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_TRUE(services.messages.Shown().empty());
}

TEST_F(TestChannelFormTest, RestoringTheSameTextShowsNoWarning) {
    PutPair(1, "0025511400005015");
    Show();
    Enter(1, 1, "146");
    Enter(1, 1, "145.125");
    EXPECT_EQ(Row(1), (Pair{"145.12500", "155.00000"}));
    Click("cmdClose");
    EXPECT_TRUE(services.messages.Shown().empty());
}

TEST_F(TestChannelFormTest, AnyByteOfTheTableCountsAsAChange) {
    for (const int address : {0x280, 0x2FF}) {
        PutPair(1, "0025511400005015");
        Show();
        document.Image.Set(address, 0x01);
        ExpectMessage("Warning", "Test Frequency data have changed.\n"
                                 "please execute write to radio before entering into Test Mode.");
        Click("cmdClose");
        EXPECT_EQ(services.messages.Pending(), 0) << address;
    }
}

TEST_F(TestChannelFormTest, TheCloseButtonStoresAnOpenEditBeforeItCompares) {
    Show();
    Type("145");
    ExpectMessage("Warning", "Test Frequency data have changed.\n"
                             "please execute write to radio before entering into Test Mode.");
    Find<QPushButton>("cmdClose").click(); // as its shortcut does: the focus stays in the editor
    EXPECT_EQ(PairBytes(1), "0000501400005014");
    EXPECT_EQ(services.messages.Pending(), 0);
}

TEST_F(TestChannelFormTest, TheFrameClosesWithoutComparingOrWarning) {
    Show();
    Enter(1, 1, "145");
    Type("146");
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    form->CloseFromFrame();
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_TRUE(services.messages.Shown().empty());
    EXPECT_EQ(PairBytes(1), "0000501400006014");
}

TEST_F(TestChannelFormTest, AnEditStillOpenWhenTheWindowGoesIsDropped) {
    Show();
    const DataImage before = document.Image;
    Type("145");
    form.reset();
    EXPECT_EQ(document.Image, before);
}

TEST_F(TestChannelFormTest, ANewWindowComparesWithTheFrequenciesOfItsOwnOpening) {
    Show();
    Enter(1, 1, "145");
    form.reset();
    Show();
    Click("cmdClose");
    EXPECT_TRUE(services.messages.Shown().empty());
}

TEST_F(TestChannelFormTest, TheHelpButtonOpensThePageOfTheLanguage) {
    Show();
    Click("cmdHelp");
    Show(Language::Chinese);
    Click("cmdHelp");
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_TRUE(services.help.Topics()[0].ends_with("\\Zelvor_e.chm::/html/testfreq.htm"));
    EXPECT_TRUE(services.help.Topics()[1].ends_with("\\Zelvor_c.chm::/html/testfreq.htm"));
}

} // namespace
} // namespace zelvor
