#include <random>

#include "DTMFFormFixture.h"

namespace zelvor {
namespace {

constexpr unsigned Seed = 20270311;

class DTMFRandomTest : public DTMFFormTest {
protected:
    /// Random bytes, or in some rounds few enough different ones that codes and memories are often legal.
    void Randomise(int round) {
        document.Image = RandomImage(random);
        constexpr std::uint8_t likely[] = {'0', '5', 'A', '#', ' ', 0xFF, 0x00, 0x01, 0x02};
        for (int address = 0x110; round % 2 == 1 && address < 0x280; ++address) {
            document.Image.Set(address, likely[random() % 9]);
        }
        if (round < 2) {
            document.Image.Fill(round == 0 ? 0x00 : 0xFF);
        }
    }
    static Language LanguageOf(int round) { return round % 3 == 0 ? Language::Chinese : Language::English; }

    std::mt19937 random{Seed};
};

TEST_F(DTMFRandomTest, AnyImageOpensUnchangedAndWhatTheFieldsStoreWhenPassedThroughStays) {
    const char* const fields[] = {"txtDTMFSpeed",   "txtFstDigitTime", "txtFstDigitDelay", "txtTone",
                                  "txtDCodeAssign", "chkDTMFSideTone", "cboGroupCode",     "txtAutoResetTimer",
                                  "cboCallAlert",   "cboTranspond",    "chkClear",         "cboStunType"};
    const std::pair<int, int> last[] = {{0x110, 3},  {0x111, 3}, {0x112, 100}, {0x113, 3},
                                        {0x114, 16}, {0x115, 1}, {0x117, 15},  {0x11A, 1}};
    // The focus is told by events, so that 2,000 windows need not be drawn.
    const auto pass = [&] {
        for (const char* name : fields) {
            QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
            QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
            QApplication::sendEvent(&Find<QWidget>(name), &in);
            QApplication::sendEvent(&Find<QWidget>(name), &out);
        }
    };
    for (int round = 0; round < 2000; ++round) {
        Randomise(round);
        const DataImage before = document.Image;
        Load(LanguageOf(round));
        ASSERT_EQ(document.Image, before) << "seed " << Seed << ", round " << round;
        pass();
        for (const int address : Differences(before, document.Image)) {
            ASSERT_TRUE((address >= 0x110 && address <= 0x11A) || address == 0x1FA)
                << "seed " << Seed << ", round " << round << ", address " << address;
        }
        for (const auto& [address, greatest] : last) {
            ASSERT_LE(At(address), greatest) << "seed " << Seed << ", round " << round;
        }
        const DataImage stored = document.Image;
        if (round % 10 == 0) {
            pass();
        }
        ASSERT_EQ(document.Image, stored) << "seed " << Seed << ", round " << round;
    }
    form.reset();
}

TEST_F(DTMFRandomTest, CodesAndMemoriesOfAnyImageAreWalkedThroughByKey) {
    int refused = 0;
    for (int round = 0; round < 150; ++round) {
        Randomise(round);
        const DataImage before = document.Image;
        ShowAt(1, "txtIDCode", LanguageOf(round));
        const auto tab = [&](const char* name) {
            const int length = static_cast<int>(Box(name).text().size());
            const bool legal = length >= 3 || (length == 0 && Box(name).objectName() == "txtStunCode");
            if (!legal) {
                ExpectInvalid(LanguageOf(round));
                ++refused;
            }
            Key(Qt::Key_Tab);
            ASSERT_EQ(Box(name).hasFocus(), !legal) << "seed " << Seed << ", round " << round;
            if (!legal) {
                Retype("123");
                Key(Qt::Key_Tab);
            }
        };
        tab("txtIDCode");
        Focus("txtStunCode");
        tab("txtStunCode");
        ClickTab(2);
        Focus("msgAutodial");
        for (int row = 1; row <= 8; ++row) {
            Key(Qt::Key_Return);
            ASSERT_TRUE(Editor().hasFocus());
            Key(Qt::Key_Return);
        }
        ASSERT_EQ(services.messages.Pending(), 0) << "seed " << Seed << ", round " << round;
        for (const int address : Differences(before, document.Image)) {
            ASSERT_TRUE((address >= 0x110 && address <= 0x11A) || (address >= 0x120 && address <= 0x129) ||
                        (address >= 0x1F0 && address <= 0x1FA) || (address >= 0x200 && address <= 0x27F))
                << "seed " << Seed << ", round " << round << ", address " << address;
        }
    }
    EXPECT_GT(refused, 0);
}

} // namespace
} // namespace zelvor
