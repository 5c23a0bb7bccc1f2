#include <QHeaderView>
#include <cstdio>
#include <random>

#include "features/CPUFormFixture.h"

namespace zelvor {
namespace {

TEST_F(CPUFormTest, ShowsItsTextsInEnglish) {
    Load();
    EXPECT_EQ(form->objectName(), "CPUForm");
    EXPECT_EQ(form->windowTitle(), "Memory Map");
    EXPECT_EQ(Button("cmdOK").text(), "&OK");
    EXPECT_EQ(Button("cmdCancel").text(), "&Cancel");
    EXPECT_EQ(Grid().accessibleName(), "Memory Map");
    EXPECT_EQ(form->findChild<QLabel*>("lblAddr")->accessibleName(), "Address 0000");
    EXPECT_EQ(form->findChild<QLabel*>("lblAddrCaption")->text(), "Address:");
    EXPECT_TRUE(form->isModal());
}

TEST_F(CPUFormTest, ShowsItsTextsInChinese) {
    Load(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "内存指针图");
    EXPECT_EQ(Button("cmdOK").text(), "确定(&O)");
    EXPECT_EQ(Button("cmdCancel").text(), "取消(&C)");
    EXPECT_EQ(form->findChild<QLabel*>("lblAddr")->accessibleName(), "地址 0000");
    EXPECT_EQ(form->findChild<QLabel*>("lblAddrCaption")->text(), "地址：");
}

TEST_F(CPUFormTest, TheHeaderRowHasTheLastDigitOfTheAddress) {
    Load();
    ASSERT_EQ(Grid().columnCount(), 16);
    EXPECT_EQ(Grid().findChild<QLabel*>("corner")->text(), "");
    const QStringList digits{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "A", "B", "C", "D", "E", "F"};
    for (int column = 0; column < 16; ++column) {
        EXPECT_EQ(Grid().horizontalHeaderItem(column)->text(), digits[column]);
        EXPECT_TRUE(Grid().horizontalHeader()->defaultAlignment().testFlag(Qt::AlignHCenter));
    }
}

TEST_F(CPUFormTest, TheFixedColumnHasTheOtherDigits) {
    Load();
    ASSERT_EQ(Grid().rowCount(), 64);
    const QStringList labels{"000_", "001_", "002_", "003_", "004_", "005_", "006_", "007_", "008_", "009_", "00A_",
                             "00B_", "00C_", "00D_", "00E_", "00F_", "010_", "011_", "012_", "013_", "014_", "015_",
                             "016_", "017_", "018_", "019_", "01A_", "01B_", "01C_", "01D_", "01E_", "01F_", "020_",
                             "021_", "022_", "023_", "024_", "025_", "026_", "027_", "028_", "029_", "02A_", "02B_",
                             "02C_", "02D_", "02E_", "02F_", "030_", "031_", "032_", "033_", "034_", "035_", "036_",
                             "037_", "038_", "039_", "03A_", "03B_", "03C_", "03D_", "03E_", "03F_"};
    ASSERT_EQ(labels.size(), 64);
    for (int row = 0; row < 64; ++row) {
        EXPECT_EQ(Grid().verticalHeaderItem(row)->text(), labels[row]);
    }
}

TEST_F(CPUFormTest, TheColumnsShareTheWidthByNineteenths) {
    Load();
    EXPECT_EQ(Grid().verticalHeader()->width(), Grid().width() * 2 / 19);
    for (int column = 0; column < 16; ++column) {
        EXPECT_EQ(Grid().columnWidth(column), Grid().width() / 19);
    }
}

TEST_F(CPUFormTest, GrowsAndShrinksWithItsWindow) {
    Show();
    const int rowsAtFirst = VisibleRows();
    EXPECT_EQ(rowsAtFirst, 16);
    const int widthAtFirst = Grid().width();
    form->resize(form->width() + 76, form->height() + 250);
    QCoreApplication::processEvents();
    EXPECT_EQ(VisibleRows(), 26);
    EXPECT_EQ(Grid().width(), widthAtFirst + 76);
    EXPECT_EQ(Grid().columnWidth(0), widthAtFirst / 19 + 4);
    EXPECT_EQ(Grid().columnWidth(15), widthAtFirst / 19 + 4);
    EXPECT_EQ(Grid().verticalHeader()->width(), (widthAtFirst + 76) * 2 / 19);
    form->resize(1, 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(VisibleRows(), 6);
    EXPECT_LE(form->width(), 620); // in a screen of 640 x 480
    EXPECT_LE(form->height(), 440);
    EXPECT_FALSE(Grid().horizontalScrollBar()->isVisible());
    EXPECT_GE(Grid().columnWidth(0), Grid().fontMetrics().horizontalAdvance("DD"));
}

TEST_F(CPUFormTest, ARowThatIsHalfInViewIsScrolledUpForTheEditor) {
    Show();
    form->resize(form->width(), form->height() + 12);
    QCoreApplication::processEvents();
    const QRect cell = Grid().visualItemRect(Grid().item(16, 3));
    ASSERT_LT(Grid().viewport()->height(), cell.bottom());
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, cell.topLeft() + QPoint(5, 5));
    ExpectCursor(17, 4);
    EXPECT_TRUE(Editor().hasFocus());
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(17, 4));
    EXPECT_TRUE(Grid().geometry().contains(Editor().geometry()));
    Type("3");
    EXPECT_EQ(Grid().Text(17, 4), "3");
}

TEST_F(CPUFormTest, TheEditorStaysOverItsCellWhenTheWindowGrows) {
    Show();
    Grid().MoveTo(3, 9);
    Type("A");
    form->resize(form->width() + 95, form->height() + 50);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Editor().hasFocus());
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(3, 9));
}

TEST_F(CPUFormTest, EveryByteShowsAtItsAddressInTwoCapitalDigits) {
    for (int address = 0; address < 1024; ++address) {
        document.Image.Set(address, static_cast<std::uint8_t>(address * 7 + address / 256));
    }
    Load();
    for (int address = 0; address < 1024; ++address) {
        char expected[8];
        static_cast<void>(std::snprintf(expected, sizeof expected, "%02X", (address * 7 + address / 256) & 0xFF));
        EXPECT_EQ(Grid().Text(address / 16 + 1, address % 16 + 1), expected) << address;
    }
    EXPECT_EQ(Grid().Text(1, 3), "0E");
    EXPECT_EQ(Grid().Text(64, 16), "FC");
}

TEST_F(CPUFormTest, OpensOnTheFirstCellWithTheEditorHidden) {
    Show();
    ExpectCursor(1, 1);
    EXPECT_EQ(Address(), "0000");
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(CPUFormTest, TheAddressFollowsTheCursor) {
    Show();
    Key(Qt::Key_Right);
    EXPECT_EQ(Address(), "0001");
    Key(Qt::Key_Down);
    EXPECT_EQ(Address(), "0011");
    EXPECT_EQ(form->findChild<QLabel*>("lblAddr")->accessibleName(), "Address 0011");
    Grid().MoveTo(28, 14);
    EXPECT_EQ(Address(), "01BD");
    Grid().MoveTo(64, 16);
    EXPECT_EQ(Address(), "03FF");
    ClickCell(64, 11);
    EXPECT_EQ(Address(), "03FA");
}

TEST_F(CPUFormTest, TabGoesRoundTheGridAndTheButtonsEitherWay) {
    Show();
    const QWidget* const round[] = {&Grid(), &Button("cmdOK"), &Button("cmdCancel")};
    for (int step = 1; step <= 6; ++step) {
        Key(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), round[step % 3]) << "Tab " << step;
    }
    for (int step = 5; step >= 0; --step) {
        Key(Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), round[step % 3]) << "Shift+Tab back to " << step;
    }
    ExpectCursor(1, 1);
}

TEST_F(CPUFormTest, TabOutOfACellStoresItAndGoesOn) {
    Show();
    Grid().MoveTo(3, 5);
    Type("A");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Grid().Text(3, 5), "0A");
    EXPECT_TRUE(Button("cmdOK").hasFocus());
    Key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(Grid().hasFocus());
    ExpectCursor(3, 5);
    Type("b");
    Key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(Grid().Text(3, 5), "0B");
    EXPECT_TRUE(Grid().hasFocus());
    Key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(Button("cmdCancel").hasFocus());
}

TEST_F(CPUFormTest, OkStoresEveryCell) {
    Show();
    DataImage expected;
    for (int row = 1; row <= 64; ++row) {
        for (int column = 1; column <= 16; ++column) {
            const int address = (row - 1) * 16 + column - 1;
            const int value = (address * 5 + address / 256) & 0xFF;
            expected.Set(address, static_cast<std::uint8_t>(value));
            char text[8];
            static_cast<void>(std::snprintf(text, sizeof text, "%02X", value));
            Grid().SetText(row, column, text);
        }
    }
    Click("cmdOK");
    EXPECT_EQ(document.Image, expected);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Accepted);
}

TEST_F(CPUFormTest, NothingIsStoredBeforeOkAndNothingAtAnyOtherEnd) {
    const DataImage before = document.Image;
    const auto expectQuestion = [this] { services.messages.Expect(Question(), MessageAnswer::Yes); };
    const std::function<void()> ends[] = {[this] { Click("cmdCancel"); }, [&] { expectQuestion(), form->close(); },
                                          [&] { expectQuestion(), Key(Qt::Key_Escape); }};
    for (const auto& end : ends) {
        Show();
        Type("12");
        Key(Qt::Key_Return);
        EXPECT_EQ(Grid().Text(1, 1), "12");
        EXPECT_EQ(document.Image, before);
        end();
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(document.Image, before);
    }
}

TEST_F(CPUFormTest, OkLeavesEveryImageThatWasNotEditedAsItIs) {
    constexpr unsigned seed = 5205;
    std::mt19937 random(seed);
    for (int round = 0; round < 2000; ++round) {
        for (int address = 0; address < 1024; ++address) {
            document.Image.Set(address, static_cast<std::uint8_t>(random()));
        }
        const DataImage before = document.Image;
        Load();
        ASSERT_EQ(document.Image, before) << "seed " << seed << " round " << round;
        Button("cmdOK").click();
        ASSERT_EQ(document.Image, before) << "seed " << seed << " round " << round;
    }
}

} // namespace
} // namespace zelvor
