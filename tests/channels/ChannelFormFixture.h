#pragma once

#include <QMainWindow>
#include <span>

#include "GridFormFixture.h"
#include "channels/ChannelForm.h"
#include "data/BlankImage.h"

namespace zelvor {

/// A channel window on a blank document of the default model, active, with real key and mouse events.
class ChannelFormTest : public GridFormTest<ChannelForm> {
protected:
    void SetUp() override {
        document.Image.Set(0x1BD, 0x01);
        document.Image.Set(0x1BE, 0xF8);
        InitAllFrameData(document.Image);
    }

    /// Shows the window over the image as it is now.
    void Show(Language language = Language::English) {
        Load(language);
        document.Channels.DecodeImageToGrid(document.Image, language);
        ShowInGrid();
    }

    EditGrid& Grid() override { return Find<EditGrid>("ChannelGrid"); }
    QLineEdit& TextBox() { return Find<QLineEdit>("txtInputBox"); }
    QComboBox& List() { return Find<QComboBox>("comInputStep"); }

    std::vector<std::string> Row(int row) {
        std::vector<std::string> cells;
        for (int column = 1; column <= 9; ++column) {
            cells.push_back(Cell(row, column));
        }
        return cells;
    }

    void GoTo(int row, int column) { form->SelectCell(row, column); }

    void PutRecord(int k, const std::array<std::uint8_t, 16>& record) {
        for (int j = 0; j < 16; ++j) {
            document.Image.Set(k * 16 + j, record[static_cast<std::size_t>(j)]);
        }
    }
    std::vector<int> Record(int k) {
        std::vector<int> bytes;
        for (int j = 0; j < 16; ++j) {
            bytes.push_back(document.Image.At(k * 16 + j));
        }
        return bytes;
    }

    static Message OutOfRange() {
        return {"Caution", "Frequency is out of range.", MessageIcon::Exclamation, MessageButtons::Ok,
                MessageAnswer::Ok};
    }
};

/// 145.12500 both ways, no tones, High, Wide, no signalling, PTT ID off, autodial 1.
inline constexpr std::array<std::uint8_t, 16> SimplexRecord{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14,
                                                            0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xBF, 0xB0, 0xF8};

} // namespace zelvor
