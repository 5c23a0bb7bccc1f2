#pragma once

#include "TabbedFormFixture.h"
#include "features/CorvaneForm.h"

namespace zelvor {

/// A Corvane window over a block in which every byte is legal: fleet 149, ID 2499, 400 ms, 1200 bps, 10 s, side tone
/// on; an erased fleet list but for entry 2, fleet 150 and ID 1234.
class CorvaneFormTest : public TabbedFormTest<CorvaneForm> {
protected:
    using Bytes = std::vector<int>;

    void SetUp() override {
        Put(0x170, {50, 0xDC, 0x05, 144, 1, 0, 10, 0, 1});
        Put(0x1C3, {51, 235, 0});
    }
    Bytes Own() const { return From(0x170, 3); }
    Bytes Entry(int n) const { return From(n <= 4 ? 0x1C0 + 3 * (n - 1) : 0x1D0 + 3 * (n - 5), 3); }
    void PutEntry(int n, std::initializer_list<int> bytes) {
        Put(n <= 4 ? 0x1C0 + 3 * (n - 1) : 0x1D0 + 3 * (n - 5), bytes);
    }

    void Focus(const char* name) {
        Box(name).setFocus();
        ASSERT_TRUE(Box(name).hasFocus()) << name;
    }

    EditGrid& Grid() override { return Find<EditGrid>("msgFleetList"); }
    QLineEdit& Editor() { return Box("txtFleetList"); }
    void ShowList(Language language = Language::English) {
        Show(language);
        ClickTab(1);
        Grid().setFocus();
        ASSERT_TRUE(Grid().hasFocus());
    }
    /// Opens the cell by Enter, with its text selected.
    void Open(int row, int column) {
        Grid().setFocus();
        Grid().MoveTo(row, column);
        Key(Qt::Key_Return);
        ASSERT_TRUE(Editor().hasFocus());
    }
    void ExpectCursor(int row, int column) {
        EXPECT_TRUE(Grid().hasFocus());
        TabbedFormTest::ExpectCursor(row, column);
    }
};

} // namespace zelvor
