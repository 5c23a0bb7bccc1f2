#pragma once

#include <string_view>
#include <vector>

#include "GridFormFixture.h"
#include "channels/TestChannelForm.h"

namespace zelvor {

/// The test frequency window on an erased image of market 0x01 (136 to 174 MHz), active, with real key and mouse
/// events.
class TestChannelFormTest : public GridFormTest<TestChannelForm> {
protected:
    using Pair = std::vector<std::string>;

    void SetUp() override {
        document.Image.Set(0x1BD, 0x01);
        document.Image.Set(0x1BE, 0xF8);
    }

    /// Puts the eight bytes of a pair, in hexadecimal, into the image.
    void PutPair(int channel, std::string_view hex) {
        for (int i = 0; i < 8; ++i) {
            const std::string digits(hex.substr(static_cast<std::size_t>(i) * 2, 2));
            document.Image.Set(0x280 + 8 * (channel - 1) + i,
                               static_cast<std::uint8_t>(std::stoi(digits, nullptr, 16)));
        }
    }
    /// The eight bytes of a channel in hexadecimal.
    std::string PairBytes(int channel) {
        QByteArray bytes;
        for (int i = 0; i < 8; ++i) {
            bytes.append(static_cast<char>(document.Image.At(0x280 + 8 * (channel - 1) + i)));
        }
        return bytes.toHex().toUpper().toStdString();
    }

    void Show(Language language = Language::English) {
        Load(language);
        ShowInGrid();
    }

    EditGrid& Grid() override { return Find<EditGrid>("msgTestFreq"); }
    QLineEdit& Editor() { return Find<QLineEdit>("txtTestFreq"); }

    Pair Row(int row) { return {Cell(row, 1), Cell(row, 2)}; }

    void Enter(int row, int column, const char* text) {
        Grid().MoveTo(row, column);
        Type(text);
        Key(Qt::Key_Return);
    }
    /// Opens the cell by Enter, deletes its text and ends with Enter.
    void Empty(int row, int column) {
        Grid().MoveTo(row, column);
        Key(Qt::Key_Return);
        Key(Qt::Key_Backspace);
        Key(Qt::Key_Return);
    }

    void ExpectEditorOver(int row, int column) {
        EXPECT_TRUE(Editor().isVisible());
        EXPECT_TRUE(Editor().hasFocus());
        ExpectCursor(row, column);
        EXPECT_EQ(Editor().geometry(), Grid().CellRect(row, column));
    }

    void ExpectMessage(std::string title, std::string text) {
        services.messages.Expect(
            {std::move(title), std::move(text), MessageIcon::Exclamation, MessageButtons::Ok, MessageAnswer::Ok},
            MessageAnswer::Ok);
    }
    void ExpectOutOfRange() { ExpectMessage("Warning", "Frequency is out of range."); }
};

} // namespace zelvor
