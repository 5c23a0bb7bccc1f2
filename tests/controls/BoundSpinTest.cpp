#include "controls/BoundSpin.h"

#include <algorithm>

#include "BoundControlFixture.h"

namespace zelvor {
namespace {

int ReadUpToNine(std::string_view text) {
    return std::min(LeadingNumber(text), 9);
}
int ReadAny(std::string_view text) {
    return LeadingNumber(text);
}

constexpr NumberField Level{.key = "test.level",
                            .label = Text::SquelchLevel,
                            .address = 0x100,
                            .bytes = 1,
                            .first = 1,
                            .last = 9,
                            .increment = 1,
                            .lengthLimit = 1,
                            .erased = 5,
                            .showsErased = true,
                            .show = ShowNumber,
                            .read = ReadUpToNine};
constexpr NumberField Time{.key = "test.time",
                           .label = Text::TimeOutTimer,
                           .address = 0x102,
                           .bytes = 2,
                           .first = 0,
                           .last = 300,
                           .increment = 10,
                           .lengthLimit = 3,
                           .erased = 0,
                           .showsErased = false,
                           .show = ShowNumberOrOff,
                           .read = ReadAny};

class BoundSpinTest : public BoundControlTest<BoundSpin> {
protected:
    void ShowField(const NumberField& field, SpinTextRules rules = {}) {
        Show("Test", field, image, Language::English, rules);
        control->Load();
        control->Box().setFocus();
    }
    std::string Text() { return control->Box().text().toStdString(); }
    void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
};

TEST_F(BoundSpinTest, NamesBothPartsAfterTheField) {
    ShowField(Level);
    EXPECT_EQ(control->Box().objectName(), "txtTest");
    EXPECT_EQ(control->Buttons().objectName(), "updTest");
}

TEST_F(BoundSpinTest, ShowsTheStoredNumberLegalOrNot) {
    for (const int byte : {0, 1, 9, 10, 254}) {
        image.Set(0x100, static_cast<std::uint8_t>(byte));
        ShowField(Level);
        EXPECT_EQ(Text(), std::to_string(byte));
        EXPECT_EQ(control->Value(), byte < 1 ? 1 : byte > 9 ? 9 : byte) << byte;
        EXPECT_EQ(At(0x100), byte);
    }
}

TEST_F(BoundSpinTest, ABlankFieldShowsItsBlankOrNothing) {
    ShowField(Level);
    EXPECT_EQ(Text(), "5");
    EXPECT_EQ(control->Value(), 5);
    ShowField(Time);
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(control->Value(), 0);
}

TEST_F(BoundSpinTest, BringsTheTextIntoFormAndStoresItWhenTheBoxIsLeft) {
    image.Set(0x102, 0);
    image.Set(0x103, 0);
    ShowField(Time);
    EXPECT_EQ(Text(), "Off");
    const QSignalSpy committed(control, &BoundSpin::Committed);
    Type("290");
    EXPECT_EQ(At(0x102), 0);
    Key(Qt::Key_Return);
    EXPECT_TRUE(after->hasFocus());
    EXPECT_EQ(Text(), "290");
    EXPECT_EQ(At(0x102), 34);
    EXPECT_EQ(At(0x103), 1);
    ASSERT_EQ(committed.count(), 1);
    EXPECT_EQ(committed[0][0].toInt(), 290);
}

TEST_F(BoundSpinTest, StepsByTheFieldsIncrementAndWrapsWithoutStoring) {
    image.Set(0x102, 34);
    image.Set(0x103, 1);
    ShowField(Time);
    Key(Qt::Key_Up);
    EXPECT_EQ(Text(), "300");
    Key(Qt::Key_Up);
    EXPECT_EQ(Text(), "Off");
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(Text(), "290");
    Key(Qt::Key_Up);
    EXPECT_EQ(At(0x102), 34);
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x102), 44);
}

TEST_F(BoundSpinTest, TakesDigitsUpToTheFieldsLength) {
    image.Set(0x100, 3);
    ShowField(Level);
    Type("x78");
    EXPECT_EQ(Text(), "7");
}

TEST_F(BoundSpinTest, StepsByTheRuleThatItsWindowGives) {
    image.Set(0x100, 3);
    SpinTextRules rules;
    rules.step = [](const QString& text, bool up) { return text == "3" && up ? std::optional(8) : std::nullopt; };
    ShowField(Level, rules);
    Key(Qt::Key_Down);
    EXPECT_EQ(Text(), "3");
    Key(Qt::Key_Up);
    EXPECT_EQ(Text(), "8");
    EXPECT_EQ(control->Value(), 8);
}

TEST_F(BoundSpinTest, PutAndStoreShowsAndStoresAtOnce) {
    ShowField(Level);
    control->PutAndStore(4);
    EXPECT_EQ(Text(), "4");
    EXPECT_EQ(control->Value(), 4);
    EXPECT_EQ(At(0x100), 4);
}

} // namespace
} // namespace zelvor
