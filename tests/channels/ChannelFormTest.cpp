#include "ChannelFormFixture.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <random>

namespace zelvor {
namespace {

TEST_F(ChannelFormTest, TheWindowHasItsSizeTitleAndTexts) {
    form = std::make_unique<ChannelForm>(document, windows, services.Get());
    EXPECT_EQ(form->objectName(), "ChannelForm");
    EXPECT_EQ(form->size(), QSize(800, 433));
    EXPECT_EQ(form->windowTitle(), " Channel Information [ Channel - 1 ]");
    EXPECT_EQ(Find<QPushButton>("cmdChannelEdit").text(), "Channel &Edit");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
    EXPECT_EQ(Find<QLabel>("LabFreeArea").text(), "Free Area(Bytes):");
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").text(), "256");
    EXPECT_EQ(Grid().geometry(), QRect(8, 5, 710, 296));
    EXPECT_EQ(Grid().property("HelpContextID").toInt(), 4101);
}

TEST_F(ChannelFormTest, TheWindowSpeaksChinese) {
    windows.LanguageFlag = Language::Chinese;
    form = std::make_unique<ChannelForm>(document, windows, services.Get());
    EXPECT_EQ(form->windowTitle(), " 信道信息 [信道-1]");
    EXPECT_EQ(Find<QPushButton>("cmdChannelEdit").text(), "信道编辑(&E)");
    EXPECT_EQ(Find<QLabel>("LabFreeArea").text(), "空位(Bytes):");
    const char* headers[] = {"接收频率", "发射频率",  "QT/DQT解码", "QT/DQT编码 ", "发射功率 ",
                             "宽/窄",    "扫描添加 ", "可选信令 ",  "PTT ID"};
    for (int column = 0; column < 9; ++column) {
        EXPECT_EQ(Grid().horizontalHeaderItem(column)->text(), headers[column]);
    }
}

TEST_F(ChannelFormTest, TheGridHasNineColumnsAndSixteenNumberedRows) {
    form = std::make_unique<ChannelForm>(document, windows, services.Get());
    const char* headers[] = {"RX Frequency", "TX Frequency", "QT/DQT Dec", "QT/DQT Enc", "TX Power",
                             "W/N",          "Scan Add",     "Opt Signal", "PTT ID"};
    const int widths[] = {78, 78, 78, 78, 57, 50, 57, 71, 85};
    for (int column = 0; column < 9; ++column) {
        EXPECT_EQ(Grid().horizontalHeaderItem(column)->text(), headers[column]);
        EXPECT_EQ(Grid().columnWidth(column), widths[column]) << column;
    }
    EXPECT_EQ(Grid().verticalHeader()->width(), 71);
    ASSERT_EQ(Grid().rowCount(), 16);
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(Grid().verticalHeaderItem(k - 1)->text(), QString::number(k));
    }
}

TEST_F(ChannelFormTest, DecodingFillsProgrammedRowsAndShowsTheFreeArea) {
    for (int k = 1; k <= 16; ++k) {
        PutRecord(k, SimplexRecord);
    }
    Show();
    EXPECT_EQ(Find<QLabel>("LabBlankChannel").text(), "0");
    EXPECT_EQ(Row(16), (std::vector<std::string>{"145.12500", "145.12500", "None", "None", "High", "Wide", "No", "None",
                                                 "Off"}));
}

TEST_F(ChannelFormTest, ARecordWithoutAFrequencyIsABlankRow) {
    for (const int top : {0x00, 0xFF}) {
        auto record = SimplexRecord;
        record[3] = static_cast<std::uint8_t>(top);
        PutRecord(1, record);
        Show();
        EXPECT_EQ(Row(1), std::vector<std::string>(9, ""));
        form.reset();
    }
}

TEST_F(ChannelFormTest, TheCursorNamesItsChannelInTheTitle) {
    Show();
    const QSignalSpy captions(form.get(), &ChildForm::CaptionChanged);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Right);
    EXPECT_EQ(form->windowTitle(), " Channel Information [ Channel - 3 ]");
    EXPECT_EQ(captions.last().first().toString(), " Channel Information [ Channel - 3 ]");
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 3);
    EXPECT_EQ(windows.Cursor.EditChannel(), 3);
    EXPECT_EQ(windows.Cursor.CurrentCol(), 2);
    EXPECT_EQ(Grid().property("HelpContextID").toInt(), 4102);
}

TEST_F(ChannelFormTest, TheTitleIsChineseInChinese) {
    Show(Language::Chinese);
    Key(Qt::Key_Down);
    EXPECT_EQ(form->windowTitle(), " 信道信息 [ 信道 - 2 ]");
}

TEST_F(ChannelFormTest, ClosingTheFrameHidesUntilTheProgramsExitWasConfirmed) {
    Show();
    const QSignalSpy hidden(form.get(), &ChildForm::HideRequested);
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    const QSignalSpy dialogHidden(form.get(), &ChannelForm::ChannelEditHideRequested);
    form->CloseFromFrame();
    EXPECT_EQ(hidden.count(), 1);
    EXPECT_EQ(dialogHidden.count(), 1);
    EXPECT_EQ(unloaded.count(), 0);
    windows.ExitConfirmed = true;
    form->CloseFromFrame();
    EXPECT_EQ(hidden.count(), 1);
    EXPECT_EQ(unloaded.count(), 1);
}

TEST_F(ChannelFormTest, TheCloseButtonCommitsHidesAndClosesTheDialog) {
    Show();
    const QSignalSpy hidden(form.get(), &ChildForm::HideRequested);
    const QSignalSpy dialogUnloaded(form.get(), &ChannelForm::ChannelEditUnloadRequested);
    Type("145");
    QTest::mouseClick(&Find<QPushButton>("cmdClose"), Qt::LeftButton);
    EXPECT_EQ(hidden.count(), 1);
    EXPECT_EQ(dialogUnloaded.count(), 1);
    EXPECT_EQ(document.Image.At(0x13), 0x14);
}

TEST_F(ChannelFormTest, TheHelpButtonOpensTheGridsPage) {
    Show();
    QTest::mouseClick(&Find<QPushButton>("cmdHelp"), Qt::LeftButton);
    ASSERT_EQ(services.help.Topics().size(), 1U);
    EXPECT_TRUE(services.help.Topics().front().ends_with("\\Zelvor_e.chm::/html/chinfo.htm"));
}

TEST_F(ChannelFormTest, ASmallWindowScrollsItsContent) {
    Show();
    auto& horizontal = Find<QWidget>("HScroll1");
    auto& vertical = Find<QWidget>("VScroll1");
    EXPECT_FALSE(horizontal.isVisible());
    EXPECT_FALSE(vertical.isVisible());
    form->resize(500, 300);
    EXPECT_TRUE(horizontal.isVisible());
    EXPECT_TRUE(vertical.isVisible());
    EXPECT_EQ(vertical.width(), 16);
    EXPECT_EQ(horizontal.height(), 16);
    EXPECT_TRUE(Find<QWidget>("Picture2").isVisible());
    form->resize(900, 300);
    EXPECT_FALSE(horizontal.isVisible());
    EXPECT_TRUE(vertical.isVisible());
    EXPECT_FALSE(Find<QWidget>("Picture2").isVisible());
}

TEST_F(ChannelFormTest, RandomImagesOpenAndAreWalkedWithoutChangingAByte) {
    const unsigned seed = 20261120;
    std::mt19937 random(seed);
    for (int round = 0; round < 200; ++round) {
        for (int a = 0; a < 1024; ++a) {
            document.Image.Set(a, static_cast<std::uint8_t>(round == 0 ? 0x00U : round == 1 ? 0xFFU : random()));
        }
        const DataImage before = document.Image;
        form = std::make_unique<ChannelForm>(document, windows, services.Get());
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        for (int k = 1; k <= 16; ++k) {
            form->SelectCell(k, 1 + round % 9);
        }
        ASSERT_EQ(document.Image, before) << "seed " << seed << ", round " << round;
        form.reset();
    }
}

} // namespace
} // namespace zelvor
