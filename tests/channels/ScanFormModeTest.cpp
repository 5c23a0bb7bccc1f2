#include "channels/ChannelEditForm.h"
#include "channels/ChannelForm.h"
#include "channels/ScanFormFixture.h"

#include <QCheckBox>

namespace zelvor {
namespace {

using Bytes = std::vector<int>;

class ScanFormModeTest : public ScanFormTest {
protected:
    void ExpectEnabled(bool priorityChannel, bool lookBack) {
        EXPECT_EQ(Box("txtPriorityCH").isEnabled(), priorityChannel);
        EXPECT_EQ(Box("txtLookBackTimeA").isEnabled(), lookBack);
        EXPECT_EQ(Find<UpDown>("updLookBackTimeA").isEnabled(), lookBack);
        EXPECT_EQ(Box("txtLookBackTimeB").isEnabled(), lookBack);
        EXPECT_EQ(Find<UpDown>("updLookBackTimeB").isEnabled(), lookBack);
        EXPECT_TRUE(List("cboRevertCH").isEnabled());
        EXPECT_TRUE(Box("txtDropoutDelayTime").isEnabled());
        EXPECT_TRUE(Box("txtTXDwellTime").isEnabled());
    }
    QColor Ground(const char* box) {
        const QLineEdit& edit = Box(box);
        return edit.palette().color(edit.isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Base);
    }
};

TEST_F(ScanFormModeTest, NoneEmptiesThePriorityChannelAndDisablesLookBack) {
    Show();
    document.Priority.Enter(5);
    document.Priority.SetError(true);
    Choose("cboPriority", 0);
    EXPECT_FALSE(document.Priority.PriorityFixedMode());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 0);
    EXPECT_FALSE(document.Priority.PriorityChannelError());
    EXPECT_EQ(Text("txtPriorityCH"), "");
    ExpectEnabled(false, false);
    EXPECT_EQ(Entries("cboRevertCH"), (QStringList{"Selected", "Selected + Talk Back"}));
    // The look back times keep their bytes, and the mode's own byte waits until the list is left.
    EXPECT_EQ(Block(), (Bytes{1, 0xFF, 1, 15, 1, 3, 0, 0x2B, 1}));
    Key(Qt::Key_Tab);
    EXPECT_EQ(Block(), (Bytes{0, 0xFF, 1, 15, 1, 3, 0, 0x2B, 1}));
}

TEST_F(ScanFormModeTest, FixedOpensThePriorityChannelAndAllRevertChannels) {
    document.Image.Set(0x160, 0);
    Show();
    EXPECT_EQ(At(0x161), 0xFF);
    Choose("cboPriority", 1);
    EXPECT_TRUE(document.Priority.PriorityFixedMode());
    EXPECT_TRUE(document.Priority.PriorityChannelError()); // no channel yet
    EXPECT_EQ(Text("txtPriorityCH"), "");
    ExpectEnabled(true, true);
    EXPECT_EQ(Entries("cboRevertCH"),
              (QStringList{"Selected", "Selected + Talk Back", "Priority", "Priority + Talk Back "}));
    EXPECT_EQ(At(0x160), 0);
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x160), 1);
}

TEST_F(ScanFormModeTest, SelectedEmptiesThePriorityChannelAndKeepsLookBack) {
    Show();
    document.Priority.Enter(5);
    document.Priority.SetError(true);
    Choose("cboPriority", 2);
    EXPECT_FALSE(document.Priority.PriorityFixedMode());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 0);
    EXPECT_FALSE(document.Priority.PriorityChannelError());
    EXPECT_EQ(Text("txtPriorityCH"), "");
    EXPECT_EQ(At(0x161), 0xFF);
    ExpectEnabled(false, true);
    EXPECT_EQ(Entries("cboRevertCH"), (QStringList{"Priority", "Priority + Talk Back "}));
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x160), 2);
}

TEST_F(ScanFormModeTest, DisabledBoxesAreGreyAndEnabledOnesHaveTheWindowColour) {
    Show();
    const QPalette palette = QApplication::palette();
    for (const char* name : {"txtPriorityCH", "txtLookBackTimeA", "txtLookBackTimeB"}) {
        EXPECT_EQ(Ground(name), palette.color(QPalette::Active, QPalette::Base)) << name;
    }
    Choose("cboPriority", 0);
    for (const char* name : {"txtPriorityCH", "txtLookBackTimeA", "txtLookBackTimeB"}) {
        EXPECT_EQ(Ground(name), palette.color(QPalette::Disabled, QPalette::Window)) << name;
    }
}

TEST_F(ScanFormModeTest, SelectingByCodeIsASelectionOfTheUsers) {
    Show();
    List("cboPriority").setCurrentIndex(2);
    EXPECT_EQ(At(0x161), 0xFF);
    EXPECT_EQ(List("cboRevertCH").count(), 2);
}

TEST_F(ScanFormModeTest, InFixedModeThePriorityChannelErrorFollowsTheByte) {
    for (int byte = 0; byte <= 255; ++byte) {
        document.Image.Set(0x161, static_cast<std::uint8_t>(byte));
        Load();
        EXPECT_EQ(document.Priority.PriorityChannelError(), !(byte >= 1 && byte <= 16)) << byte;
        EXPECT_TRUE(document.Priority.PriorityFixedMode());
        EXPECT_EQ(At(0x161), byte);
        EXPECT_EQ(Text("txtPriorityCH"), byte == 255 ? "" : std::to_string(byte));
    }
}

TEST_F(ScanFormModeTest, EveryByteOfTheModeShowsAsItsEntryAndGoesBackUntouched) {
    for (int byte = 0; byte <= 255; ++byte) {
        document.Image.Set(0x160, static_cast<std::uint8_t>(byte));
        document.Image.Set(0x161, 5);
        Show();
        const int shown = byte <= 2 ? byte : byte == 255 ? 0 : -1;
        EXPECT_EQ(List("cboPriority").currentIndex(), shown) << byte;
        EXPECT_EQ(document.Priority.PriorityFixedMode(), byte == 1) << byte;
        EXPECT_EQ(At(0x160), byte);
        Find<QPushButton>("cmdHelp").setFocus();
        EXPECT_EQ(At(0x160), byte == 255 ? 0 : byte);
    }
}

TEST_F(ScanFormModeTest, AModeThatDoesNotExistShowsTheBlockAsItIsAndIsNotFixed) {
    document.Image.Set(0x160, 7);
    document.Priority.SetError(true);
    document.Priority.Enter(3);
    Show();
    EXPECT_EQ(List("cboPriority").currentIndex(), -1);
    EXPECT_EQ(Text("txtPriorityCH"), "5");
    ExpectEnabled(false, true);
    EXPECT_EQ(Chosen("cboRevertCH"), "Priority");
    EXPECT_FALSE(document.Priority.PriorityChannelError());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 0);
    EXPECT_EQ(Block(), (Bytes{7, 5, 1, 15, 2, 3, 0, 0x2B, 1}));
}

struct Revert {
    int mode;
    int byte;
    int index;
    const char* text;
    int afterLeaving;
};

TEST_F(ScanFormModeTest, TheRevertByteSelectsTheEntryOfItsModesListAndStaysUntilTheListIsLeft) {
    const Revert reverts[] = {
        {0, 0, 0, "Selected", 0}, {0, 1, 1, "Selected + Talk Back", 1},
        {0, 2, 0, "Selected", 0}, {0, 3, 1, "Selected + Talk Back", 1},
        {0, 4, -1, "", 4},        {0, 255, -1, "", 255},
        {1, 0, 0, "Selected", 0}, {1, 1, 1, "Selected + Talk Back", 1},
        {1, 2, 2, "Priority", 2}, {1, 3, 3, "Priority + Talk Back ", 3},
        {1, 4, -1, "", 4},        {1, 255, -1, "", 255},
        {2, 0, 0, "Priority", 2}, {2, 1, 1, "Priority + Talk Back ", 3},
        {2, 2, 0, "Priority", 2}, {2, 3, 1, "Priority + Talk Back ", 3},
        {2, 4, -1, "", 4},        {2, 255, -1, "", 255},
    };
    for (const Revert& revert : reverts) {
        document.Image.Set(0x160, static_cast<std::uint8_t>(revert.mode));
        document.Image.Set(0x164, static_cast<std::uint8_t>(revert.byte));
        Show();
        EXPECT_EQ(List("cboRevertCH").currentIndex(), revert.index) << revert.mode << ' ' << revert.byte;
        EXPECT_EQ(Chosen("cboRevertCH"), revert.text) << revert.mode << ' ' << revert.byte;
        EXPECT_EQ(At(0x164), revert.byte);
        List("cboRevertCH").setFocus();
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(0x164), revert.afterLeaving) << revert.mode << ' ' << revert.byte;
    }
}

TEST_F(ScanFormModeTest, EveryOtherRevertByteShowsNoSelectionAndGoesBackUntouched) {
    Show();
    for (int byte = 4; byte <= 255; ++byte) {
        document.Image.Set(0x164, static_cast<std::uint8_t>(byte));
        Show();
        EXPECT_EQ(List("cboRevertCH").currentIndex(), -1) << byte;
        List("cboRevertCH").setFocus();
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(0x164), byte);
    }
}

TEST_F(ScanFormModeTest, ChoosingARevertChannelStoresItOnLeavingInBothLanguages) {
    for (const Language language : {Language::English, Language::Chinese}) {
        document.Image.Set(0x164, 2);
        Show(language);
        for (int index = 0; index < 4; ++index) {
            const int before = At(0x164);
            Choose("cboRevertCH", index);
            EXPECT_EQ(At(0x164), before);
            Key(Qt::Key_Return);
            EXPECT_EQ(At(0x164), index);
        }
    }
}

TEST_F(ScanFormModeTest, FromNoneToSelectedTalkBackBecomesPriorityTalkBack) {
    Put(0x160, {0, 0xFF, 1, 15, 1});
    Show();
    ASSERT_EQ(Chosen("cboRevertCH"), "Selected + Talk Back");
    List("cboPriority").setCurrentIndex(2);
    EXPECT_EQ(Chosen("cboRevertCH"), "Priority + Talk Back ");
    EXPECT_EQ(At(0x164), 3);
}

TEST_F(ScanFormModeTest, AModeThatHasTheLastChosenRevertTextFindsItAgain) {
    Put(0x160, {0, 0xFF, 1, 15, 0});
    Show();
    ASSERT_EQ(Chosen("cboRevertCH"), "Selected");
    List("cboPriority").setCurrentIndex(2); // not in the list: its last entry
    EXPECT_EQ(Chosen("cboRevertCH"), "Priority + Talk Back ");
    EXPECT_EQ(At(0x164), 3);
    List("cboPriority").setCurrentIndex(1); // the text is remembered through it
    EXPECT_EQ(Chosen("cboRevertCH"), "Selected");
    EXPECT_EQ(At(0x164), 0);
    Choose("cboRevertCH", 2);
    List("cboPriority").setCurrentIndex(0);
    EXPECT_EQ(Chosen("cboRevertCH"), "Selected + Talk Back");
    EXPECT_EQ(At(0x164), 1);
    List("cboPriority").setCurrentIndex(2);
    EXPECT_EQ(Chosen("cboRevertCH"), "Priority");
    EXPECT_EQ(At(0x164), 2);
}

TEST_F(ScanFormModeTest, WithoutARevertTextTheLastEntryIsSelected) {
    document.Image.Set(0x164, 0xFF);
    Show();
    List("cboPriority").setCurrentIndex(0);
    EXPECT_EQ(Chosen("cboRevertCH"), "Selected + Talk Back");
    EXPECT_EQ(At(0x164), 1);
}

/// The channel edit dialog beside the scan window, on channel 1.
class ScanFormAndDialogTest : public ScanFormTest {
protected:
    void SetUp() override {
        ScanFormTest::SetUp();
        Put(0x10, {0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14});
        Put(0x50, {0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14});
        windows.SetOpen(ChildWindow::Channels, true);
        grid = std::make_unique<ChannelForm>(document, windows, services.Get());
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
    }
    void OpenDialog(int channel) {
        windows.SetOpen(ChildWindow::ChannelEdit, true);
        windows.Cursor.SetEditChannel(channel);
        dialog = std::make_unique<ChannelEditForm>(document, windows, services.Get());
        dialog->show();
        dialog->OpenOnEditChannel();
    }
    void OpenScan() {
        windows.SetOpen(ChildWindow::Scan, true);
        Show();
    }
    QCheckBox& Mark() { return *dialog->findChild<QCheckBox*>("ChkPriorityChannel"); }
    void TearDown() override {
        form.reset();
        dialog.reset();
        grid.reset();
    }

    std::unique_ptr<ChannelForm> grid;
    std::unique_ptr<ChannelEditForm> dialog;
};

TEST_F(ScanFormAndDialogTest, TheModeDecidesWhetherTheMarkCanBeSet) {
    OpenDialog(1);
    OpenScan();
    EXPECT_TRUE(Mark().isEnabled());
    List("cboPriority").setCurrentIndex(0);
    EXPECT_FALSE(Mark().isEnabled());
    List("cboPriority").setCurrentIndex(1);
    EXPECT_TRUE(Mark().isEnabled());
    List("cboPriority").setCurrentIndex(2);
    EXPECT_FALSE(Mark().isEnabled());
}

TEST_F(ScanFormAndDialogTest, ABlankChannelCanNotBeMarked) {
    OpenDialog(2);
    OpenScan();
    EXPECT_FALSE(Mark().isEnabled());
}

TEST_F(ScanFormAndDialogTest, ACommittedChannelSetsAndClearsTheMarkWithoutAnEcho) {
    OpenDialog(1);
    OpenScan();
    Enter("txtPriorityCH", "1");
    EXPECT_TRUE(Mark().isChecked());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 1);
    Enter("txtPriorityCH", "5");
    EXPECT_FALSE(Mark().isChecked());
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 5);
    EXPECT_EQ(Text("txtPriorityCH"), "5");
    EXPECT_EQ(At(0x161), 5);
}

TEST_F(ScanFormAndDialogTest, TheMarkShowsInTheBoxAndReachesTheImageWhenTheBoxIsLeft) {
    OpenDialog(1);
    OpenScan();
    Mark().click();
    EXPECT_EQ(document.Priority.PriorityChannelNo(), 1);
    EXPECT_EQ(Text("txtPriorityCH"), "1");
    EXPECT_EQ(At(0x161), 5);
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    Box("txtPriorityCH").setFocus();
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x161), 1);
    EXPECT_TRUE(Mark().isChecked());
    Mark().click();
    EXPECT_EQ(Text("txtPriorityCH"), "");
}

TEST_F(ScanFormAndDialogTest, ADialogThatDoesNotCountAsOpenIsLeftAlone) {
    OpenDialog(1);
    OpenScan();
    windows.SetOpen(ChildWindow::ChannelEdit, false);
    List("cboPriority").setCurrentIndex(0);
    EXPECT_TRUE(Mark().isEnabled());
}

} // namespace
} // namespace zelvor
