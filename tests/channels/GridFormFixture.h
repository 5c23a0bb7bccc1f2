#pragma once

#include "channels/ChildFormFixture.h"
#include "controls/EditGrid.h"

namespace zelvor {

/// A window with a grid.
template<typename Form>
class GridFormTest : public ChildFormTest<Form> {
protected:
    virtual EditGrid& Grid() = 0;

    std::string Cell(int row, int column) { return FromQString(Grid().Text(row, column)); }
    void ClickCell(int row, int column, Qt::MouseButton button = Qt::LeftButton) {
        const QRect cell = Grid().visualItemRect(Grid().item(row - 1, column - 1));
        QTest::mouseClick(Grid().viewport(), button, {}, cell.center());
    }
    void ExpectCursor(int row, int column) {
        EXPECT_EQ(Grid().Row(), row);
        EXPECT_EQ(Grid().Column(), column);
    }
    /// Shows the loaded window with the focus in the grid.
    void ShowInGrid() {
        this->Activate();
        Grid().setFocus();
        ASSERT_TRUE(Grid().hasFocus());
    }
};

} // namespace zelvor
