#include "DTMFFormFixture.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace zelvor {
namespace {

using DTMFNumbersTest = DTMFFormTest;

struct Number {
    const char* name; // behind "txt" and "upd"
    int tab;
    int address;
    std::string Txt() const { return std::string("txt") + name; }
    std::string Upd() const { return std::string("upd") + name; }
};
constexpr Number Speed{"DTMFSpeed", 0, 0x110};
constexpr Number FirstTime{"FstDigitTime", 0, 0x111};
constexpr Number Delay{"FstDigitDelay", 0, 0x112};
constexpr Number Tone{"Tone", 0, 0x113};
constexpr Number DCode{"DCodeAssign", 0, 0x114};
constexpr Number Reset{"AutoResetTimer", 1, 0x117};
constexpr Number All[] = {Speed, FirstTime, Delay, Tone, DCode, Reset};

struct Shown {
    int byte;
    const char* text;
};

TEST_F(DTMFNumbersTest, EachLegalByteShowsAsToldAndCommitsBackToItself) {
    const std::pair<Number, std::vector<Shown>> fields[] = {
        {Speed, {{0, "6"}, {1, "8"}, {2, "10"}, {3, "15"}}},
        {FirstTime, {{0, "0"}, {1, "100"}, {2, "500"}, {3, "1000"}}},
        {Tone, {{0, "0"}, {1, "100"}, {2, "500"}, {3, "1000"}}},
        {DCode,
         {{0, "D Code"},
          {1, "1s"},
          {2, "2s"},
          {3, "3s"},
          {4, "4s"},
          {5, "5s"},
          {6, "6s"},
          {7, "7s"},
          {8, "8s"},
          {9, "9s"},
          {10, "10s"},
          {11, "11s"},
          {12, "12s"},
          {13, "13s"},
          {14, "14s"},
          {15, "15s"},
          {16, "16s"}}},
        {Reset,
         {{0, "Off"},
          {1, "1"},
          {2, "2"},
          {3, "3"},
          {4, "4"},
          {5, "5"},
          {6, "6"},
          {7, "7"},
          {8, "8"},
          {9, "9"},
          {10, "10"},
          {11, "11"},
          {12, "12"},
          {13, "13"},
          {14, "14"},
          {15, "15"}}}};
    for (const auto& [field, values] : fields) {
        for (const auto& [byte, text] : values) {
            document.Image.Set(field.address, static_cast<std::uint8_t>(byte));
            const DataImage before = document.Image;
            Show();
            ClickTab(field.tab);
            EXPECT_EQ(Text(field.Txt().c_str()), text);
            EXPECT_EQ(Spin(field.Upd().c_str()), byte);
            PassThrough(field.Txt().c_str());
            EXPECT_EQ(Text(field.Txt().c_str()), text);
            EXPECT_EQ(document.Image, before) << field.name << " " << byte;
        }
    }
}

TEST_F(DTMFNumbersTest, EachLegalDelayShowsTenTimesItsByteAndCommitsBackExceptBelowOneHundredFifty) {
    for (int byte = 10; byte <= 100; ++byte) {
        document.Image.Set(0x112, static_cast<std::uint8_t>(byte));
        Show();
        EXPECT_EQ(Text("txtFstDigitDelay"), std::to_string(byte) + "0");
        EXPECT_EQ(Spin("updFstDigitDelay"), byte);
        PassThrough("txtFstDigitDelay");
        EXPECT_EQ(At(0x112), byte < 15 ? 10 : byte);
    }
}

TEST_F(DTMFNumbersTest, IllegalBytesOfTheIndexBoxesAndTheDCodeShowNoText) {
    for (int byte = 4; byte < 0xFF; ++byte) {
        Put(0x110, {byte, byte});
        Put(0x113, {byte, byte});
        Load();
        for (const Number& field : {Speed, FirstTime, Tone}) {
            ASSERT_EQ(Text(field.Txt().c_str()), "") << field.name << " " << byte;
            ASSERT_EQ(Spin(field.Upd().c_str()), 3) << field.name << " " << byte;
        }
        ASSERT_TRUE(byte <= 16 || Text("txtDCodeAssign").empty()) << byte;
    }
    Show();
    for (const Number& field : {Speed, FirstTime, Tone, DCode}) {
        PassThrough(field.Txt().c_str());
        EXPECT_EQ(At(field.address), 0) << field.name;
    }
    EXPECT_EQ(Text("txtDTMFSpeed"), "6");
    EXPECT_EQ(Text("txtFstDigitTime"), "0");
    EXPECT_EQ(Text("txtDCodeAssign"), "D Code");
}

TEST_F(DTMFNumbersTest, IllegalBytesOfTheOtherBoxesShowTheirNumber) {
    for (int byte = 0; byte < 0xFF; ++byte) {
        Put(0x112, {byte});
        Put(0x117, {byte});
        Load();
        ASSERT_EQ(Text("txtFstDigitDelay"), byte == 0 ? "0" : std::to_string(byte) + "0");
        ASSERT_EQ(Text("txtAutoResetTimer"), byte == 0 ? "Off" : std::to_string(byte));
        ASSERT_EQ(Spin("updFstDigitDelay"), byte < 10 ? 10 : byte > 100 ? 100 : byte);
        ASSERT_EQ(Spin("updAutoResetTimer"), byte > 15 ? 15 : byte);
    }
    Show();
    PassThrough("txtFstDigitDelay");
    ClickTab(1);
    PassThrough("txtAutoResetTimer");
    EXPECT_EQ(At(0x112), 100);
    EXPECT_EQ(At(0x117), 15);
}

TEST_F(DTMFNumbersTest, ATypedTextIsBroughtIntoFormWhenTheBoxIsLeft) {
    struct Typed {
        Number field;
        const char* text;
        const char* becomes;
        int byte;
    };
    const Typed cases[] = {
        {Speed, "9", "8", 1},         {Speed, "14", "10", 2},
        {Speed, "15", "15", 3},       {Speed, "99", "15", 3},
        {Speed, "", "6", 0},          {Speed, "7", "6", 0},
        {FirstTime, "499", "100", 1}, {FirstTime, "5000", "1000", 3},
        {FirstTime, "99", "0", 0},    {FirstTime, "", "0", 0},
        {FirstTime, "500", "500", 2}, {Tone, "999", "500", 2},
        {Tone, "1000", "1000", 3},    {Tone, "100", "100", 1},
        {Delay, "140", "100", 10},    {Delay, "155", "150", 15},
        {Delay, "163", "160", 16},    {Delay, "2000", "1000", 100},
        {Delay, "999", "990", 99},    {Delay, "149", "100", 10},
        {Delay, "", "100", 10},       {DCode, "17", "D Code", 0},
        {DCode, "99", "D Code", 0},   {DCode, "16", "16s", 16},
        {DCode, "0", "D Code", 0},    {DCode, "", "D Code", 0},
        {DCode, "7", "7s", 7},        {Reset, "20", "15", 15},
        {Reset, "", "Off", 0},        {Reset, "0", "Off", 0},
        {Reset, "15", "15", 15},      {Reset, "07", "7", 7},
    };
    for (const Typed& typed : cases) {
        ShowAt(typed.field.tab, typed.field.Txt().c_str());
        const DataImage before = document.Image;
        Retype(typed.text);
        EXPECT_EQ(document.Image, before); // not before the box is left
        Key(Qt::Key_Tab);
        EXPECT_EQ(Text(typed.field.Txt().c_str()), typed.becomes) << typed.field.name << " " << typed.text;
        EXPECT_EQ(At(typed.field.address), typed.byte) << typed.field.name << " " << typed.text;
        EXPECT_EQ(Spin(typed.field.Upd().c_str()), typed.byte) << typed.field.name << " " << typed.text;
    }
}

TEST_F(DTMFNumbersTest, StepsGoRoundByKeyAndByButton) {
    const std::pair<Number, std::vector<std::string>> circles[] = {
        {Speed, {"6", "8", "10", "15"}},
        {FirstTime, {"0", "100", "500", "1000"}},
        {Tone, {"0", "100", "500", "1000"}},
        {Delay,
         {"100", "150", "200", "250", "300", "350", "400", "450", "500", "550", "600", "650", "700", "750", "800",
          "850", "900", "950", "1000"}},
        {DCode,
         {"D Code", "1s", "2s", "3s", "4s", "5s", "6s", "7s", "8s", "9s", "10s", "11s", "12s", "13s", "14s", "15s",
          "16s"}},
        {Reset, {"Off", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15"}},
    };
    Put(0x110, {0, 0, 10, 0, 0});
    Put(0x117, {0});
    for (const auto& [field, texts] : circles) {
        ShowAt(field.tab, field.Txt().c_str());
        const DataImage before = document.Image;
        for (const bool byButton : {false, true}) {
            for (std::size_t i = 1; i <= texts.size(); ++i) {
                byButton ? Step(field.Upd().c_str(), true) : Key(Qt::Key_Up);
                ASSERT_EQ(Text(field.Txt().c_str()), texts[i % texts.size()]) << field.name;
                ASSERT_EQ(Box(field.Txt().c_str()).selectedText().toStdString(), texts[i % texts.size()]);
                ASSERT_TRUE(Box(field.Txt().c_str()).hasFocus());
            }
            for (std::size_t i = texts.size(); i-- > 0;) {
                byButton ? Step(field.Upd().c_str(), false) : Key(Qt::Key_Down);
                ASSERT_EQ(Text(field.Txt().c_str()), texts[i]) << field.name;
            }
        }
        EXPECT_EQ(document.Image, before) << field.name; // a step stores nothing
    }
}

TEST_F(DTMFNumbersTest, ASteppedValueIsStoredWhenTheBoxIsLeft) {
    Show();
    Step("updFstDigitDelay", true);
    EXPECT_EQ(Text("txtFstDigitDelay"), "210");
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x112), 21);
}

TEST_F(DTMFNumbersTest, TheDelayStepsByFiftyFromAnyValueAndEndsAtTheEnds) {
    Put(0x112, {98});
    ShowAt(0, "txtFstDigitDelay");
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtFstDigitDelay"), "1000");
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtFstDigitDelay"), "100");
    Put(0x112, {12});
    ShowAt(0, "txtFstDigitDelay");
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtFstDigitDelay"), "100");
}

TEST_F(DTMFNumbersTest, AStepFromATextThatIsNoneOfTheFourLeavesIt) {
    for (const Number& field : {Speed, FirstTime, Tone}) {
        ShowAt(0, field.Txt().c_str());
        Retype("7");
        Key(Qt::Key_Up);
        Key(Qt::Key_Down);
        Step(field.Upd().c_str(), true);
        Step(field.Upd().c_str(), false);
        EXPECT_EQ(Text(field.Txt().c_str()), "7") << field.name;
    }
}

TEST_F(DTMFNumbersTest, BoxesTakeDigitsUpToTheirLengthAlsoWhenPasted) {
    const std::pair<Number, const char*> limits[] = {{Speed, "12"},   {FirstTime, "1234"}, {Tone, "1234"},
                                                     {Delay, "1234"}, {Reset, "12"},       {DCode, "12"}};
    for (const auto& [field, digits] : limits) {
        ShowAt(field.tab, field.Txt().c_str());
        Retype("a1 -.2x3+4#5*6");
        EXPECT_EQ(Text(field.Txt().c_str()), digits) << field.name;
        Retype("");
        Paste("a1 -.2x3+4#5*6");
        EXPECT_EQ(Text(field.Txt().c_str()), digits) << field.name;
        QTest::keyClick(&Box(field.Txt().c_str()), Qt::Key_A, Qt::ControlModifier);
        Type("7");
        EXPECT_EQ(Text(field.Txt().c_str()), "7") << field.name;
    }
}

TEST_F(DTMFNumbersTest, TheLetterDTakesTheWholeTextOfTheDCode) {
    for (const char* letter : {"D", "d"}) {
        ShowAt(0, "txtDCodeAssign");
        Retype("");
        Type(letter);
        EXPECT_EQ(Text("txtDCodeAssign"), "D");
        EXPECT_EQ(Box("txtDCodeAssign").cursorPosition(), 0);
        Key(Qt::Key_Tab);
        EXPECT_EQ(Text("txtDCodeAssign"), "D Code");
        EXPECT_EQ(At(0x114), 0);

        Focus("txtDCodeAssign");
        Retype("12");
        Type(letter);
        EXPECT_EQ(Text("txtDCodeAssign"), "D");
        Key(Qt::Key_End);
        Type(letter);
        EXPECT_EQ(Text("txtDCodeAssign"), "D");
        EXPECT_EQ(Box("txtDCodeAssign").cursorPosition(), 1); // it was "D" already
        Retype("");
        Paste(letter);
        EXPECT_EQ(Text("txtDCodeAssign"), "D");
    }
}

TEST_F(DTMFNumbersTest, TheChineseWordOfTheDCodeStepsAndCommits) {
    Put(0x114, {16});
    ShowAt(0, "txtDCodeAssign", Language::Chinese);
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtDCodeAssign"), "D 码");
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x114), 0);
    Focus("txtDCodeAssign");
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtDCodeAssign"), "16s");
}

TEST_F(DTMFNumbersTest, TheChineseWordForOffStepsAndCommits) {
    Put(0x117, {15});
    ShowAt(1, "txtAutoResetTimer", Language::Chinese);
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtAutoResetTimer"), "关");
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x117), 0);
    EXPECT_EQ(Text("txtAutoResetTimer"), "关");
}

TEST_F(DTMFNumbersTest, TakingTheFocusSelectsTheText) {
    for (const Number& field : All) {
        ShowAt(field.tab, field.Txt().c_str());
        EXPECT_EQ(Box(field.Txt().c_str()).selectedText().toStdString(), Text(field.Txt().c_str())) << field.name;
    }
}

TEST_F(DTMFNumbersTest, NoContextMenuOpensOnATextBox) {
    Show();
    for (const char* name : {"txtDTMFSpeed", "txtIDCode", "txtStunCode", "txtAutodial"}) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, Box(name).mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&Box(name), &event);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << name;
        EXPECT_TRUE(form->findChildren<QMenu*>().isEmpty()) << name;
    }
}

} // namespace
} // namespace zelvor
