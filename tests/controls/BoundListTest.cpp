#include "controls/BoundList.h"

#include "BoundControlFixture.h"

namespace zelvor {
namespace {

constexpr FieldWord Words[] = {{Text::Off}, {"7"}, {Text::On}};
constexpr std::uint8_t Codes[] = {0, 30, 20};
constexpr ListField InOrder{
    .key = "test.inorder", .label = Text::OptionSignallingLabel, .address = 0x100, .words = Words, .none = 0xFF};
constexpr ListField WithCodes{
    .key = "test.withcodes", .label = Text::OptionSignallingLabel, .address = 0x101, .words = Words, .codes = Codes};

class BoundListTest : public BoundControlTest<BoundList> {
protected:
    void ShowField(const ListField& field, Language language = Language::English) {
        Show("cboTest", field, image, language);
        control->Load();
        control->setFocus();
    }
    QStringList Entries() { return {control->itemText(0), control->itemText(1), control->itemText(2)}; }
};

TEST_F(BoundListTest, IsFilledWithTheFieldsWordsInTheLanguageAndSelectsNothing) {
    Show("cboTest", InOrder, image, Language::English);
    EXPECT_EQ(control->objectName(), "cboTest");
    EXPECT_EQ(Entries(), (QStringList{"Off", "7", "On"}));
    EXPECT_EQ(control->currentIndex(), -1);
    Show("cboTest", InOrder, image, Language::Chinese);
    EXPECT_EQ(Entries(), (QStringList{"关", "7", "开"}));
}

TEST_F(BoundListTest, LoadingShowsTheBytesEntryAndTellsOfItAsAChoice) {
    image.Set(0x101, 20);
    Show("cboTest", WithCodes, image, Language::English);
    const QSignalSpy selected(control, &FieldList::Selected);
    control->Load();
    EXPECT_EQ(control->currentIndex(), 2);
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected[0][0].toInt(), 2);
    image.Set(0x101, 21);
    control->Load();
    EXPECT_EQ(control->currentIndex(), -1);
}

TEST_F(BoundListTest, StoresTheEntryWhenItIsLeftAndNotBefore) {
    image.Set(0x101, 30);
    ShowField(WithCodes);
    const QSignalSpy committed(control, &BoundList::Committed);
    Key(Qt::Key_Down);
    EXPECT_EQ(At(0x101), 30);
    Key(Qt::Key_Return);
    EXPECT_TRUE(after->hasFocus());
    EXPECT_EQ(At(0x101), 20);
    EXPECT_EQ(committed.count(), 1);
}

TEST_F(BoundListTest, WithoutAnEntryStoresTheBytesForThatOrNothing) {
    image.Set(0x100, 9);
    ShowField(InOrder);
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x100), 0xFF);
    image.Set(0x101, 9);
    ShowField(WithCodes);
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x101), 9);
}

} // namespace
} // namespace zelvor
