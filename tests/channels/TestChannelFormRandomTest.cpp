#include "TestChannelFormFixture.h"

#include <random>

namespace zelvor {
namespace {

constexpr unsigned Seed = 20270114;

class TestChannelFormRandomTest : public TestChannelFormTest {
protected:
    void Randomise() {
        for (int address = 0; address < 1024; ++address) {
            document.Image.Set(address, static_cast<std::uint8_t>(random() & 0xFF));
        }
    }
    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    std::mt19937 random{Seed};
};

TEST_F(TestChannelFormRandomTest, AnyImageOpensIsWalkedAndClosedWithoutChangingAByte) {
    for (int round = 0; round < 2002; ++round) {
        Randomise();
        if (round < 2) {
            document.Image.Fill(round == 0 ? 0x00 : 0xFF);
        }
        windows.LanguageFlag = round % 2 == 0 ? Language::English : Language::Chinese;
        const DataImage before = document.Image;
        form = std::make_unique<TestChannelForm>(document, windows, services.Get());
        const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
        for (int row = 1; row <= 16; ++row) {
            const bool empty = document.Image.At(0x280 + 8 * (row - 1)) == 0xFF;
            ASSERT_EQ(Cell(row, 1).size(), empty ? 0U : 9U) << "seed " << Seed << ", round " << round;
            ASSERT_EQ(Cell(row, 2).size(), empty ? 0U : 9U) << "seed " << Seed << ", round " << round;
            Grid().MoveTo(row, 1 + round % 2);
        }
        Find<QPushButton>("cmdClose").click();
        ASSERT_EQ(unloaded.count(), 1);
        form.reset();
        ASSERT_EQ(document.Image, before) << "seed " << Seed << ", round " << round;
    }
    EXPECT_TRUE(services.messages.Shown().empty());
}

TEST_F(TestChannelFormRandomTest, LookingIntoCellsOfAnyImageChangesNoByte) {
    for (int round = 0; round < 150; ++round) {
        Randomise();
        const DataImage before = document.Image;
        Show();
        for (int look = 0; look < 4; ++look) {
            Grid().setFocus();
            ClickCell(1 + Below(16), 1 + Below(2));
            ASSERT_TRUE(Editor().isVisible());
            if (look % 2 == 0) {
                Type("77");
                Key(Qt::Key_Escape);
            } else {
                Key(Qt::Key_Tab);
            }
            ASSERT_FALSE(Editor().isVisible());
        }
        ASSERT_EQ(document.Image, before) << "seed " << Seed << ", round " << round;
    }
}

TEST_F(TestChannelFormRandomTest, AnyEntryLeavesWholePairsAndTouchesOnlyItsOwn) {
    const char* const entries[] = {"1", "145", "145.0031", "599.9", ".", "..5", "999999999", "100.00001", "0", "453.2"};
    for (int round = 0; round < 2000; ++round) {
        Randomise();
        document.Image.Set(0x280, 0x00); // never the last pair
        document.Image.Set(0x288, 0x00);
        form = std::make_unique<TestChannelForm>(document, windows, services.Get());
        DataImage expected = document.Image;
        const int row = 1 + Below(16);
        const int column = 1 + Below(2);
        const bool erases = Below(4) == 0;
        const char* entry = entries[Below(10)];
        form->ShowTestEditor(row, column);
        Editor().setText(erases ? QString() : QString(entry));
        const int megahertz = QString(entry).toDouble() > 0 ? static_cast<int>(QString(entry).toDouble()) : 0;
        const bool erasedModel = document.Image.At(0x1BE) == 0x00 || document.Image.At(0x1BE) == 0xFF;
        if (!erases && (megahertz < (erasedModel ? 136 : 100) || megahertz >= (erasedModel ? 174 : 550))) {
            ExpectOutOfRange();
        }
        QTest::keyClick(&Editor(), Qt::Key_Return);
        ASSERT_EQ(services.messages.Pending(), 0) << "seed " << Seed << ", round " << round;

        const int first = 0x280 + 8 * (row - 1);
        ASSERT_EQ(document.Image.At(first) == 0xFF, erases) << "seed " << Seed << ", round " << round;
        ASSERT_EQ(Cell(row, 1).empty(), erases) << "seed " << Seed << ", round " << round;
        ASSERT_EQ(Cell(row, 2).empty(), erases) << "seed " << Seed << ", round " << round;
        for (int i = 0; i < 8; ++i) {
            if (erases) {
                ASSERT_EQ(document.Image.At(first + i), 0xFF);
            } else {
                ASSERT_LE(document.Image.At(first + i) & 0x0F, 9) << "seed " << Seed << ", round " << round;
                ASSERT_LE(document.Image.At(first + i) >> 4, 9) << "seed " << Seed << ", round " << round;
            }
            expected.Set(first + i, document.Image.At(first + i));
        }
        ASSERT_EQ(document.Image, expected) << "seed " << Seed << ", round " << round;
    }
}

} // namespace
} // namespace zelvor
