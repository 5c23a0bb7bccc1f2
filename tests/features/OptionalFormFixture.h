#pragma once

#include <QCheckBox>
#include <QGroupBox>

#include "channels/ChildFormFixture.h"
#include "features/OptionalForm.h"

namespace zelvor {

/// An optional features window over the values of a new document.
class OptionalFormTest : public ChildFormTest<OptionalForm> {
protected:
    void SetUp() override {
        Put(0x12C, {0, 0, 0xFF, 0, 4, 0, 0, 0, 5, 0, 1, 0, 0, 0, 5, 1, 0, 0, 0});
        Put(0x140, {'1', '2', '3', '4', '5'});
    }

    QCheckBox& Check(const char* name) { return Find<QCheckBox>(name); }
    int Chosen(const char* name) { return List(name).currentIndex(); }
    bool IsEnabled(const char* name) { return Find<QWidget>(name).isEnabled(); }
    /// Takes the focus to a control and away from it.
    void PassThrough(const char* name) {
        Find<QWidget>(name).setFocus();
        ASSERT_TRUE(Find<QWidget>(name).hasFocus()) << name;
        Find<QPushButton>("cmdClose").setFocus();
    }
    /// Takes an entry of a list and stays in it.
    void Take(const char* name, int index) {
        List(name).setFocus();
        ASSERT_TRUE(List(name).hasFocus()) << name;
        List(name).setCurrentIndex(index);
    }
    void PutCode(int address, const char* digits) {
        for (int i = 0; i < 16; ++i) {
            document.Image.Set(address + i, *digits == '\0' ? 0xFF : static_cast<std::uint8_t>(*digits++));
        }
    }
    /// The code's bytes as text, '.' for 0xFF.
    std::string Code(int address) {
        std::string code;
        for (int i = 0; i < 16; ++i) {
            const int byte = At(address + i);
            code += byte == 0xFF ? '.' : static_cast<char>(byte);
        }
        return code;
    }
};

} // namespace zelvor
