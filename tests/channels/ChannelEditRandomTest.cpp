#include "ChannelEditFixture.h"

#include <random>

namespace zelvor {
namespace {

constexpr unsigned Seed = 20261121;

class ChannelEditRandomTest : public ChannelEditTest {
protected:
    /// Image 0 is all 0x00, image 1 all 0xFF.
    void FillImage(int round) {
        for (int a = 0; a < 1024; ++a) {
            document.Image.Set(a, static_cast<std::uint8_t>(round == 0 ? 0x00 : round == 1 ? 0xFF : generator_()));
        }
    }
    void Reopen() {
        windows.SetOpen(ChildWindow::ChannelEdit, true);
        dialog->show();
        dialog->OpenOnEditChannel();
    }

private:
    std::minstd_rand generator_{Seed};
};

TEST_F(ChannelEditRandomTest, EveryImageIsShownChannelByChannelWithoutChangingAByte) {
    ShowBoth();
    for (int round = 0; round < 2002; ++round) {
        FillImage(round);
        const DataImage before = document.Image;
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        Reopen();
        for (int step = 0; step < 4; ++step) {
            dialog->GoToChannel(1 + (round + 5 * step) % 16);
        }
        ASSERT_EQ(document.Image, before) << "seed " << Seed << ", round " << round;
    }
}

TEST_F(ChannelEditRandomTest, ClosingChangesOnlyTheShownChannelAndItsScanAddBit) {
    ShowBoth();
    for (int round = 0; round < 400; ++round) {
        FillImage(round);
        const DataImage before = document.Image;
        const int k = 1 + round % 16;
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        windows.Cursor.SetEditChannel(k);
        Reopen();
        const bool blank = Rx().text().isEmpty();
        Close();
        for (int a = 0; a < 1024; ++a) {
            const bool ofChannel = a / 16 == k || a == 0x17E + (k - 1) / 8;
            ASSERT_TRUE(ofChannel || document.Image.At(a) == before.At(a)) << "seed " << Seed << ", round " << round;
        }
        // What the encoder neither carries over nor fixes stays: Compander, Busy Channel Lockout, Beat Shift, Autodial.
        const int at = 16 * k;
        ASSERT_EQ(document.Image.At(at + 12) & 0x19, before.At(at + 12) & 0x19) << round;
        ASSERT_EQ(document.Image.At(at + 13) & 0x40, before.At(at + 13) & 0x40) << round;
        ASSERT_EQ(document.Image.At(at + 13) & 0x8F, 0x8F) << round;
        ASSERT_EQ(document.Image.At(at + 15), 0xF8 | (before.At(at + 15) & 7)) << round;
        const int scan = 0x17E + (k - 1) / 8;
        const int bit = 1 << (k - 1) % 8;
        ASSERT_EQ(document.Image.At(scan), blank ? before.At(scan) & ~bit : before.At(scan)) << round;
        if (!blank) {
            ASSERT_EQ(document.Image.At(at + 13) & 0x30, before.At(at + 13) & 0x30) << round;
        }
    }
}

TEST_F(ChannelEditRandomTest, EveryControlIsPassedOnAnyImage) {
    ShowBoth();
    for (int round = 0; round < 60; ++round) {
        FillImage(round);
        document.Image.Set(0x1BE, 0xF8);
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        windows.Cursor.SetEditChannel(1 + round % 16);
        Reopen();
        for (int step = 0; step < 16; ++step) {
            // Frequencies of any bytes may lie out of range.
            const bool isFrequency = Rx().hasFocus() || Tx().hasFocus();
            const double megahertz =
                isFrequency ? static_cast<QLineEdit*>(QApplication::focusWidget())->text().toDouble() : 0;
            if (isFrequency && QApplication::focusWidget()->property("text").toString() != "" &&
                (megahertz > 550 || megahertz < 100)) {
                services.messages.Expect(OutOfRange(), MessageAnswer::Ok);
            }
            Key(Qt::Key_Tab);
        }
    }
    EXPECT_EQ(services.messages.Pending(), 0);
}

} // namespace
} // namespace zelvor
