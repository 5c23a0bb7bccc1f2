#include <random>

#include "CorvaneFormFixture.h"

namespace zelvor {
namespace {

// Random images, half of them with a fleet list of small numbers. Opening changes nothing; a walk of the focus through
// all fields and a cell, or all cells, changes the block and the list alone, and a second one nothing any more.
TEST_F(CorvaneFormTest, OpensOnAnyImageAndWalkingThroughItSettlesAtOnceAndStaysInItsBytes) {
    const unsigned seed = 20270105;
    std::mt19937 random(seed);
    QWidget host;
    host.resize(500, 400);
    host.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    const auto walk = [this](CorvaneForm& window, int firstCell, int cells) {
        auto& tabs = *window.findChild<QTabWidget*>("SSTab1");
        auto& grid = *window.findChild<EditGrid*>("msgFleetList");
        tabs.setCurrentIndex(0);
        window.findChild<QLineEdit*>("txtFleet")->setFocus();
        for (int step = 0; step < 6; ++step) {
            Key(Qt::Key_Tab);
        }
        tabs.setCurrentIndex(1);
        for (int cell = firstCell; cell < firstCell + cells; ++cell) {
            grid.setFocus();
            grid.MoveTo(1 + cell / 2, 1 + cell % 2);
            Key(Qt::Key_Return);
            Key(Qt::Key_Tab);
        }
    };
    for (int i = 0; i < 2000; ++i) {
        document.Image = RandomImage(random);
        if (i < 2) {
            document.Image.Fill(i == 0 ? 0x00 : 0xFF);
        }
        for (int n = 1; i % 2 == 0 && n <= 8; ++n) {
            PutEntry(n, {static_cast<int>(random() % 3), 255 - static_cast<int>(random() % 3) * 127, 0});
        }
        windows.LanguageFlag = i % 2 == 0 ? Language::English : Language::Chinese;
        const DataImage before = document.Image;
        CorvaneForm window(document, windows, services.Get(), &host);
        ASSERT_EQ(document.Image, before) << "seed " << seed << ", image " << i;
        window.show();
        const bool whole = i % 20 < 2;
        walk(window, whole ? 0 : i % 16, whole ? 16 : 1);
        const DataImage settled = document.Image;
        if (whole) {
            walk(window, 0, 16);
            ASSERT_EQ(Differences(document.Image, settled), Bytes{}) << "seed " << seed << ", image " << i;
        }
        for (const int address : Differences(settled, before)) {
            const bool ofBlock = address >= 0x170 && address <= 0x178;
            const bool ofList = (address >= 0x1C0 && address <= 0x1CB) || (address >= 0x1D0 && address <= 0x1DB);
            ASSERT_TRUE(ofBlock || ofList) << address << ", seed " << seed << ", image " << i;
        }
        window.CloseFromFrame();
    }
    EXPECT_TRUE(services.messages.Shown().empty());
}

} // namespace
} // namespace zelvor
