#include "TestChannelFormFixture.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace zelvor {
namespace {

constexpr const char* NoBytes = "FFFFFFFFFFFFFFFF";

TEST_F(TestChannelFormTest, AReceiveFrequencyOfAnEmptyRowFillsBothSides) {
    Show();
    Type("145");
    EXPECT_EQ(Row(1), (Pair{"145", ""})); // the raw text shows while typing
    EXPECT_EQ(PairBytes(1), NoBytes);
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(1), (Pair{"145.00000", "145.00000"}));
    EXPECT_EQ(PairBytes(1), "0000501400005014");
    EXPECT_EQ(PairBytes(2), NoBytes);
}

TEST_F(TestChannelFormTest, ATransmitFrequencyOfAnEmptyRowFillsBothSides) {
    Show();
    Enter(16, 2, "409.875");
    EXPECT_EQ(Row(16), (Pair{"409.87500", "409.87500"}));
    EXPECT_EQ(PairBytes(16), "0075984000759840");
}

TEST_F(TestChannelFormTest, AFrequencyOfAFullRowLeavesTheOtherSideAlone) {
    PutPair(3, "0025511400005015");
    Show();
    Enter(3, 1, "146.1");
    EXPECT_EQ(Row(3), (Pair{"146.10000", "155.00000"}));
    EXPECT_EQ(PairBytes(3), "0000611400005015");
    Enter(3, 2, "147.00625");
    EXPECT_EQ(Row(3), (Pair{"146.10000", "147.00625"}));
    EXPECT_EQ(PairBytes(3), "0000611425067014");
}

TEST_F(TestChannelFormTest, FrequenciesGoToTheNearerRasterAndATieToSixAndAQuarterKilohertz) {
    struct Entry {
        const char* typed;
        std::string stored;
        std::string bytes;
    };
    const Entry entries[] = {
        {"145.0031", "145.00500", "0005501400055014"},  {"145.01375", "145.01250", "5012501450125014"},
        {"145.00625", "145.00625", "2506501425065014"}, {"145.1.2", "145.10000", "0000511400005114"},
        {"100", "100.00000", "0000001000000010"},       {"550", "550.00000", "0000005500000055"},
    };
    for (const Entry& entry : entries) {
        PutPair(1, NoBytes);
        Show();
        Enter(1, 1, entry.typed);
        EXPECT_EQ(Row(1), (Pair{entry.stored, entry.stored})) << entry.typed;
        EXPECT_EQ(PairBytes(1), entry.bytes) << entry.typed;
    }
}

TEST_F(TestChannelFormTest, AnEntryOutOfRangeIsReportedAndMovedToTheLimit) {
    Show();
    ExpectOutOfRange();
    Enter(1, 1, "99.9");
    EXPECT_EQ(Row(1), (Pair{"100.00000", "100.00000"}));
    ExpectOutOfRange();
    Enter(2, 1, "600");
    EXPECT_EQ(Row(2), (Pair{"550.00000", "550.00000"}));
    ExpectOutOfRange();
    Enter(3, 1, ".");
    EXPECT_EQ(Row(3), (Pair{"100.00000", "100.00000"}));
    EXPECT_EQ(PairBytes(2), "0000005500000055");
    EXPECT_EQ(services.messages.Shown().size(), 3U);
    ExpectCursor(3, 2);
    EXPECT_TRUE(Grid().hasFocus());
}

TEST_F(TestChannelFormTest, TheRangeReportIsChineseInChinese) {
    Show(Language::Chinese);
    ExpectMessage("警告", "频率超出范围。");
    Enter(1, 1, "9");
    EXPECT_EQ(Row(1), (Pair{"100.00000", "100.00000"}));
}

TEST_F(TestChannelFormTest, AnImageWithoutModelDataReports120AndKeepsIt) {
    for (const int family : {0x00, 0xFF}) {
        document.Image.Set(0x1BE, static_cast<std::uint8_t>(family));
        PutPair(1, NoBytes);
        Show();
        ExpectOutOfRange();
        Enter(1, 1, "120");
        EXPECT_EQ(Row(1), (Pair{"120.00000", "120.00000"}));
        EXPECT_EQ(PairBytes(1), "0000001200000012");
        ExpectOutOfRange();
        Enter(2, 1, "175.00001");
        EXPECT_EQ(Cell(2, 1), "175.00001");
    }
}

TEST_F(TestChannelFormTest, EmptyingEitherSideEmptiesThePair) {
    for (const int column : {1, 2}) {
        PutPair(2, "0025511400005015");
        PutPair(3, "0000501400005014");
        Show();
        Empty(2, column);
        EXPECT_EQ(Row(2), (Pair{"", ""})) << column;
        EXPECT_EQ(PairBytes(2), NoBytes) << column;
        EXPECT_EQ(Row(3), (Pair{"145.00000", "145.00000"}));
        EXPECT_EQ(PairBytes(3), "0000501400005014");
    }
}

TEST_F(TestChannelFormTest, EmptyingTheLastPairBringsTheDefaultPairsBack) {
    for (const int row : {1, 4, 16}) {
        for (const int column : {1, 2}) {
            document.Image.Fill(0xFF);
            SetUp();
            PutPair(row, "0025511400005015");
            Show();
            Empty(row, column);
            EXPECT_EQ(Row(1), (Pair{"155.05000", "155.10000"}));
            EXPECT_EQ(Row(2), (Pair{"136.05000", "136.10000"}));
            EXPECT_EQ(Row(3), (Pair{"173.95000", "173.90000"}));
            EXPECT_EQ(Row(4), (Pair{"155.00000", "155.00000"}));
            EXPECT_EQ(Row(5), (Pair{"155.20000", "155.20000"}));
            EXPECT_EQ(Row(6), (Pair{"155.40000", "155.40000"}));
            for (int empty = 7; empty <= 16; ++empty) {
                EXPECT_EQ(Row(empty), (Pair{"", ""})) << empty;
                EXPECT_EQ(PairBytes(empty), NoBytes) << empty;
            }
            EXPECT_EQ(PairBytes(1), "0050501500005115");
            EXPECT_EQ(PairBytes(2), "0050601300006113");
            EXPECT_EQ(PairBytes(3), "0050391700003917");
            EXPECT_EQ(PairBytes(4), "0000501500005015");
            EXPECT_EQ(PairBytes(5), "0000521500005215");
            EXPECT_EQ(PairBytes(6), "0000541500005415");
            EXPECT_FALSE(Editor().isVisible());
        }
    }
}

TEST_F(TestChannelFormTest, TheDefaultPairsOfEachMarketAreShown) {
    struct Market {
        std::vector<int> bytes;
        std::vector<std::string> cells; // of rows 1 to 6
    };
    const Market markets[] = {
        {{0x00, 0x01},
         {"155.05000", "155.10000", "136.05000", "136.10000", "173.95000", "173.90000", "155.00000", "155.00000",
          "155.20000", "155.20000", "155.40000", "155.40000"}},
        {{0x20, 0x21},
         {"470.05000", "470.10000", "450.05000", "450.10000", "489.95000", "489.90000", "470.00000", "470.00000",
          "470.20000", "470.20000", "470.40000", "470.40000"}},
        {{0x33},
         {"460.05000", "460.10000", "440.05000", "440.10000", "479.95000", "479.90000", "460.00000", "460.00000",
          "460.20000", "460.20000", "460.40000", "460.40000"}},
        {{0x41, 0x43},
         {"415.05000", "415.10000", "400.05000", "400.10000", "429.95000", "429.90000", "415.00000", "415.00000",
          "415.20000", "415.20000", "415.40000", "415.40000"}},
        {{0x53},
         {"360.05000", "360.10000", "350.05000", "350.10000", "369.95000", "369.90000", "360.00000", "360.00000",
          "360.20000", "360.20000", "360.40000", "360.40000"}},
        {{0x63},
         {"380.05000", "380.10000", "370.05000", "370.10000", "389.95000", "389.90000", "380.00000", "380.00000",
          "380.20000", "380.20000", "380.40000", "380.40000"}},
        {{0x70, 0x71},
         {"491.05000", "491.10000", "470.05000", "470.10000", "511.95000", "511.90000", "491.00000", "491.00000",
          "491.20000", "491.20000", "491.40000", "491.40000"}},
        {{0x73},
         {"435.05000", "435.10000", "400.05000", "400.10000", "469.95000", "469.90000", "435.00000", "435.00000",
          "435.20000", "435.20000", "435.40000", "435.40000"}},
        // No band: both limits are 0, and nothing lies below it.
        {{0x02, 0x42, 0xFF},
         {"000.05000", "000.10000", "000.05000", "000.10000", "000.00000", "000.00000", "000.00000", "000.00000",
          "000.20000", "000.20000", "000.40000", "000.40000"}},
    };
    for (const Market& market : markets) {
        for (const int byte : market.bytes) {
            document.Image.Fill(0xFF);
            document.Image.Set(0x1BD, static_cast<std::uint8_t>(byte));
            PutPair(5, "0025511400005015");
            Show();
            Empty(5, 1);
            std::vector<std::string> cells;
            for (int row = 1; row <= 6; ++row) {
                cells.push_back(Cell(row, 1));
                cells.push_back(Cell(row, 2));
            }
            EXPECT_EQ(cells, market.cells) << byte;
        }
    }
}

TEST_F(TestChannelFormTest, EnterOnAnEmptyTableBringsTheDefaultPairs) {
    Show();
    Grid().MoveTo(10, 1);
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(1), (Pair{"155.05000", "155.10000"}));
    EXPECT_EQ(Row(10), (Pair{"", ""}));
    ExpectCursor(10, 2);
}

TEST_F(TestChannelFormTest, AfterTheDefaultPairsCameBackEditingGoesOnAsUsual) {
    PutPair(1, "0025511400005015");
    Show();
    Empty(1, 1);
    EXPECT_EQ(Row(1), (Pair{"155.05000", "155.10000"}));
    ExpectCursor(1, 2);
    Enter(1, 2, "140");
    EXPECT_EQ(Row(1), (Pair{"155.05000", "140.00000"}));
    EXPECT_EQ(PairBytes(1), "0050501500000014");
}

TEST_F(TestChannelFormTest, EnterMovesToTheTransmitSideAndThenToTheNextRow) {
    Show();
    Enter(15, 1, "145");
    ExpectCursor(15, 2);
    EXPECT_TRUE(Grid().hasFocus());
    EXPECT_FALSE(Editor().isVisible());
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);
    ExpectCursor(16, 1);
    Enter(16, 2, "145");
    ExpectCursor(16, 2); // there is no row behind it
}

TEST_F(TestChannelFormTest, EscapeBringsTheTextBack) {
    PutPair(2, "0025511400005015");
    Show();
    Grid().MoveTo(2, 1);
    const DataImage before = document.Image;
    Type("14");
    EXPECT_EQ(Cell(2, 1), "14");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Row(2), (Pair{"145.12500", "155.00000"}));
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
    ExpectCursor(2, 1);
    EXPECT_EQ(document.Image, before);
}

TEST_F(TestChannelFormTest, TheEditorTakesNineDigitsAndPoints) {
    Show();
    Type("1x4-5 l,.1234567");
    EXPECT_EQ(Editor().text(), "145.12345");
    EXPECT_EQ(Cell(1, 1), "145.12345");
    EXPECT_EQ(PairBytes(1), NoBytes); // nine characters alone commit nothing
    Editor().setSelection(4, 5);
    Type("6");
    EXPECT_EQ(Editor().text(), "145.6");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Cell(1, 1), "145.");
}

TEST_F(TestChannelFormTest, PastedTextGoesThroughTheSameFilter) {
    Show();
    Type("1");
    QApplication::clipboard()->setText("45a.1 25001234");
    QTest::keyClick(&Editor(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Editor().text(), "145.12500");
    EXPECT_EQ(Cell(1, 1), "145.12500");
}

TEST_F(TestChannelFormTest, NoContextMenuOpensOnTheEditor) {
    Show();
    Type("1");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), Editor().mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&Editor(), &event);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(Editor().findChildren<QMenu*>().isEmpty());
    QTest::mouseClick(&Editor(), Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(Editor().isVisible());
}

TEST_F(TestChannelFormTest, LeavingTheEditorHidesItAndStoresWhatWasTyped) {
    Show();
    Type("145");
    ClickCell(6, 1);
    EXPECT_EQ(Row(1), (Pair{"145.00000", "145.00000"}));
    EXPECT_EQ(PairBytes(1), "0000501400005014");
    ExpectEditorOver(6, 1);
    Key(Qt::Key_Tab);
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(TestChannelFormTest, LeavingAnEmptiedCellEmptiesThePairAndBringsTheDefaultPairs) {
    PutPair(1, "0025511400005015");
    Show();
    Key(Qt::Key_Return);
    Key(Qt::Key_Delete);
    Key(Qt::Key_Tab);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Row(1), (Pair{"155.05000", "155.10000"}));
    EXPECT_EQ(PairBytes(1), "0050501500005115");
    Grid().setFocus();
    Enter(2, 1, "145"); // the next edit is written into its cell again
    EXPECT_EQ(Row(2), (Pair{"145.00000", "136.10000"}));
}

TEST_F(TestChannelFormTest, LeavingACellAsItWasChangesNoByte) {
    PutPair(2, "0725511400000099"); // off the raster, and out of range
    for (const int row : {1, 2}) {
        for (const int column : {1, 2}) {
            Show();
            const DataImage before = document.Image;
            ClickCell(row, column);
            EXPECT_TRUE(Editor().isVisible());
            Key(Qt::Key_Tab);
            EXPECT_FALSE(Editor().isVisible());
            EXPECT_EQ(document.Image, before) << row << " " << column;
        }
    }
}

TEST_F(TestChannelFormTest, LeavingAnEntryOutOfRangeReportsItOnce) {
    Show();
    ExpectOutOfRange();
    Type("9");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Row(1), (Pair{"100.00000", "100.00000"}));
    EXPECT_EQ(services.messages.Shown().size(), 1U);
}

TEST_F(TestChannelFormTest, AMessageBoxThatTakesTheFocusEndsNoEditTwice) {
    const Message outOfRange{"Warning", "Frequency is out of range.", MessageIcon::Exclamation, MessageButtons::Ok,
                             MessageAnswer::Ok};
    for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Tab}) {
        Show();
        services.messages.Expect(outOfRange, [this] {
            Editor().clearFocus();
            return MessageAnswer::Ok;
        });
        Type("9");
        Key(end);
        EXPECT_EQ(Row(1), (Pair{"100.00000", "100.00000"}));
        EXPECT_FALSE(Editor().isVisible());
        PutPair(1, NoBytes);
    }
    EXPECT_EQ(services.messages.Shown().size(), 2U);
}

} // namespace
} // namespace zelvor
