#include "channels/ScanFormFixture.h"

namespace zelvor {
namespace {

using Bytes = std::vector<int>;

TEST_F(ScanFormTest, ShowsEveryFieldOfTheBlock) {
    Show();
    EXPECT_EQ(Chosen("cboPriority"), "Fixed");
    EXPECT_EQ(Text("txtPriorityCH"), "5");
    EXPECT_EQ(Text("txtLookBackTimeA"), "0.50");
    EXPECT_EQ(Spin("updLookBackTimeA"), 1);
    EXPECT_EQ(Text("txtLookBackTimeB"), "1.20");
    EXPECT_EQ(Spin("updLookBackTimeB"), 15);
    EXPECT_EQ(Chosen("cboRevertCH"), "Priority");
    EXPECT_EQ(Text("txtDropoutDelayTime"), "3");
    EXPECT_EQ(Spin("updDropoutDelayTime"), 3);
    EXPECT_EQ(Text("txtTXDwellTime"), "299");
    EXPECT_EQ(Spin("updTXDwellTime"), 299);
    EXPECT_EQ(Block(), (Bytes{1, 5, 1, 15, 2, 3, 0, 0x2B, 1}));
}

TEST_F(ScanFormTest, AnErasedImageShowsNoneAndEmptyBoxes) {
    document.Image.Fill(0xFF);
    Show();
    EXPECT_EQ(Chosen("cboPriority"), "None");
    EXPECT_EQ(Text("txtPriorityCH"), "");
    EXPECT_EQ(Text("txtLookBackTimeA"), "");
    EXPECT_EQ(Spin("updLookBackTimeA"), 1);
    EXPECT_EQ(Text("txtLookBackTimeB"), "");
    EXPECT_EQ(Spin("updLookBackTimeB"), 1);
    EXPECT_EQ(List("cboRevertCH").currentIndex(), -1);
    EXPECT_EQ(Text("txtDropoutDelayTime"), "");
    EXPECT_EQ(Spin("updDropoutDelayTime"), 0);
    EXPECT_EQ(Text("txtTXDwellTime"), "");
    EXPECT_EQ(Spin("updTXDwellTime"), 0);
    EXPECT_EQ(Block(), Bytes(9, 0xFF));
}

TEST_F(ScanFormTest, TextsAreEnglishInEnglish) {
    Show();
    EXPECT_EQ(form->windowTitle(), "Scan Information");
    const char* texts[][2] = {{"lblPriority", "Priority"},
                              {"lblPriorityCH", "Priority Channel"},
                              {"lblLookBackTimeA", "Look Back Time A [s]"},
                              {"lblLookBackTimeB", "Look Back Time B [s]"},
                              {"lblRevertCH", "Revert Channel"},
                              {"lblDropoutDelayTime", "Dropout Delay Time [s]"},
                              {"lblTXDwellTime", "Tx Dwell Time [s]"}};
    for (const auto& [name, text] : texts) {
        EXPECT_EQ(Find<QLabel>(name).text(), text);
    }
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
    EXPECT_EQ(Entries("cboPriority"), (QStringList{"None", "Fixed", "Selected"}));
    EXPECT_EQ(Entries("cboRevertCH"),
              (QStringList{"Selected", "Selected + Talk Back", "Priority", "Priority + Talk Back "}));
    ExpectNoTextCutOff();
}

TEST_F(ScanFormTest, TextsAreChineseInChinese) {
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "扫描信息");
    const char* texts[][2] = {{"lblPriority", "优先"},
                              {"lblPriorityCH", "优先信道"},
                              {"lblLookBackTimeA", "回扫时间 A [s]"},
                              {"lblLookBackTimeB", "回扫时间 B [s]"},
                              {"lblRevertCH", "返回信道"},
                              {"lblDropoutDelayTime", "扫描接收恢复延迟时间[s]"},
                              {"lblTXDwellTime", "扫描发射恢复延迟时间[s]"}};
    for (const auto& [name, text] : texts) {
        EXPECT_EQ(Find<QLabel>(name).text(), text);
    }
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "关闭(&C)");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "帮助(&H)");
    EXPECT_EQ(Entries("cboPriority"), (QStringList{"无", "固定", "选定"}));
    EXPECT_EQ(Entries("cboRevertCH"), (QStringList{"选定", "选定＋当前通话", "优先", "优先＋当前通话"}));
    ExpectNoTextCutOff();
}

TEST_F(ScanFormTest, EveryControlHasAnAccessibleName) {
    Load();
    EXPECT_EQ(List("cboPriority").accessibleName(), "Priority");
    EXPECT_EQ(Box("txtPriorityCH").accessibleName(), "Priority Channel");
    EXPECT_EQ(Find<UpDown>("updLookBackTimeA").accessibleName(), "Look Back Time A [s]");
    EXPECT_EQ(Find<UpDown>("updLookBackTimeB").accessibleName(), "Look Back Time B [s]");
    EXPECT_EQ(List("cboRevertCH").accessibleName(), "Revert Channel");
    EXPECT_EQ(Find<UpDown>("updDropoutDelayTime").accessibleName(), "Dropout Delay Time [s]");
    EXPECT_EQ(Find<UpDown>("updTXDwellTime").accessibleName(), "Tx Dwell Time [s]");
}

TEST_F(ScanFormTest, IsThreeHundredFortyFiveByThreeHundredNinetyThreePixels) {
    Load();
    EXPECT_EQ(form->size(), QSize(345, 393)); // 5175 by 5895 twips
    EXPECT_EQ(form->Window(), ChildWindow::Scan);
    EXPECT_EQ(form->objectName(), "ScanForm");
    EXPECT_TRUE(Find<QWidget>("picScanInfo").isAncestorOf(&Box("txtPriorityCH")));
}

TEST_F(ScanFormTest, EnterAndTabMoveThroughAllFieldsInOrder) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
        Show();
        EXPECT_TRUE(List("cboPriority").hasFocus());
        for (const char* name : {"txtPriorityCH", "txtLookBackTimeA", "txtLookBackTimeB"}) {
            Key(key);
            EXPECT_TRUE(Box(name).hasFocus()) << name;
            EXPECT_EQ(Box(name).selectedText(), Box(name).text()) << name;
        }
        Key(key);
        EXPECT_TRUE(List("cboRevertCH").hasFocus());
        for (const char* name : {"txtDropoutDelayTime", "txtTXDwellTime"}) {
            Key(key);
            EXPECT_TRUE(Box(name).hasFocus()) << name;
            EXPECT_EQ(Box(name).selectedText(), Box(name).text()) << name;
        }
        Key(key);
        EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus());
        // Every field was left once and committed what it showed.
        EXPECT_EQ(Block(), (Bytes{1, 5, 1, 15, 2, 3, 0, 0x2B, 1}));
    }
}

TEST_F(ScanFormTest, HelpOpensThePageInTheLanguage) {
    Show();
    Click("cmdHelp");
    Show(Language::Chinese);
    Click("cmdHelp");
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_NE(services.help.Topics()[0].find("\\Zelvor_e.chm::/html/scaninfo.htm"), std::string::npos);
    EXPECT_NE(services.help.Topics()[1].find("\\Zelvor_c.chm::/html/scaninfo.htm"), std::string::npos);
}

TEST_F(ScanFormTest, BothWaysToCloseCommitWhatIsBeingEditedAndAskToBeUnloaded) {
    Show();
    QSignalSpy unload(form.get(), &ChildForm::UnloadRequested);
    Box("txtDropoutDelayTime").setFocus();
    Type("77");
    Click("cmdClose");
    EXPECT_EQ(unload.count(), 1);
    EXPECT_EQ(At(0x165), 77);
    Box("txtDropoutDelayTime").setFocus();
    Type("78");
    form->CloseFromFrame();
    EXPECT_EQ(unload.count(), 2);
    EXPECT_EQ(At(0x165), 78);
}

TEST_F(ScanFormTest, AWindowThatIsDestroyedDropsWhatIsBeingEdited) {
    for (const char* name : {"txtPriorityCH", "txtLookBackTimeA", "txtDropoutDelayTime"}) {
        Show();
        Box(name).setFocus();
        Type("9");
        form.reset();
        EXPECT_EQ(Block(), (Bytes{1, 5, 1, 15, 2, 3, 0, 0x2B, 1})) << name;
    }
    Show();
    Choose("cboRevertCH", 3);
    form.reset();
    EXPECT_EQ(At(0x164), 2);
}

TEST_F(ScanFormTest, TheWindowListensOnlyWhileItLives) {
    Load();
    windows.SetOpen(ChildWindow::Scan, true);
    document.Priority.Mark(7);
    EXPECT_EQ(Text("txtPriorityCH"), "7");
    form.reset();
    document.Priority.Mark(8);
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 8);
}

TEST_F(ScanFormTest, OpeningAndClosingAWindowOfLegalValuesChangesNothing) {
    const DataImage before = document.Image;
    Show();
    Click("cmdClose");
    Show();
    form->CloseFromFrame();
    form.reset();
    EXPECT_EQ(Differences(document.Image, before), Bytes{});
}

TEST_F(ScanFormTest, ClosingAnErasedWindowStoresTheModeThatWasShownForIt) {
    document.Image.Fill(0xFF);
    Show(); // the focus is on cboPriority, which commits on leaving
    Click("cmdClose");
    EXPECT_EQ(At(0x160), 0);
    document.Image.Set(0x160, 0xFF);
    EXPECT_EQ(document.Image, DataImage());
}

// Scan blocks of random bytes, some with a mode that exists. What opening may change: with the mode None, Selected or
// erased the priority channel goes.
TEST_F(ScanFormTest, OpensOnAnyImageAndChangesNothingButThePriorityChannelOfAModeWithout) {
    const unsigned seed = 20261121;
    std::mt19937 random(seed);
    std::vector<DataImage> images(2, DataImage());
    images[0].Fill(0x00);
    for (int i = 0; i < 2000; ++i) {
        images.push_back(RandomImage(random));
        if (const int mode = i % 5; mode < 4) {
            images.back().Set(0x160, static_cast<std::uint8_t>(mode == 3 ? 0xFF : mode));
        }
    }
    for (const DataImage& image : images) {
        document.Image = image;
        Load(random() % 2 == 0 ? Language::English : Language::Chinese);
        DataImage expected = image;
        const int mode = image.At(0x160);
        if (mode == 0 || mode == 2 || mode == 0xFF) {
            expected.Set(0x161, 0xFF);
        }
        ASSERT_EQ(Differences(document.Image, expected), Bytes{}) << "seed " << seed;
        form->CloseFromFrame();
        form.reset();
        ASSERT_EQ(Differences(document.Image, expected), Bytes{}) << "seed " << seed;
    }
}

// The same with the window shown and every field entered and left by Tab: nothing outside the block changes, and a
// second walk changes nothing any more.
TEST_F(ScanFormTest, WalkingThroughTheFieldsOfAnyImageSettlesAtOnceAndStaysInTheBlock) {
    const unsigned seed = 4711;
    std::mt19937 random(seed);
    for (int i = 0; i < 100; ++i) {
        DataImage image = RandomImage(random);
        image.Set(0x160, static_cast<std::uint8_t>(i % 3));
        for (int channel = 1; channel <= 16; ++channel) {
            image.Set(channel * 16, 0x00); // so that no message comes
        }
        document.Image = image;
        Show();
        DataImage settled = image;
        for (int walk = 0; walk < 2; ++walk) {
            for (int step = 0; step < 9; ++step) {
                Key(Qt::Key_Tab);
            }
            if (walk == 0) {
                settled = document.Image;
            }
        }
        EXPECT_EQ(Differences(document.Image, settled), Bytes{}) << "seed " << seed << ", image " << i;
        for (const int address : Differences(settled, image)) {
            EXPECT_TRUE(address >= 0x160 && address <= 0x168) << address << ", seed " << seed << ", image " << i;
        }
    }
}

} // namespace
} // namespace zelvor
