#include "shell/ModelTypeForm.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

const Message Question{"Warning", "Frequency will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                       MessageAnswer::Cancel};
const Message QuestionInChinese{"警告", "频率数据将被清除。", MessageIcon::Exclamation, MessageButtons::OkCancel,
                                MessageAnswer::Cancel};

QStringList Entries(const QComboBox& list) {
    QStringList entries;
    for (int i = 0; i < list.count(); ++i) {
        entries.append(list.itemText(i));
    }
    return entries;
}

class ModelTypeFormTest : public ShellTest {
protected:
    void OpenWith(int family, int market) {
        OpenMainWindow();
        document.Image.Set(0x1BE, static_cast<std::uint8_t>(family));
        document.Image.Set(0x1BD, static_cast<std::uint8_t>(market));
        window->InitAllFrameData();
        document.TakeSnapshot();
    }

    void WithDialog(const std::function<void(QWidget&, QComboBox&, QComboBox&)>& whileUp) {
        ChooseDialog("MnuModelInformation", [&](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName(), "ModelTypeForm");
            whileUp(dialog, *dialog.findChild<QComboBox*>("cboModelType"), *dialog.findChild<QComboBox*>("cboFreq"));
        });
    }

    void Pick(int model, int range, const char* button = "cmdOK") {
        WithDialog([=](QWidget& dialog, QComboBox& cboModelType, QComboBox& cboFreq) {
            cboModelType.setCurrentIndex(model);
            cboFreq.setCurrentIndex(range);
            Click(dialog, button);
        });
    }

    [[nodiscard]] QString Title() const { return window->windowTitle(); }
};

TEST_F(ModelTypeFormTest, ShowsItsTextsInEnglish) {
    OpenWith(0xF8, 1);
    WithDialog([](QWidget& dialog, QComboBox& cboModelType, QComboBox&) {
        EXPECT_EQ(dialog.windowTitle(), "Model Information");
        EXPECT_EQ(dialog.findChild<QLabel*>("lblModelType")->text(), "Model Type");
        EXPECT_EQ(dialog.findChild<QLabel*>("lblFreq")->text(), "Frequency");
        EXPECT_EQ(dialog.findChild<QPushButton*>("cmdOK")->text(), "&OK");
        EXPECT_EQ(dialog.findChild<QPushButton*>("cmdCancel")->text(), "&Cancel");
        EXPECT_EQ(dialog.findChild<QPushButton*>("cmdHelp")->text(), "&Help");
        EXPECT_EQ(Entries(cboModelType),
                  QStringList({"4613 (VHF)", "4617 (VHF)", "4618 (VHF)", "5613 (UHF)", "5617 (UHF)", "5618 (UHF)"}));
        Click(dialog, "cmdCancel");
    });
}

TEST_F(ModelTypeFormTest, ShowsItsTextsInChinese) {
    OpenMainWindowInChinese();
    WithDialog([](QWidget& dialog, QComboBox&, QComboBox&) {
        EXPECT_EQ(dialog.windowTitle(), "机型信息");
        EXPECT_EQ(dialog.findChild<QLabel*>("lblModelType")->text(), "机型类型");
        EXPECT_EQ(dialog.findChild<QLabel*>("lblFreq")->text(), "频率");
        EXPECT_EQ(dialog.findChild<QPushButton*>("cmdOK")->text(), "确定(&O)");
        EXPECT_EQ(dialog.findChild<QPushButton*>("cmdCancel")->text(), "取消(&C)");
        EXPECT_EQ(dialog.findChild<QPushButton*>("cmdHelp")->text(), "帮助(&H)");
        Click(dialog, "cmdCancel");
    });
}

TEST_F(ModelTypeFormTest, EveryModelHasItsRangesAndStartsAtTheFirst) {
    OpenWith(0xF8, 1);
    const std::vector<QStringList> expected{
        {"136-174 MHz(M)", "136-174 MHz(K)"},
        {"136-174 MHz(M)"},
        {"136-174 MHz(M)"},
        {"450-490 MHz(K)", "470-512 MHz(K2)", "450-490 MHz(M)", "470-512 MHz(M2)"},
        {"450-490 MHz(M)", "400-430 MHz(M3)"},
        {"450-490 MHz(M)", "440-480 MHz(C)", "400-430 MHz(C2)", "370-390 MHz(C5)", "350-370 MHz(C6)"},
    };
    WithDialog([&](QWidget& dialog, QComboBox& cboModelType, QComboBox& cboFreq) {
        for (int model = 0; model < 6; ++model) {
            cboModelType.setCurrentIndex(model);
            EXPECT_EQ(Entries(cboFreq), expected[static_cast<std::size_t>(model)]);
            EXPECT_EQ(cboFreq.currentIndex(), 0);
        }
        Click(dialog, "cmdCancel");
    });
}

TEST_F(ModelTypeFormTest, ChoosingTheSelectedModelAgainStartsAtTheFirstRange) {
    OpenWith(0xF9, 113);
    WithDialog([&](QWidget& dialog, QComboBox& cboModelType, QComboBox& cboFreq) {
        ASSERT_EQ(cboFreq.currentIndex(), 3);
        emit cboModelType.activated(3);
        EXPECT_EQ(cboFreq.currentIndex(), 0);
        Click(dialog, "cmdCancel");
    });
}

struct LoadCase {
    int family;
    int market;
    int model;
    int range;
};

TEST_F(ModelTypeFormTest, EveryVariantIsSelectedOnLoading) {
    OpenMainWindow();
    const std::vector<LoadCase> cases{
        {0xF8, 1, 2, 0},   {0xF8, 33, 5, 0},   {0xF8, 51, 5, 1},  {0xF8, 67, 5, 2},  {0xF8, 99, 5, 3},
        {0xF8, 83, 5, 4},  {0xF8, 115, 5, -1}, {0xF9, 1, 0, 0},   {0xF9, 0, 0, 1},   {0xF9, 32, 3, 0},
        {0xF9, 112, 3, 1}, {0xF9, 33, 3, 2},   {0xF9, 113, 3, 3}, {0xFC, 1, 1, 0},   {0xFC, 33, 4, 0},
        {0xFC, 65, 4, 1},  {0xF8, 0, -1, -1},  {0xFC, 2, -1, -1}, {0xFF, 1, -1, -1}, {0x00, 33, -1, -1},
    };
    for (const LoadCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.family << " " << c.market);
        document.Image.Set(0x1BE, static_cast<std::uint8_t>(c.family));
        document.Image.Set(0x1BD, static_cast<std::uint8_t>(c.market));
        const ModelTypeForm dialog(document, windows.LanguageFlag, fakes.Get());
        EXPECT_EQ(dialog.findChild<QComboBox*>("cboModelType")->currentIndex(), c.model);
        EXPECT_EQ(dialog.findChild<QComboBox*>("cboFreq")->currentIndex(), c.range);
    }
}

struct RangeCase {
    int model;
    int range;
    int market;
};

TEST_F(ModelTypeFormTest, EveryRangeStandsForItsMarketAndNeverChangesTheFamily) {
    OpenMainWindow();
    const std::vector<RangeCase> cases{
        {0, 0, 1},  {0, 1, 0},  {1, 0, 1},  {2, 0, 1},  {3, 0, 32}, {3, 1, 112}, {3, 2, 33}, {3, 3, 113},
        {4, 0, 33}, {4, 1, 65}, {5, 0, 33}, {5, 1, 51}, {5, 2, 67}, {5, 3, 99},  {5, 4, 83},
    };
    for (const RangeCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.model << " " << c.range);
        document.Image.Set(0x1BE, 0xFF); // loads without a selection, so that every choice is a change
        document.Image.Set(0x1BD, 0xEE);
        ModelTypeForm dialog(document, windows.LanguageFlag, fakes.Get());
        dialog.findChild<QComboBox*>("cboModelType")->setCurrentIndex(c.model);
        dialog.findChild<QComboBox*>("cboFreq")->setCurrentIndex(c.range);
        fakes.messages.Expect(Question, MessageAnswer::Ok);
        dialog.findChild<QPushButton*>("cmdOK")->click();
        EXPECT_EQ(document.Image.At(0x1BD), c.market);
        EXPECT_EQ(document.Image.At(0x1BE), 0xFF);
    }
}

TEST_F(ModelTypeFormTest, AnotherMarketRebuildsTheDocument) {
    OpenWith(0xF9, 32);
    document.Image.Set(0x100, 0x12);
    document.Rename("/somewhere/Other.dat");
    Choose("MnuViewTreeView");
    fakes.messages.Expect(Question, MessageAnswer::Ok);
    Pick(3, 1);
    EXPECT_EQ(document.Image.At(0x1BD), 112);
    EXPECT_EQ(document.Image.At(0x1BE), 0xF9);
    // The first test frequency is 491.05000 MHz: 491 MHz is the centre of 470 to 512 MHz.
    EXPECT_EQ(document.Image.At(0x280), 0x00);
    EXPECT_EQ(document.Image.At(0x281), 0x50);
    EXPECT_EQ(document.Image.At(0x282), 0x10);
    EXPECT_EQ(document.Image.At(0x283), 0x49);
    EXPECT_FALSE(document.IsDocumentChanged());
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(Title(), "Zelvor [5613: UHF: 470-512 MHz(K2)] [ File Name:Zelvor.dat]");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
}

TEST_F(ModelTypeFormTest, AnotherMarketClearsTheGrid) {
    OpenWith(0xF9, 32);
    Find<QTableWidget>("ChannelGrid")->item(2, 0)->setText("450.00000");
    fakes.messages.Expect(Question, MessageAnswer::Ok);
    Pick(3, 2);
    EXPECT_EQ(Find<QTableWidget>("ChannelGrid")->item(2, 0)->text(), "");
}

TEST_F(ModelTypeFormTest, AModelOfAnotherFamilyChangesTheMarketOnly) {
    OpenWith(0xF9, 112);
    fakes.messages.Expect(Question, MessageAnswer::Ok);
    Pick(2, 0);
    EXPECT_EQ(document.Image.At(0x1BD), 1);
    EXPECT_EQ(document.Image.At(0x1BE), 0xF9);
    EXPECT_EQ(Title(), "Zelvor [4613: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST_F(ModelTypeFormTest, APairOutsideTheCatalogueHasNoVariantTextInTheTitle) {
    OpenWith(0xF8, 1);
    fakes.messages.Expect(Question, MessageAnswer::Ok);
    Pick(0, 1);
    EXPECT_EQ(document.Image.At(0x1BD), 0);
    EXPECT_EQ(Title(), "Zelvor [Zelvor.dat]");
}

TEST_F(ModelTypeFormTest, TheQuestionIsAskedInChinese) {
    OpenMainWindowInChinese();
    fakes.messages.Expect(QuestionInChinese, MessageAnswer::Ok);
    Pick(0, 1);
}

TEST_F(ModelTypeFormTest, OkWithoutAChangeAsksNothing) {
    OpenWith(0xF8, 1);
    document.Image.Set(0x100, 0x12);
    Pick(2, 0);
    EXPECT_EQ(document.Image.At(0x100), 0x12);
    EXPECT_TRUE(document.IsDocumentChanged());
}

TEST_F(ModelTypeFormTest, OkForTheUnlistedMarketWithoutAChangeAsksNothing) {
    OpenWith(0xF8, 115);
    Pick(5, -1);
    EXPECT_EQ(document.Image.At(0x1BD), 115);
}

TEST_F(ModelTypeFormTest, TheQuestionRefusedClosesTheDialogWithoutAChange) {
    OpenWith(0xF8, 1);
    document.Image.Set(0x100, 0x12);
    fakes.messages.Expect(Question, MessageAnswer::Cancel);
    Pick(5, 1);
    EXPECT_EQ(document.Image.At(0x1BD), 1);
    EXPECT_EQ(document.Image.At(0x100), 0x12);
}

TEST_F(ModelTypeFormTest, CancelAndClosingChangeNothing) {
    OpenWith(0xF8, 1);
    Pick(5, 1, "cmdCancel");
    WithDialog([](QWidget& dialog, QComboBox& cboModelType, QComboBox&) {
        cboModelType.setCurrentIndex(4);
        dialog.close();
    });
    WithDialog([](QWidget& dialog, QComboBox& cboModelType, QComboBox&) {
        cboModelType.setCurrentIndex(4);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(document.Image.At(0x1BD), 1);
}

TEST_F(ModelTypeFormTest, EnterGoesFromOneListToTheOtherAndConfirmsNothing) {
    OpenWith(0xF8, 1);
    WithDialog([](QWidget& dialog, QComboBox& cboModelType, QComboBox& cboFreq) {
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
        cboModelType.setFocus();
        QTest::keyClick(&cboModelType, Qt::Key_Return);
        EXPECT_TRUE(cboFreq.hasFocus());
        QTest::keyClick(&cboFreq, Qt::Key_Enter);
        EXPECT_TRUE(cboModelType.hasFocus());
        EXPECT_TRUE(dialog.isVisible());
        Click(dialog, "cmdCancel");
    });
}

TEST_F(ModelTypeFormTest, HelpShowsItsPage) {
    OpenWith(0xF8, 1);
    WithDialog([](QWidget& dialog, QComboBox&, QComboBox&) {
        Click(dialog, "cmdHelp");
        Click(dialog, "cmdCancel");
    });
    ASSERT_EQ(fakes.help.Topics().size(), 1U);
    EXPECT_TRUE(QString::fromStdString(fakes.help.Topics()[0]).endsWith("\\Zelvor_e.chm::/html/modelinfo.htm"));
}

TEST_F(ModelTypeFormTest, TheWindowMenuListsTheGridAgainWhateverIsChosen) {
    OpenWith(0xF8, 1);
    CloseFrame("ChannelForm");
    ASSERT_FALSE(Entry("MnuWindow")->isVisible());
    windows.Cursor.SetCurrentChannel(4);
    Pick(2, 0, "cmdCancel");
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_FALSE(Entry("MnuWindowSub(0)")->isChecked());
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 1 ]");
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 1);
    EXPECT_FALSE(IsChildShown("ChannelForm"));
}

TEST_F(ModelTypeFormTest, AChangeShowsAGridThatWasClosed) {
    OpenWith(0xF8, 1);
    CloseFrame("ChannelForm");
    fakes.messages.Expect(Question, MessageAnswer::Ok);
    Pick(5, 1);
    EXPECT_TRUE(IsChildShown("ChannelForm"));
}

} // namespace
} // namespace zelvor
