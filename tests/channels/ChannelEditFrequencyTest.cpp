#include "ChannelEditFixture.h"

namespace zelvor {
namespace {

using Cells = std::vector<std::string>;

TEST_F(ChannelEditTest, AFrequencyTypedIntoABlankChannelGivesTheDefaultsAndScanAdd) {
    ShowBoth(2);
    Enter("txtRxFreq");
    Type("145.0031");
    Key(Qt::Key_Return);
    EXPECT_EQ(Rx().text(), "145.00500");
    EXPECT_EQ(Tx().text(), "");
    EXPECT_EQ(Shown("ComDecode"), "None");
    EXPECT_EQ(Shown("ComEncode"), "None");
    EXPECT_FALSE(Combo("ComEncode").isEnabled());
    EXPECT_EQ(Shown("ComSelSignal"), "None");
    EXPECT_EQ(Shown("ComSPMute"), "Carrier");
    EXPECT_EQ(Shown("ComTxPower"), "High");
    EXPECT_EQ(Shown("ComWideNarrow"), "Wide");
    EXPECT_EQ(Shown("ComBusyLock"), "Off");
    EXPECT_EQ(Shown("ComPTTID"), "Off");
    EXPECT_EQ(Shown("ComAutoDial"), "1");
    EXPECT_TRUE(Check("ChkScanAdd").isChecked());
    EXPECT_FALSE(Check("ChkShift").isChecked());
    EXPECT_FALSE(Check("ChkYaKuo").isChecked());
    EXPECT_EQ(Row(2), (Cells{"145.00500", "", "None", "None", "High", "Wide", "Yes", "None", "Off"}));
    // Bits 5 to 7 of byte 12 are carried over from the blank channel 16.
    EXPECT_EQ(Record(2), (std::vector<int>{0x00, 0x05, 0x50, 0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xE0,
                                           0xBF, 0xB0, 0xF8}));
    EXPECT_EQ(document.Image.At(0x17E), 0x02);
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").text(), "240");
}

TEST_F(ChannelEditTest, TheDefaultsAreChineseWordsInChinese) {
    ShowBoth(1, Language::Chinese);
    Enter("txtRxFreq");
    Type("145");
    Key(Qt::Key_Return);
    EXPECT_EQ(Row(1), (Cells{"145.00000", "", "无", "无", "高", "宽带", "有", "无", "关"}));
    EXPECT_EQ(Shown("ComSPMute"), "载波");
    EXPECT_EQ(Shown("ComBusyLock"), "关");
}

TEST_F(ChannelEditTest, WithAnUnknownPttIdTypeTheDefaultPttIdIsEmpty) {
    document.Image.Set(0x133, 3);
    ShowBoth();
    Enter("txtRxFreq");
    Type("145");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 9), "");
    EXPECT_EQ(Combo("ComPTTID").currentIndex(), -1);
}

TEST_F(ChannelEditTest, TheFocusGoesFromANewReceiveFrequencyToTheTransmitFrequency) {
    ShowBoth();
    Enter("txtRxFreq");
    Key(Qt::Key_Return);
    EXPECT_TRUE(Rx().hasFocus()); // Enter in the empty box goes nowhere
    Type("145l");
    EXPECT_TRUE(Tx().hasFocus());
    Type("145.6");
    EXPECT_TRUE(Combo("ComEncode").isEnabled());
    Key(Qt::Key_Return);
    EXPECT_TRUE(Combo("ComDecode").hasFocus());
    EXPECT_EQ(Row(1), (Cells{"145.00000", "145.60000", "None", "None", "High", "Wide", "Yes", "None", "Off"}));
    EXPECT_EQ(document.Image.At(0x17), 0x14);
    EXPECT_EQ(document.Image.At(0x16), 0x56);
}

TEST_F(ChannelEditTest, FrequenciesTakeDigitsAndThePointUpToNineCharacters) {
    PutAll(SimplexRecord);
    ShowBoth();
    for (const char* name : {"txtRxFreq", "txtTxFreq"}) {
        Enter(name);
        EXPECT_EQ(Text(name).selectedText(), "145.12500") << "focus selects all";
        Type("1a4-5 .1250009");
        EXPECT_EQ(Text(name).text(), "145.12500");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QApplication::clipboard()->setText("x145.37500123");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Text(name).text(), "145.37500");
        Key(Qt::Key_Backspace);
        EXPECT_EQ(Text(name).text(), "145.3750");
    }
}

TEST_F(ChannelEditTest, BothFrequenciesGoToTheNearerRaster) {
    struct Entry {
        const char* typed;
        const char* stored;
    };
    const Entry entries[] = {{"145.0031", "145.00500"}, {"145.01375", "145.01250"}, {"145.0062", "145.00625"},
                             {"145.1", "145.10000"},    {"550", "550.00000"},       {"100", "100.00000"}};
    PutAll(SimplexRecord);
    ShowBoth();
    for (const char* name : {"txtRxFreq", "txtTxFreq"}) {
        for (const Entry& entry : entries) {
            Enter(name);
            Type(entry.typed);
            Key(Qt::Key_Return);
            EXPECT_EQ(Text(name).text(), entry.stored) << name;
            EXPECT_EQ(Cell(1, name[3] == 'R' ? 1 : 2), entry.stored) << name;
        }
    }
}

TEST_F(ChannelEditTest, AFrequencyOutOfRangeIsReportedAndMovedAndTheFocusGoesOn) {
    struct Entry {
        const char* typed;
        const char* stored;
    };
    const Entry entries[] = {{"99", "100.00000"}, {"600", "550.00000"}, {".", "100.00000"}};
    PutAll(SimplexRecord);
    ShowBoth();
    for (const char* name : {"txtRxFreq", "txtTxFreq"}) {
        for (const Entry& entry : entries) {
            services.messages.Expect(OutOfRange(), MessageAnswer::Ok);
            Enter(name);
            Type(entry.typed);
            Key(Qt::Key_Tab);
            EXPECT_EQ(Text(name).text(), entry.stored);
            EXPECT_FALSE(Text(name).hasFocus());
        }
    }
    EXPECT_EQ(services.messages.Shown().size(), 6U);
}

TEST_F(ChannelEditTest, AnImageWithoutModelDataKeepsWhatItReports) {
    PutAll(SimplexRecord);
    document.Image.Set(0x1BE, 0x00);
    ShowBoth(1, Language::Chinese);
    services.messages.Expect(
        {"注意", "频率超出范围。", MessageIcon::Exclamation, MessageButtons::Ok, MessageAnswer::Ok}, MessageAnswer::Ok);
    Enter("txtTxFreq");
    Type("120");
    Key(Qt::Key_Return);
    EXPECT_EQ(Tx().text(), "120.00000");
    EXPECT_EQ(Byte(1, 7), 0x12);
}

TEST_F(ChannelEditTest, RetypingTheReceiveFrequencyKeepsTheOtherFields) {
    PutAll(OtherRecord);
    document.Image.Set(0x17E, 0x00);
    ShowBoth();
    Enter("txtRxFreq");
    Type("146.5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Record(1), (std::vector<int>{0x00, 0x00, 0x65, 0x14, 0x00, 0x00, 0x01, 0x15, 0xE8, 0x03, 0x13, 0xA8, 0x3B,
                                           0xCF, 0xB1, 0xFB}));
    EXPECT_EQ(document.Image.At(0x17E), 0x00);
    EXPECT_EQ(Row(1), (Cells{"146.50000", "150.10000", "100.0", "D023I", "Low", "Narrow", "No", "DTMF", "On"}));
}

TEST_F(ChannelEditTest, DeletingTheReceiveFrequencyBlanksTheDialogAndClosingStoresIt) {
    PutAll(OtherRecord);
    document.Image.Set(0x17E, 0xFF);
    ShowBoth(2);
    Enter("txtRxFreq");
    Key(Qt::Key_Delete);
    EXPECT_FALSE(Tx().isEnabled());
    EXPECT_EQ(Tx().text(), "");
    EXPECT_EQ(Shown("ComDecode"), "");
    EXPECT_FALSE(Check("ChkScanAdd").isChecked());
    EXPECT_EQ(Byte(2, 3), 0x14);
    Close();
    EXPECT_EQ(Row(2), Cells(9, ""));
    const std::vector<int> bytes = Record(2);
    EXPECT_EQ(std::vector<int>(bytes.begin(), bytes.begin() + 8), std::vector<int>(8, 0xFF));
    EXPECT_EQ(document.Image.At(0x17E), 0xFD);
}

TEST_F(ChannelEditTest, DeletingTheTransmitFrequencyMakesTheChannelReceiveOnly) {
    PutAll(OtherRecord);
    ShowBoth();
    Enter("txtTxFreq");
    Key(Qt::Key_Backspace);
    EXPECT_FALSE(Combo("ComEncode").isEnabled());
    EXPECT_EQ(Shown("ComEncode"), "None");
    EXPECT_EQ(Cell(1, 4), "None");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Cell(1, 2), "");
    const std::vector<int> bytes = Record(1);
    EXPECT_EQ(std::vector<int>(bytes.begin() + 4, bytes.begin() + 12),
              (std::vector<int>{0xFF, 0xFF, 0xFF, 0xFF, 0xE8, 0x03, 0xFF, 0xFF}));
    Enter("txtTxFreq");
    Type("1");
    EXPECT_TRUE(Combo("ComEncode").isEnabled());
}

TEST_F(ChannelEditTest, TheReceiveFrequencyNeverSetsTheTransmitFrequency) {
    PutRecord(1, SimplexWith(7, 0xFF));
    ShowBoth();
    Enter("txtRxFreq");
    Type("146");
    Key(Qt::Key_Return);
    EXPECT_EQ(Tx().text(), "");
    EXPECT_EQ(Cell(1, 2), "");
}

TEST_F(ChannelEditTest, PassingABlankReceiveFrequencyStoresNothing) {
    ShowBoth();
    const DataImage before = document.Image;
    Enter("txtRxFreq");
    Key(Qt::Key_Tab);
    Enter("txtChannel");
    Key(Qt::Key_Up);
    EXPECT_EQ(document.Image, before);
}

TEST_F(ChannelEditTest, ABlankVisitDoesNotResetTheProgrammedChannelVisitedNext) {
    PutRecord(2, OtherRecord);
    PutRecord(16, OtherRecord);
    ShowBoth(1);
    Enter("txtRxFreq");
    Key(Qt::Key_Tab);
    GoToChannel(2);
    Enter("txtRxFreq");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown("ComSelSignal"), "DTMF");
    EXPECT_TRUE(Check("ChkShift").isChecked());
    EXPECT_EQ(Byte(2, 12), 0x3B);
}

} // namespace
} // namespace zelvor
