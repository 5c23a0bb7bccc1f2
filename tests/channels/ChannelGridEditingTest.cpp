#include "ChannelFormFixture.h"

namespace zelvor {
namespace {

using Cells = std::vector<std::string>;

TEST_F(ChannelFormTest, TypingAShortFrequencyIntoABlankRowGivesAllDefaults) {
    Show();
    Type("145");
    EXPECT_TRUE(TextBox().isVisible());
    EXPECT_EQ(Cell(1, 1), "145"); // the raw input shows while typing
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(1), (Cells{"145.00000", "", "None", "None", "High", "Wide", "Yes", "None", "Off"}));
    EXPECT_FALSE(TextBox().isVisible());
    ExpectCursor(1, 2);
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").text(), "240");
    // 145.00000, no transmit frequency, no tones; bits 3 to 7 of byte 12 keep the erased record's.
    EXPECT_EQ(Record(1), (std::vector<int>{0x00, 0x00, 0x50, 0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xF8,
                                           0xBF, 0xB0, 0xF8}));
    EXPECT_EQ(document.Image.At(0x17E), 0x01);
}

TEST_F(ChannelFormTest, DefaultsInChineseAreChineseWords) {
    Show(Language::Chinese);
    Type("145");
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(1), (Cells{"145.00000", "", "无", "无", "高", "宽带", "有", "无", "关"}));
}

TEST_F(ChannelFormTest, FrequenciesGoToTheNearerRasterAndATieToSixAndAQuarterKilohertz) {
    struct Entry {
        const char* typed;
        std::string stored;
    };
    const Entry entries[] = {
        {"145.0031", "145.00500"},  {"145.01375", "145.01250"}, {"145.0062", "145.00625"}, {"145.1", "145.10000"},
        {"145.00625", "145.00625"}, {"550", "550.00000"},       {"100", "100.00000"},      {"136.0049", "136.00500"},
        {".", "100.00000"},         {"145.1.2", "145.10000"},
    };
    for (const Entry& entry : entries) {
        SetUp();
        Show();
        if (entry.typed == std::string(".")) {
            services.messages.Expect(OutOfRange(), MessageAnswer::Ok);
        }
        Type(entry.typed);
        Key(Qt::Key_Return);
        EXPECT_EQ(Cell(1, 1), entry.stored) << entry.typed;
        form.reset();
    }
}

TEST_F(ChannelFormTest, OutOfRangeEntriesAreReportedAndMovedToTheLimits) {
    Show();
    services.messages.Expect(OutOfRange(), MessageAnswer::Ok);
    Type("99.9");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), "100.00000");
    GoTo(2, 1);
    services.messages.Expect(OutOfRange(), MessageAnswer::Ok);
    Type("600");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(2, 1), "550.00000");
    EXPECT_EQ(services.messages.Shown().size(), 2U);
}

TEST_F(ChannelFormTest, OutOfRangeMessageIsChineseInChinese) {
    Show(Language::Chinese);
    services.messages.Expect(
        {"注意", "频率超出范围。", MessageIcon::Exclamation, MessageButtons::Ok, MessageAnswer::Ok}, MessageAnswer::Ok);
    Type("9");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), "100.00000");
}

TEST_F(ChannelFormTest, AnImageWithoutModelDataTakes136To174AndKeepsWhatItReports) {
    document.Image.Set(0x1BE, 0xFF);
    Show();
    services.messages.Expect(OutOfRange(), MessageAnswer::Ok);
    Type("120");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), "120.00000");
    GoTo(2, 1);
    services.messages.Expect(OutOfRange(), MessageAnswer::Ok);
    Type("90");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(2, 1), "100.00000");
}

TEST_F(ChannelFormTest, ANinthCharacterCommitsWithoutLeaving) {
    Show();
    Type("145.1250");
    EXPECT_EQ(document.Image.At(0x13), 0xFF);
    Type("0");
    EXPECT_TRUE(TextBox().isVisible());
    EXPECT_EQ(document.Image.At(0x13), 0x14);
    EXPECT_EQ(document.Image.At(0x12), 0x51);
}

TEST_F(ChannelFormTest, ACompleteFrequencyOnTheRasterLeavesTheOtherColumnsAlone) {
    Show();
    Type("145.12500");
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(1), (Cells{"145.12500", "", "", "", "", "", "", "", ""}));
}

TEST_F(ChannelFormTest, RetypingTheFrequencyOfAProgrammedChannelKeepsItsColumnsAndHiddenFields) {
    auto record = SimplexRecord;
    record[12] = 0x01; // Compander
    record[13] = 0xEF; // Narrow, High, Beat Shift
    record[15] = 0xFB; // Autodial 4
    PutRecord(3, record);
    Show();
    GoTo(3, 1);
    Type("145.13750");
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(3), (Cells{"145.13750", "145.12500", "None", "None", "High", "Narrow", "No", "None", "Off"}));
    EXPECT_EQ(document.Image.At(0x3C) & 0x01, 0x01);
    EXPECT_EQ(document.Image.At(0x3D), 0xEF);
    EXPECT_EQ(document.Image.At(0x3F), 0xFB);
}

TEST_F(ChannelFormTest, DeletingTheReceiveFrequencyBlanksRowAndRecordButNotScanAdd) {
    PutRecord(1, SimplexRecord);
    document.Image.Set(0x17E, 0x01);
    Show();
    Key(Qt::Key_Return);
    Key(Qt::Key_Delete);
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(1), Cells(9, ""));
    EXPECT_EQ(Record(1), std::vector<int>(16, 0xFF));
    EXPECT_EQ(document.Image.At(0x17E), 0x01);
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").text(), "256");
}

TEST_F(ChannelFormTest, DeletingTheTransmitFrequencyMakesTheChannelReceiveOnly) {
    auto record = SimplexRecord;
    record[10] = 0xE8; // QT 100.0
    record[11] = 0x03;
    PutRecord(1, record);
    Show();
    EXPECT_EQ(Cell(1, 4), "100.0");
    GoTo(1, 2);
    Key(Qt::Key_Return);
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 2), "");
    EXPECT_EQ(Cell(1, 4), "None");
    const std::vector<int> bytes = Record(1);
    EXPECT_EQ(std::vector<int>(bytes.begin() + 4, bytes.begin() + 12),
              (std::vector<int>{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST_F(ChannelFormTest, TransmitFrequenciesAreNormalisedToo) {
    PutRecord(1, SimplexRecord);
    Show();
    GoTo(1, 2);
    Type("150.0031");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 2), "150.00500");
    EXPECT_EQ(document.Image.At(0x14), 0x00);
    EXPECT_EQ(document.Image.At(0x15), 0x05);
    EXPECT_EQ(document.Image.At(0x16), 0x00);
    EXPECT_EQ(document.Image.At(0x17), 0x15);
}

TEST_F(ChannelFormTest, OnlyDigitsAndThePointEnterTheTextBoxTypedOrPasted) {
    Show();
    Type("1x4-5 ,.");
    EXPECT_EQ(TextBox().text(), "145.");
    QApplication::clipboard()->setText("12a3 45678901");
    TextBox().selectAll();
    services.messages.Expect(OutOfRange(), MessageAnswer::Ok); // at the ninth character
    QTest::keyClick(&TextBox(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextBox().text(), "123456789");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Cell(1, 1), "");
}

TEST_F(ChannelFormTest, EscapeBringsTheTextBackAndMovesRight) {
    PutRecord(1, SimplexRecord);
    Show();
    Type("14");
    EXPECT_EQ(Cell(1, 1), "14");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Cell(1, 1), "145.12500");
    EXPECT_FALSE(TextBox().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
    ExpectCursor(1, 2);
    EXPECT_EQ(document.Image.At(0x12), 0x51);
    EXPECT_EQ(document.Image.At(0x13), 0x14);
}

TEST_F(ChannelFormTest, TheLetterLEndsAnEditLikeEnter) {
    Show();
    Type("145l");
    EXPECT_FALSE(TextBox().isVisible());
    EXPECT_EQ(Cell(1, 1), "145.00000");
    ExpectCursor(1, 2);
}

TEST_F(ChannelFormTest, TheNumericPadTypesFrequencies) {
    Show();
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_4, Qt::Key_5, Qt::Key_Period, Qt::Key_5}) {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::KeypadModifier);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Cell(1, 1), "145.50000");
}

TEST_F(ChannelFormTest, TheNumericPadsDecimalKeyOpensACellWithAPointOnEveryKeyboard) {
    for (const Qt::Key decimal : {Qt::Key_Period, Qt::Key_Comma}) {
        Show();
        QTest::keyClick(&Grid(), decimal, Qt::KeypadModifier);
        ASSERT_TRUE(TextBox().isVisible());
        EXPECT_EQ(TextBox().text(), ".");
        form.reset();
    }
}

TEST_F(ChannelFormTest, LeavingTheTextBoxForAnotherCellCommitsIt) {
    Show();
    Type("145");
    ClickCell(4, 1);
    EXPECT_EQ(Cell(1, 1), "145.00000");
    ExpectCursor(4, 1);
    EXPECT_TRUE(TextBox().isVisible()); // over the clicked cell
    EXPECT_EQ(TextBox().text(), "");
}

TEST_F(ChannelFormTest, LeavingTheTextBoxForAButtonBringsTheFreeAreaUpToDate) {
    Show();
    Type("145");
    Find<QPushButton>("cmdHelp").setFocus();
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").text(), "240");
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").accessibleName(), "Free Area(Bytes): 240");
    GoTo(1, 1);
    Grid().setFocus();
    Key(Qt::Key_Return);
    Key(Qt::Key_Delete);
    Find<QPushButton>("cmdHelp").setFocus();
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").text(), "256");
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").accessibleName(), "Free Area(Bytes): 256");
}

TEST_F(ChannelFormTest, AClickOnABlankRowOpensItsReceiveCell) {
    Show();
    ClickCell(5, 7);
    ExpectCursor(5, 1);
    EXPECT_TRUE(TextBox().isVisible());
    EXPECT_FALSE(List().isVisible());
}

TEST_F(ChannelFormTest, TypingInColumnTwoOfABlankRowGoesToTheReceiveCell) {
    Show();
    GoTo(2, 2);
    Type("1");
    ExpectCursor(2, 1);
    EXPECT_EQ(TextBox().text(), "1");
    EXPECT_EQ(TextBox().cursorPosition(), 1);
}

TEST_F(ChannelFormTest, EnterOnAProgrammedCellSelectsAllOfItsText) {
    PutRecord(1, SimplexRecord);
    Show();
    Key(Qt::Key_Return);
    EXPECT_EQ(TextBox().text(), "145.12500");
    EXPECT_EQ(TextBox().selectedText(), "145.12500");
}

TEST_F(ChannelFormTest, OpeningAnEditorChangesNoByte) {
    auto record = SimplexRecord;
    record[0] = 0x07; // off the raster, as a foreign file may hold
    record[12] = 0x46;
    PutRecord(1, record);
    Show();
    const DataImage before = document.Image;
    for (int column = 1; column <= 9; ++column) {
        GoTo(1, column);
        Key(Qt::Key_Return);
        EXPECT_TRUE(TextBox().isVisible() || List().isVisible()) << column;
        EXPECT_EQ(document.Image, before) << column;
        form->HideEditors();
        Grid().setFocus();
    }
    EXPECT_EQ(document.Image, before);
}

TEST_F(ChannelFormTest, ChannelSixteenIsWrittenToTheLastRecord) {
    Show();
    GoTo(16, 1);
    Type("145");
    Key(Qt::Key_Return);
    EXPECT_EQ(document.Image.At(0x103), 0x14);
    EXPECT_EQ(document.Image.At(0x102), 0x50);
    EXPECT_EQ(document.Image.At(0x17F), 0x80);
}

} // namespace
} // namespace zelvor
