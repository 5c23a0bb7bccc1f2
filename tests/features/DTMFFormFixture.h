#pragma once

#include <QCheckBox>
#include <QGroupBox>

#include "TabbedFormFixture.h"
#include "features/DTMFForm.h"

namespace zelvor {

/// A DTMF window over settings in which every byte is legal: 8 digits/s, 100 ms, 160 ms, 500 ms, 7 s, side tone on,
/// group code B, 5 s, Continuous, ID Code, clear on; ID code 12345, stun code 7A*, TX/RX Inhibit; memory 2 holds
/// 55512.
class DTMFFormTest : public TabbedFormTest<DTMFForm> {
protected:
    using Bytes = std::vector<int>;

    void SetUp() override {
        Put(0x110, {1, 1, 16, 2, 7, 1, 0x42, 5, 1, 2, 1});
        Put(0x120, {'1', '2', '3', '4', '5'});
        Put(0x1F0, {'7', 'A', '*'});
        Put(0x1FA, {1});
        Put(0x210, {'5', '5', '5', '1', '2', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '});
    }

    /// The ten bytes of a code as text, '.' for 0xFF.
    std::string Code(int address) const { return Characters(address, 10); }
    /// The sixteen bytes of a memory, the same way.
    std::string Memory(int n) const { return Characters(0x200 + 16 * (n - 1), 16); }

    QCheckBox& Check(const char* name) { return Find<QCheckBox>(name); }

    /// Shows the window with the focus in a control of a tab.
    void ShowAt(int tab, const char* name, Language language = Language::English) {
        Show(language);
        ClickTab(tab);
        Focus(name);
    }
    void Focus(const char* name) {
        Find<QWidget>(name).setFocus();
        ASSERT_TRUE(Find<QWidget>(name).hasFocus()) << name;
    }
    /// Takes the focus to a control and away from it.
    void PassThrough(const char* name) {
        Focus(name);
        Find<QPushButton>("cmdClose").setFocus();
        ASSERT_FALSE(Find<QWidget>(name).hasFocus()) << name;
    }
    /// Replaces the text of the box with the focus.
    void Retype(const char* text) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_Backspace);
        Type(text);
    }

    EditGrid& Grid() override { return Find<EditGrid>("msgAutodial"); }
    QLineEdit& Editor() { return Box("txtAutodial"); }
    std::string Cell(int row) { return TabbedFormTest::Cell(row, 1); }

    void ExpectInvalid(Language language = Language::English) {
        const bool english = language == Language::English;
        services.messages.Expect({english ? "Error" : "错误", english ? "Invalid Data." : "无效数据。",
                                  MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok},
                                 MessageAnswer::Ok);
    }

private:
    std::string Characters(int address, int count) const {
        std::string text;
        for (const int byte : From(address, count)) {
            text += byte == 0xFF ? '.' : static_cast<char>(byte);
        }
        return text;
    }
};

} // namespace zelvor
