#pragma once

#include <QStyleOptionSpinBox>
#include <QTabBar>
#include <QTabWidget>

#include "channels/ChildFormFixture.h"
#include "controls/EditGrid.h"
#include "controls/SpinText.h"
#include "features/CorvaneForm.h"

namespace zelvor {

/// A Corvane window over a block in which every byte is legal: fleet 149, ID 2499, 400 ms, 1200 bps, 10 s, side tone
/// on; an erased fleet list but for entry 2, fleet 150 and ID 1234.
class CorvaneFormTest : public ChildFormTest<CorvaneForm> {
protected:
    using Bytes = std::vector<int>;

    void SetUp() override {
        Put(0x170, {50, 0xDC, 0x05, 144, 1, 0, 10, 0, 1});
        Put(0x1C3, {51, 235, 0});
    }
    Bytes From(int address, int count) const {
        Bytes bytes;
        for (int i = 0; i < count; ++i) {
            bytes.push_back(At(address + i));
        }
        return bytes;
    }
    Bytes Own() const { return From(0x170, 3); }
    Bytes Entry(int n) const { return From(n <= 4 ? 0x1C0 + 3 * (n - 1) : 0x1D0 + 3 * (n - 5), 3); }
    void PutEntry(int n, std::initializer_list<int> bytes) {
        Put(n <= 4 ? 0x1C0 + 3 * (n - 1) : 0x1D0 + 3 * (n - 5), bytes);
    }

    int Spin(const char* name) { return Find<UpDown>(name).Value(); }
    void Step(const char* upDown, bool up) {
        auto& pair = Find<UpDown>(upDown);
        QStyleOptionSpinBox option;
        option.initFrom(&pair);
        option.subControls = QStyle::SC_All;
        const QRect button = pair.style()->subControlRect(QStyle::CC_SpinBox, &option,
                                                          up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown, &pair);
        QTest::mouseClick(&pair, Qt::LeftButton, {}, button.center());
    }
    void Focus(const char* name) {
        Box(name).setFocus();
        ASSERT_TRUE(Box(name).hasFocus()) << name;
    }

    QTabWidget& Tabs() { return Find<QTabWidget>("SSTab1"); }
    void ClickTab(int index) {
        QTest::mouseClick(Tabs().tabBar(), Qt::LeftButton, {}, Tabs().tabBar()->tabRect(index).center());
    }
    EditGrid& Grid() { return Find<EditGrid>("msgFleetList"); }
    QLineEdit& Editor() { return Box("txtFleetList"); }
    std::string Cell(int row, int column) { return Grid().Text(row, column).toStdString(); }
    void ShowList(Language language = Language::English) {
        Show(language);
        ClickTab(1);
        Grid().setFocus();
        ASSERT_TRUE(Grid().hasFocus());
    }
    void ClickCell(int row, int column, Qt::MouseButton button = Qt::LeftButton) {
        const QRect cell = Grid().visualItemRect(Grid().item(row - 1, column - 1));
        QTest::mouseClick(Grid().viewport(), button, {}, cell.center());
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
        EXPECT_EQ(Grid().Row(), row);
        EXPECT_EQ(Grid().Column(), column);
    }
};

} // namespace zelvor
