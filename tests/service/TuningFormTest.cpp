#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

TEST_F(TuningFormTest, SixPagesHaveTheirNamesAndFrequencies) {
    OpenHighPower();
    const std::vector<std::array<const char*, 3>> pages{
        {"Test", "155.05000MHz", "155.10000MHz"},  {"Low", "136.05000MHz", "136.10000MHz"},
        {"Low'", "145.55000MHz", "145.60000MHz"},  {"Center", "155.05000MHz", "155.10000MHz"},
        {"High'", "164.55000MHz", "164.60000MHz"}, {"High", "173.95000MHz", "173.90000MHz"},
    };
    ASSERT_EQ(Pages().count(), 6);
    for (int page = 0; page < 6; ++page) {
        const auto& [name, receive, transmit] = pages[static_cast<std::size_t>(page)];
        EXPECT_EQ(FromQString(Pages().tabText(page)), name);
        EXPECT_EQ(TextOf(*form, Of("lblRx", page)), "RX");
        EXPECT_EQ(TextOf(*form, Of("lblTx", page)), "TX");
        EXPECT_EQ(TextOf(*form, Of("LabRxFreq", page)), receive);
        EXPECT_EQ(TextOf(*form, Of("LabTxFreq", page)), transmit);
    }
    EXPECT_EQ(TextOf(*form, "CmdOK"), "&OK");
    EXPECT_EQ(TextOf(*form, "CmdCancel"), "&Cancel");
    EXPECT_EQ(TextOf(*form, "CmdPTT"), "PTT");
    EXPECT_EQ(LampOf(*form, "PicPtt"), "101");
    ExpectSpokenNames(*form);
    EXPECT_EQ(Slider(1).accessibleName(), "RF High Power Low");
}

TEST_F(TuningFormTest, FourPagesHaveTheirNamesAndFrequencies) {
    SetModel(0x73, 0xF8); // 400 to 470 MHz
    OpenSensitivity();
    const std::vector<std::array<const char*, 3>> pages{
        {"Test", "155.05000MHz", "155.10000MHz"},
        {"Low", "400.05000MHz", "400.10000MHz"},
        {"Center", "435.05000MHz", "435.10000MHz"},
        {"High", "469.95000MHz", "469.90000MHz"},
    };
    ASSERT_EQ(Pages().count(), 4);
    for (int page = 0; page < 4; ++page) {
        const auto& [name, receive, transmit] = pages[static_cast<std::size_t>(page)];
        EXPECT_EQ(FromQString(Pages().tabText(page)), name);
        EXPECT_EQ(TextOf(*form, Of("LabRxFreq", page)), receive);
        EXPECT_EQ(TextOf(*form, Of("LabTxFreq", page)), transmit);
    }
    ExpectSpokenNames(*form);
}

TEST_F(TuningFormTest, OnePageShowsTheTestChannel) {
    rig.service.TestChannelNo = 7;
    rig.service.TestFrequencyText[6] = {"145.12500", "146.00000"};
    OpenOneValue();
    ASSERT_EQ(Pages().count(), 1);
    EXPECT_EQ(Pages().tabText(0), "Test");
    EXPECT_EQ(TextOf(*form, "LabRxFreq(0)"), "145.12500MHz");
    EXPECT_EQ(TextOf(*form, "LabTxFreq(0)"), "146.00000MHz");
    ExpectInStep(0, 60);
    ExpectSpokenNames(*form);
}

TEST_F(TuningFormTest, TheMeasuringDialogHasNoPages) {
    OpenMeasured();
    EXPECT_EQ(form->findChild<QTabWidget*>(), nullptr);
    EXPECT_EQ(form->findChild<QSlider*>(), nullptr);
    EXPECT_EQ(TextOf(*form, "CmdStart"), "Start");
    EXPECT_EQ(TextOf(*form, "CmdOK"), "&OK");
    EXPECT_EQ(TextOf(*form, "CmdCancel"), "&Cancel");
    EXPECT_EQ(LampOf(*form, "PicStart"), "-");
    ExpectSpokenNames(*form);
}

TEST_F(TuningFormTest, TheDialogsSpeakChinese) {
    PutHighPower();
    Open(1, false, Language::Chinese);
    QStringList names;
    for (int page = 0; page < Pages().count(); ++page) {
        names.append(Pages().tabText(page));
        EXPECT_EQ(TextOf(*form, Of("lblRx", page)), "接收");
        EXPECT_EQ(TextOf(*form, Of("lblTx", page)), "发射");
    }
    EXPECT_EQ(names, (QStringList{"测试", "低", "较低", "中心", "较高", "高"}));
    EXPECT_EQ(TextOf(*form, "CmdOK"), "确定(&O)");
    EXPECT_EQ(TextOf(*form, "CmdCancel"), "取消(&C)");
    EXPECT_EQ(TextOf(*form, "CmdPTT"), "PTT");
    delete form;
    Open(8, false, Language::Chinese);
    names.clear();
    for (int page = 0; page < Pages().count(); ++page) {
        names.append(Pages().tabText(page));
    }
    EXPECT_EQ(names, (QStringList{"测试", "低", "中心", "高"}));
    delete form;
    Open(15, false, Language::Chinese);
    EXPECT_EQ(TextOf(*form, "CmdStart"), "开始");
}

TEST_F(TuningFormTest, ADocumentOfNoKnownModelShowsNoPointFrequencies) {
    SetModel(0xFF, 0xFF);
    OpenHighPower();
    EXPECT_EQ(TextOf(*form, "LabRxFreq(0)"), "155.05000MHz");
    EXPECT_EQ(TextOf(*form, "LabRxFreq(1)"), "");
    EXPECT_EQ(TextOf(*form, "LabTxFreq(5)"), "");
}

struct FirstValues {
    int item;
    bool narrow;
    std::int16_t TuneValues::*test; // of page 0; null where that has an image byte too
    std::vector<int> imageIndexes;
};

const std::vector<FirstValues> AllFirstValues{
    {1, false, &TuneValues::TestPointHighPower, {86, 70, 54, 38, 22}},
    {1, true, &TuneValues::TestPointHighPower, {86, 70, 54, 38, 22}},
    {2, false, &TuneValues::TestPointLowPower, {166, 150, 134, 118, 102}},
    {2, true, &TuneValues::TestPointLowPower, {166, 150, 134, 118, 102}},
    {3, false, &TuneValues::TestPointDqtBalance, {230, 214, 198}},
    {3, true, nullptr, {182}},
    {4, false, &TuneValues::TestPointMaxDeviation, {294, 278, 262}},
    {4, true, nullptr, {246}},
    {5, false, &TuneValues::TestPointQtFine, {358, 342, 326}},
    {5, true, nullptr, {310}},
    {6, false, &TuneValues::TestPointDqtFine, {422, 406, 390}},
    {6, true, nullptr, {374}},
    {7, false, nullptr, {454}},
    {7, true, nullptr, {438}},
    {8, false, &TuneValues::TestPointSensitivity, {502, 486, 470}},
    {8, true, &TuneValues::TestPointSensitivity, {502, 486, 470}},
    {9, false, &TuneValues::TestPointSquelchTight, {566, 550, 534}},
    {9, true, nullptr, {518}},
    {10, false, &TuneValues::TestPointSquelchOpen, {630, 614, 598}},
    {10, true, nullptr, {582}},
    {11, false, nullptr, {678}},
    {11, true, nullptr, {646}},
};

TEST_F(TuningFormTest, TheFirstValuesAreTheRadios) {
    for (int column = 0; column < 64; ++column) {
        Put(16 * column + 6, static_cast<std::uint8_t>(50 + column)); // every byte of the row differs
    }
    for (const FirstValues& row : AllFirstValues) {
        SCOPED_TRACE(std::to_string(row.item) + (row.narrow ? " narrow" : " wide"));
        rig.service.Values = {};
        if (row.test != nullptr) {
            rig.service.Values.*row.test = 222;
        }
        Open(row.item, row.narrow);
        int page = 0;
        if (row.test != nullptr) {
            ExpectInStep(page++, 222);
            EXPECT_EQ(rig.service.Values.TestPointCurrent, 222);
        }
        for (const int index : row.imageIndexes) {
            ExpectInStep(page++, 50 + (index - 6) / 16);
        }
        EXPECT_EQ(page, Pages().count());
        delete form;
    }
}

TEST_F(TuningFormTest, TheMeasuringDialogsStartFromTheirImageBytes) {
    for (const auto& [item, index] : {std::pair{12, 710}, {13, 742}, {14, 758}, {15, 806}}) {
        rig.document.Image.Fill(0);
        Put(index, 123);
        Open(item);
        EXPECT_EQ(TextOf(*form, "txtTuneValue"), "123") << item;
        EXPECT_EQ(In<QProgressBar>(*form, "PrgValue").value(), 123) << item;
        delete form;
    }
}

TEST_F(TuningFormTest, TheValueLooksLikeADisplayAndSaysHowItIsChanged) {
    OpenHighPower();
    for (int page = 0; page < 6; ++page) {
        const QPalette palette = Box(page).palette();
        EXPECT_EQ(palette.color(QPalette::Base), palette.color(QPalette::Window));
        EXPECT_EQ(Box(page).cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(Box(page).toolTip(),
                  "Change the value with the slider, the arrows, or Up and Down here. It cannot be typed.");
    }
    delete form;
    PutHighPower();
    Open(1, false, Language::Chinese);
    EXPECT_EQ(Box().toolTip(), "用滑块、箭头按钮，或在此按上、下方向键更改数值。不能键入。");
    delete form;
    OpenMeasured();
    EXPECT_EQ(In<QLineEdit>(*form, "txtTuneValue").toolTip(),
              "The value that the radio has measured last. It cannot be typed.");
}

TEST_F(TuningFormTest, NothingOfTheArrowsFrameShowsBesideTheValue) {
    OpenHighPower();
    const QString name = Of("updValue", 0);
    const auto& spin = In<QWidget>(*form, name);
    EXPECT_LT(spin.mapTo(form, QPoint()).x(), Box().mapTo(form, QPoint(Box().width(), 0)).x());
    EXPECT_EQ(spin.height(), Box().height());
    // The pixel in the middle of the covered edge is the box's.
    const QPoint edge(spin.mapTo(form, QPoint()).x() + 1, Box().mapTo(form, QPoint()).y() + Box().height() / 2);
    const QImage picture = form->grab().toImage();
    const qreal scale = picture.devicePixelRatio();
    EXPECT_EQ(picture.pixelColor((QPointF(edge) * scale).toPoint()), Box().palette().color(QPalette::Base));
}

TEST_F(TuningFormTest, EveryControlRangesOverAByte) {
    OpenHighPower();
    for (int page = 0; page < 6; ++page) {
        EXPECT_EQ(Slider(page).minimum(), 0);
        EXPECT_EQ(Slider(page).maximum(), 255);
        EXPECT_EQ(In<QProgressBar>(*form, Of("PrgValue", page)).minimum(), 0);
        EXPECT_EQ(In<QProgressBar>(*form, Of("PrgValue", page)).maximum(), 255);
    }
}

TEST_F(TuningFormTest, OnlyTheSliderOfThePageInFrontIsEnabled) {
    OpenHighPower();
    for (const int front : {0, 3, 5, 1}) {
        ClickPage(front);
        for (int page = 0; page < 6; ++page) {
            EXPECT_EQ(Slider(page).isEnabledTo(Slider(page).parentWidget()), page == front);
        }
    }
}

TEST_F(TuningFormTest, APageThatComesToTheFrontIsSelectedAndReadAndConfirmed) {
    OpenHighPower();
    for (const auto& [page, select] :
         {std::pair{1, "30 0D"}, {2, "33 0D"}, {3, "31 0D"}, {4, "34 0D"}, {5, "32 0D"}, {0, "12 0D"}}) {
        ClickPage(page);
        Settle();
        EXPECT_EQ(rig.TakeSent(), (Commands{select, "07", "06"}));
    }
}

TEST_F(TuningFormTest, APageIsReachedByTheKeyboardToo) {
    OpenSensitivity();
    Press(*Pages().tabBar(), Qt::Key_Right);
    EXPECT_EQ(Pages().currentIndex(), 1);
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"35 0D", "07", "06"}));
}

TEST_F(TuningFormTest, NothingIsWrittenToTheDocumentOrToTheKeptValues) {
    OpenHighPower();
    const DataImage image = rig.document.Image;
    const TuneValues kept = rig.service.Values;
    Press(Slider(), Qt::Key_Right, 9);
    Settle();
    Click(*form, "CmdOK");
    LetLeave();
    EXPECT_EQ(rig.document.Image, image);
    EXPECT_EQ(rig.service.Values, kept);
}

} // namespace
} // namespace zelvor
