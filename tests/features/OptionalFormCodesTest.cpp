#include "OptionalFormPttIdFixture.h"

namespace zelvor {
namespace {

TEST_F(OptionalFormPttIdTest, ACodeIsReadOverItsGapsAndShowsAnyCharacter) {
    Put(Dtmf, Both, "", "");
    for (const auto& [address, byte] : {std::pair(0x140, 0x31), {0x143, 0x41}, {0x14F, 0x80}, {0x151, 0xFE}}) {
        document.Image.Set(address, static_cast<std::uint8_t>(byte));
    }
    Load();
    EXPECT_EQ(Text(Begin), "1A€");
    EXPECT_EQ(Text(End), "þ");
}

TEST_F(OptionalFormPttIdTest, ACodeTakesDtmfDigitsAndTurnsSmallLettersIntoCapitals) {
    Put(Dtmf, Both, "", "");
    Show();
    for (const char* name : {Begin, End}) {
        for (int character = ' '; character < 127; ++character) {
            Box(name).setFocus();
            Key(Qt::Key_Backspace);
            QTest::keyClick(QApplication::focusWidget(), static_cast<char>(character));
            const std::string legal = "0123456789ABCD*#";
            const std::string small = "abcd";
            std::string expected;
            if (legal.find(static_cast<char>(character)) != std::string::npos) {
                expected = static_cast<char>(character);
            } else if (small.find(static_cast<char>(character)) != std::string::npos) {
                expected = "ABCD"[small.find(static_cast<char>(character))];
            }
            EXPECT_EQ(Text(name), expected) << character;
            Box(name).selectAll();
        }
    }
}

TEST_F(OptionalFormPttIdTest, ACodeEndsAtSixteenCharactersAlsoWhenPasted) {
    Put(Dtmf, Both, "", "");
    Show();
    Box(Begin).setFocus();
    Type("0123456789ABCD*#99");
    EXPECT_EQ(Text(Begin), "0123456789ABCD*#");
    EXPECT_EQ(Code(0x140), "0123456789ABCD*#");
    Box(Begin).selectAll();
    Type("7");
    EXPECT_EQ(Text(Begin), "7");
    Box(End).setFocus();
    Paste("1-2 e3xa b\n4");
    EXPECT_EQ(Text(End), "123AB");
    EXPECT_EQ(Code(0x150), "123AB...........");
    Box(End).selectAll();
    Paste("99999999999999999999");
    EXPECT_EQ(Code(0x150), "9999999999999999");
}

TEST_F(OptionalFormPttIdTest, EveryKeystrokeStoresTheCode) {
    Put(Dtmf, Both, "", "");
    Show();
    Box(End).setFocus();
    Type("1");
    EXPECT_EQ(Code(0x150), "1...............");
    Type("b");
    EXPECT_EQ(Code(0x150), "1B..............");
    EXPECT_EQ(Code(0x140), "................");
}

TEST_F(OptionalFormPttIdTest, AShorterCodeKeepsTheStoredTailUntilTheBoxIsEmptied) {
    Put(Dtmf, Bot, "12345", "");
    Show();
    Box(Begin).setFocus(); // selects all
    Type("789");
    EXPECT_EQ(Text(Begin), "789");
    EXPECT_EQ(Code(0x140), "78945...........");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Code(0x140), "78945...........");
    Show();
    EXPECT_EQ(Text(Begin), "78945");
    Box(Begin).setFocus();
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Text(Begin), "");
    EXPECT_EQ(Code(0x140), "................");
}

TEST_F(OptionalFormPttIdTest, EnterInACodeMovesOn) {
    Put(Dtmf, Both, "1", "2");
    Show();
    Box(Begin).setFocus();
    Key(Qt::Key_Return);
    EXPECT_TRUE(Box(End).hasFocus());
}

} // namespace
} // namespace zelvor
