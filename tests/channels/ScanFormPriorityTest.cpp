#include "channels/ScanFormFixture.h"

namespace zelvor {
namespace {

/// What the priority channel looks like in box, image and document.
struct Priority {
    std::string box;
    int byte;
    bool error;
    int number;

    bool operator==(const Priority&) const = default;
};

void PrintTo(const Priority& priority, std::ostream* out) {
    *out << "box '" << priority.box << "', byte " << priority.byte << ", error " << priority.error << ", number "
         << priority.number;
}

class ScanFormPriorityTest : public ScanFormTest {
protected:
    Priority Now() {
        return {Text("txtPriorityCH"), At(0x161), document.Priority.PriorityChannelError(),
                document.Priority.PriorityChannelNo()};
    }
};

TEST_F(ScanFormPriorityTest, AProgrammedChannelIsTaken) {
    Show();
    Enter("txtPriorityCH", "12");
    EXPECT_EQ(Now(), (Priority{"12", 12, false, 12}));
    Enter("txtPriorityCH", "05");
    EXPECT_EQ(Now(), (Priority{"5", 5, false, 5}));
}

TEST_F(ScanFormPriorityTest, AnEmptyBoxIsNoChannelAndAnErrorInFixedMode) {
    Show();
    Enter("txtPriorityCH", "");
    EXPECT_EQ(Now(), (Priority{"", 0xFF, true, 0}));
}

TEST_F(ScanFormPriorityTest, ZeroGivesChannel1WhereItIsProgrammed) {
    Show();
    Enter("txtPriorityCH", "0");
    EXPECT_EQ(Now(), (Priority{"1", 1, false, 1}));
}

TEST_F(ScanFormPriorityTest, ZeroIsRefusedAndEmptiesTheBoxWhereChannel1IsBlank) {
    document.Image.Set(0x10, 0xFF);
    Show();
    ExpectError();
    Enter("txtPriorityCH", "00");
    EXPECT_EQ(Now(), (Priority{"", 0xFF, true, 0}));
}

TEST_F(ScanFormPriorityTest, MoreThan16GivesChannel16WhereItIsProgrammed) {
    Program({16});
    Show();
    Enter("txtPriorityCH", "17");
    EXPECT_EQ(Now(), (Priority{"16", 16, false, 16}));
    Enter("txtPriorityCH", "99");
    EXPECT_EQ(Now(), (Priority{"16", 16, false, 16}));
}

TEST_F(ScanFormPriorityTest, MoreThan16IsRefusedForTheOldTextWhereChannel16IsBlank) {
    Show();
    ExpectError();
    Enter("txtPriorityCH", "17");
    EXPECT_EQ(Now(), (Priority{"5", 5, false, 5}));
}

TEST_F(ScanFormPriorityTest, ABlankChannelIsRefusedForTheOldText) {
    Show();
    Enter("txtPriorityCH", "12");
    ExpectError();
    Enter("txtPriorityCH", "3");
    EXPECT_EQ(Now(), (Priority{"12", 12, false, 12}));
}

TEST_F(ScanFormPriorityTest, ARefusalWithoutAnOldTextEmptiesTheBox) {
    document.Image.Set(0x161, 0xFF);
    Show();
    for (const char* refused : {"3", "17"}) {
        ExpectError();
        Enter("txtPriorityCH", refused);
        EXPECT_EQ(Now(), (Priority{"", 0xFF, true, 0})) << refused;
    }
}

TEST_F(ScanFormPriorityTest, AnEmptyBoxForgetsTheOldText) {
    Show();
    Enter("txtPriorityCH", "");
    ExpectError();
    Enter("txtPriorityCH", "3");
    EXPECT_EQ(Now(), (Priority{"", 0xFF, true, 0}));
}

TEST_F(ScanFormPriorityTest, AModeChangeDoesNotForgetTheOldText) {
    Show();
    List("cboPriority").setCurrentIndex(0);
    List("cboPriority").setCurrentIndex(1);
    ExpectError();
    Enter("txtPriorityCH", "3");
    EXPECT_EQ(Now(), (Priority{"5", 5, false, 5}));
}

TEST_F(ScanFormPriorityTest, NoChannelIsNoErrorInAnotherMode) {
    Show();
    Box("txtPriorityCH").setFocus();
    List("cboPriority").setCurrentIndex(0); // the box is disabled, and so left, while it is empty
    EXPECT_EQ(Now(), (Priority{"", 0xFF, false, 0}));
}

TEST_F(ScanFormPriorityTest, TheOldChannelComesBackEvenIfItIsBlankByNow) {
    Show();
    document.Image.Set(0x50, 0xFF);
    ExpectError();
    Enter("txtPriorityCH", "3");
    EXPECT_EQ(Now(), (Priority{"5", 5, false, 5}));
}

TEST_F(ScanFormPriorityTest, TheMessageIsChineseInChinese) {
    Show(Language::Chinese);
    ExpectErrorInChinese();
    Enter("txtPriorityCH", "3");
    EXPECT_EQ(Text("txtPriorityCH"), "5");
}

TEST_F(ScanFormPriorityTest, TheBoxTakesTwoDigits) {
    Show();
    Box("txtPriorityCH").setFocus();
    Type("1a.-25");
    EXPECT_EQ(Text("txtPriorityCH"), "12");
    Box("txtPriorityCH").selectAll();
    Type("7");
    EXPECT_EQ(Text("txtPriorityCH"), "7");
    Key(Qt::Key_Backspace);
    Paste("x1y23");
    EXPECT_EQ(Text("txtPriorityCH"), "12");
}

TEST_F(ScanFormPriorityTest, UpAndDownDoNotStepTheBox) {
    Show();
    Box("txtPriorityCH").setFocus();
    Key(Qt::Key_Up);
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtPriorityCH"), "5");
}

TEST_F(ScanFormPriorityTest, EveryByteOfAChannelThatIsProgrammedGoesBackToItselfAndOthersAreCorrected) {
    Program({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
    for (int byte = 0; byte <= 255; ++byte) {
        document.Image.Set(0x161, static_cast<std::uint8_t>(byte));
        Show();
        Box("txtPriorityCH").setFocus();
        Key(Qt::Key_Tab);
        const int stored = byte == 0 ? 1 : byte <= 16 ? byte : byte == 255 ? 255 : 16;
        EXPECT_EQ(At(0x161), stored) << byte;
    }
}

TEST_F(ScanFormPriorityTest, AStoredChannelThatIsNoChannelComesBackWhereChannel16IsBlank) {
    document.Image.Set(0x161, 200);
    Show();
    ExpectError();
    Box("txtPriorityCH").setFocus();
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text("txtPriorityCH"), "200");
    EXPECT_EQ(At(0x161), 200);
}

TEST_F(ScanFormPriorityTest, TheBoxCanBeSetFromOutsideAndStoresItWhenItIsLeft) {
    Show();
    windows.SetOpen(ChildWindow::Scan, true);
    document.Priority.Mark(12);
    EXPECT_EQ(Text("txtPriorityCH"), "12");
    EXPECT_EQ(At(0x161), 5);
    document.Priority.Mark(0);
    EXPECT_EQ(Text("txtPriorityCH"), "");
    document.Priority.Mark(12);
    Box("txtPriorityCH").setFocus();
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x161), 12);
}

TEST_F(ScanFormPriorityTest, TheErrorOutlivesTheWindow) {
    Show();
    Enter("txtPriorityCH", "");
    Click("cmdClose");
    form.reset();
    EXPECT_TRUE(document.Priority.PriorityChannelError());
}

} // namespace
} // namespace zelvor
