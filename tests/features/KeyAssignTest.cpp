#include "features/KeyAssign.h"

#include <QPainter>

#include "channels/ChildFormFixture.h"
#include "data/BlankImage.h"
#include "features/RadioPicture.h"

namespace zelvor {
namespace {

class KeyAssignTest : public ChildFormTest<KeyAssign> {
protected:
    void SetUp() override { Put(0x11D, {6, 9}); } // Scan, Squelch Off

    std::string Chosen(const char* name) { return List(name).currentText().toStdString(); }
    RadioPicture& Picture() { return Find<RadioPicture>("Pickey"); }
    int Number() { return Picture().property("number").toInt(); }
    /// The picture at so many device pixels to a logical one.
    QImage Drawn(qreal ratio) {
        QImage image((QSizeF(Picture().size()) * ratio).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::black);
        Picture().render(&image);
        image.setDevicePixelRatio(1);
        return image;
    }
};

const QStringList EnglishFunctions{"None",
                                   "Autodial",
                                   "Key Lock",
                                   "Key Lock with Backup",
                                   "Monitor",
                                   "Monitor Momentary",
                                   "Scan",
                                   "Scan+Temporary Delete",
                                   "Scrambler",
                                   "Squelch Off",
                                   "Squelch Off Momentary",
                                   "Temporary Delete"};
const QStringList ChineseFunctions{"无",   "自动拨号",      "按键锁定", "按键锁定及备份", "监听",         "监听瞬时",
                                   "扫描", "扫描+暂时删除", "扰频器",   "取消静噪",       "瞬时取消静噪", "暂时删除"};
constexpr int FunctionBytes[] = {0xFF, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

/// The entry that a byte shows: its own number where it is one of the list, else None.
int EntryOfByte(int byte) {
    return byte == 0 ? 1 : byte <= 11 ? byte : 0;
}

TEST_F(KeyAssignTest, TextsAreEnglishInEnglish) {
    Show();
    EXPECT_EQ(form->windowTitle(), "Key Assignment");
    EXPECT_EQ(Find<QLabel>("lblKey(0)").text(), "PF1");
    EXPECT_EQ(Find<QLabel>("lblKey(1)").text(), "PF2");
    EXPECT_EQ(Entries("cboKey(0)"), EnglishFunctions);
    EXPECT_EQ(Entries("cboKey(1)"), EnglishFunctions);
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
    ExpectNoTextCutOff();
}

TEST_F(KeyAssignTest, TextsAreChineseInChinese) {
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "键设定");
    EXPECT_EQ(Find<QLabel>("lblKey(0)").text(), "PF1");
    EXPECT_EQ(Find<QLabel>("lblKey(1)").text(), "PF2");
    EXPECT_EQ(Entries("cboKey(0)"), ChineseFunctions);
    EXPECT_EQ(Entries("cboKey(1)"), ChineseFunctions);
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "关闭(&C)");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "帮助(&H)");
    ExpectNoTextCutOff();
}

TEST_F(KeyAssignTest, IsThreeHundredTwentySevenByFourHundredFortyPixels) {
    Load();
    EXPECT_EQ(form->size(), QSize(327, 440)); // 4905 by 6600 twips
    EXPECT_EQ(form->Window(), ChildWindow::KeyAssignment);
    EXPECT_EQ(form->objectName(), "KeyAssign");
    EXPECT_TRUE(Find<QWidget>("picKeyAssign").isAncestorOf(&List("cboKey(1)")));
    EXPECT_TRUE(Find<QWidget>("picKeyAssign").isAncestorOf(&Picture()));
}

TEST_F(KeyAssignTest, EveryControlHasAnAccessibleName) {
    Show();
    EXPECT_EQ(List("cboKey(0)").accessibleName(), "PF1");
    EXPECT_EQ(List("cboKey(1)").accessibleName(), "PF2");
    EXPECT_EQ(Picture().accessibleName(), "The radio, key PF1 marked");
    List("cboKey(1)").setFocus();
    EXPECT_EQ(Picture().accessibleName(), "The radio, key PF2 marked");
    Show(Language::Chinese);
    EXPECT_EQ(Picture().accessibleName(), "对讲机图，已标出PF1键");
    List("cboKey(1)").setFocus();
    EXPECT_EQ(Picture().accessibleName(), "对讲机图，已标出PF2键");
}

TEST_F(KeyAssignTest, ANewDocumentHasNoFunctionAndSquelchOffMomentary) {
    Put(0x1BD, {0x01, 0xF8});
    InitAllFrameData(document.Image);
    EXPECT_EQ(At(0x11D), 0xFF);
    EXPECT_EQ(At(0x11E), 10);
    Load();
    EXPECT_EQ(Chosen("cboKey(0)"), "None");
    EXPECT_EQ(Chosen("cboKey(1)"), "Squelch Off Momentary");
}

TEST_F(KeyAssignTest, EveryByteShowsItsFunctionAndOneWithoutAFunctionNone) {
    for (int byte = 0; byte < 256; ++byte) {
        Put(0x11D, {byte, 255 - byte});
        Load(byte % 2 == 0 ? Language::English : Language::Chinese);
        EXPECT_EQ(List("cboKey(0)").currentIndex(), EntryOfByte(byte)) << byte;
        EXPECT_EQ(List("cboKey(1)").currentIndex(), EntryOfByte(255 - byte)) << 255 - byte;
        EXPECT_EQ(At(0x11D), byte);
        EXPECT_EQ(At(0x11E), 255 - byte);
    }
}

TEST_F(KeyAssignTest, EachFunctionIsStoredForItsOwnKeyWhenTheListIsLeft) {
    for (int entry = 0; entry < 12; ++entry) {
        Put(0x11D, {6, 9});
        const DataImage before = document.Image;
        Show();
        Choose("cboKey(0)", entry);
        EXPECT_EQ(At(0x11D), 6) << entry;
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(0x11D), FunctionBytes[entry]) << entry;
        EXPECT_EQ(At(0x11E), 9) << entry;
        Choose("cboKey(1)", entry);
        Key(Qt::Key_Return);
        EXPECT_EQ(At(0x11E), FunctionBytes[entry]) << entry;
        for (const int address : Differences(document.Image, before)) {
            EXPECT_TRUE(address == 0x11D || address == 0x11E) << address;
        }
    }
}

TEST_F(KeyAssignTest, LeavingTheListsKeepsLegalBytesAndBringsOthersIntoForm) {
    for (int byte = 0; byte < 256; ++byte) {
        Put(0x11D, {byte, byte});
        Show();
        Key(Qt::Key_Tab);
        Key(Qt::Key_Tab);
        const int stored = byte == 1 ? 0 : byte <= 11 ? byte : 0xFF;
        EXPECT_EQ(At(0x11D), stored) << byte;
        EXPECT_EQ(At(0x11E), stored) << byte;
    }
}

TEST_F(KeyAssignTest, NoneIsStoredAsErased) {
    Show();
    Choose("cboKey(0)", 0);
    Click("cmdClose");
    EXPECT_EQ(At(0x11D), 0xFF);
}

TEST_F(KeyAssignTest, ThePictureMarksTheKeyWhoseListHasTheFocus) {
    Show();
    EXPECT_EQ(Number(), 103);
    const QImage pf1 = Drawn(1);
    QTest::mouseClick(&List("cboKey(1)"), Qt::LeftButton);
    List("cboKey(1)").hidePopup();
    EXPECT_EQ(Number(), 105);
    const QImage pf2 = Drawn(1);
    EXPECT_NE(pf1, pf2);
    List("cboKey(0)").setFocus();
    EXPECT_EQ(Number(), 103);
    EXPECT_EQ(Drawn(1), pf1);
}

TEST_F(KeyAssignTest, ThePictureKeepsItsMarkWhileTheFocusIsOnAButton) {
    Show();
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus());
    EXPECT_EQ(Number(), 105);
}

TEST_F(KeyAssignTest, ThePictureIsDrawnAnewForADenserScreen) {
    Show();
    const QImage dense = Drawn(2);
    const QImage enlarged = Drawn(1).scaled(dense.size());
    // Enlarged pixels come in equal blocks of four, a drawing's edges do not.
    const auto blocks = [](const QImage& image) {
        int uneven = 0;
        for (int y = 0; y + 1 < image.height(); y += 2) {
            for (int x = 0; x + 1 < image.width(); x += 2) {
                uneven += image.pixel(x, y) != image.pixel(x + 1, y + 1) ? 1 : 0;
            }
        }
        return uneven;
    };
    EXPECT_EQ(blocks(enlarged), 0);
    EXPECT_GT(blocks(dense), 500);
}

TEST_F(KeyAssignTest, EnterAndTabMoveThroughTheFieldsInOrder) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
        Show();
        EXPECT_TRUE(List("cboKey(0)").hasFocus());
        Key(key);
        EXPECT_TRUE(List("cboKey(1)").hasFocus());
        Key(key);
        EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus());
        Key(Qt::Key_Tab);
        EXPECT_TRUE(Find<QPushButton>("cmdHelp").hasFocus());
        Key(Qt::Key_Tab);
        EXPECT_TRUE(List("cboKey(0)").hasFocus());
    }
}

TEST_F(KeyAssignTest, HelpOpensThePageInTheLanguage) {
    Show();
    EXPECT_EQ(form->HelpPage(), "keyassign.htm");
    Click("cmdHelp");
    Show(Language::Chinese);
    Click("cmdHelp");
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_TRUE(services.help.Topics()[0].ends_with("\\Zelvor_e.chm::/html/keyassign.htm"));
    EXPECT_TRUE(services.help.Topics()[1].ends_with("\\Zelvor_c.chm::/html/keyassign.htm"));
}

TEST_F(KeyAssignTest, BothWaysToCloseStoreWhatIsBeingChosenAndAskToBeUnloaded) {
    Show();
    const QSignalSpy unload(form.get(), &ChildForm::UnloadRequested);
    Choose("cboKey(0)", 3);
    Click("cmdClose");
    EXPECT_EQ(unload.count(), 1);
    EXPECT_EQ(At(0x11D), 3);
    Choose("cboKey(1)", 4);
    form->CloseFromFrame();
    EXPECT_EQ(unload.count(), 2);
    EXPECT_EQ(At(0x11E), 4);
}

TEST_F(KeyAssignTest, AWindowThatIsDestroyedDropsWhatIsBeingChosen) {
    Show();
    Choose("cboKey(0)", 3);
    form.reset();
    EXPECT_EQ(At(0x11D), 6);
    EXPECT_EQ(At(0x11E), 9);
}

TEST_F(KeyAssignTest, OpensOnAnyImageAndAPassOfTheFocusChangesTheTwoBytesAlone) {
    const unsigned seed = 20270104;
    std::mt19937 random(seed);
    QWidget host;
    host.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    for (int i = 0; i < 2000; ++i) {
        document.Image = RandomImage(random);
        windows.LanguageFlag = i % 2 == 0 ? Language::English : Language::Chinese;
        const DataImage before = document.Image;
        KeyAssign window(document, windows, services.Get(), &host);
        window.show();
        ASSERT_EQ(document.Image, before) << "seed " << seed << ", image " << i;
        window.setFocus();
        Key(Qt::Key_Tab);
        Key(Qt::Key_Tab);
        for (const int address : Differences(document.Image, before)) {
            ASSERT_TRUE(address == 0x11D || address == 0x11E) << address << ", seed " << seed << ", image " << i;
        }
        for (const int address : {0x11D, 0x11E}) {
            ASSERT_TRUE(At(address) != 1 && (At(address) <= 11 || At(address) == 0xFF))
                << address << ", seed " << seed << ", image " << i;
        }
        window.CloseFromFrame();
    }
}

} // namespace
} // namespace zelvor
