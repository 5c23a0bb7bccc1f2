#pragma once

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <span>

#include "channels/ChannelForm.h"
#include "controls/EditGrid.h"
#include "controls/WindowState.h"
#include "data/BlankImage.h"
#include "data/Document.h"
#include "fakes/FakeServices.h"
#include "platform/Toolkit.h"

namespace zelvor {

/// A channel window on a blank document of the default model, active, with real key and mouse events.
class ChannelFormTest : public testing::Test {
protected:
    void SetUp() override {
        document.Image.Set(0x1BD, 0x01);
        document.Image.Set(0x1BE, 0xF8);
        InitAllFrameData(document.Image);
    }

    /// Shows the window over the image as it is now.
    void Show(Language language = Language::English) {
        windows.LanguageFlag = language;
        form = std::make_unique<ChannelForm>(document, windows, services.Get());
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        Grid().setFocus();
        ASSERT_TRUE(Grid().hasFocus());
    }

    template<typename Control>
    Control& Find(const char* name) {
        auto* control = form->findChild<Control*>(name);
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    EditGrid& Grid() { return Find<EditGrid>("ChannelGrid"); }
    QLineEdit& TextBox() { return Find<QLineEdit>("txtInputBox"); }
    QComboBox& List() { return Find<QComboBox>("comInputStep"); }

    std::string Cell(int row, int column) { return FromQString(Grid().Text(row, column)); }
    std::vector<std::string> Row(int row) {
        std::vector<std::string> cells;
        for (int column = 1; column <= 9; ++column) {
            cells.push_back(Cell(row, column));
        }
        return cells;
    }

    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void Type(const char* text) {
        for (const char* c = text; *c != '\0'; ++c) {
            QTest::keyClick(QApplication::focusWidget(), *c);
        }
    }
    void ClickCell(int row, int column) {
        const QRect cell = Grid().visualItemRect(Grid().item(row - 1, column - 1));
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, cell.center());
    }
    void GoTo(int row, int column) { form->SelectCell(row, column); }
    void ExpectCursor(int row, int column) {
        EXPECT_EQ(Grid().Row(), row);
        EXPECT_EQ(Grid().Column(), column);
    }

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

    FakeServices services;
    Document document;
    WindowState windows;
    std::unique_ptr<ChannelForm> form;
};

/// 145.12500 both ways, no tones, High, Wide, no signalling, PTT ID off, autodial 1.
inline constexpr std::array<std::uint8_t, 16> SimplexRecord{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14,
                                                            0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xBF, 0xB0, 0xF8};

} // namespace zelvor
