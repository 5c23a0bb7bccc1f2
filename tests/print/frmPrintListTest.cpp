#include "print/frmPrintList.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>

#include "data/Document.h"
#include "link/LinkFormRig.h"
#include "print/ReportImage.h"
#include "support/PrintedPages.h"

namespace zelvor {
namespace {

class frmPrintListTest : public ::testing::Test {
protected:
    frmPrintList& Load(Language language = Language::English) {
        document.Image = testing::ReportImage();
        testing::UseEvenPage(fakes.pages);
        form = std::make_unique<frmPrintList>(document, language, fakes.Get());
        ShowActive(*form);
        return *form;
    }
    [[nodiscard]] QCheckBox& Item(int index) const {
        return Find<QCheckBox>(*form, ("chkPrintItem(" + std::to_string(index) + ")").c_str());
    }
    void Tick(int index) const {
        Item(index).setFocus();
        QTest::keyClick(&Item(index), Qt::Key_Space);
    }
    [[nodiscard]] bool CanPrint() const { return Find<QPushButton>(*form, "cmdOK").isEnabled(); }
    [[nodiscard]] std::string Output() const { return FromQString(Find<QLabel>(*form, "lblOutput").text()); }
    void ChoosePdf(const PageTarget& file) {
        fakes.pages.ExpectSetup(file);
        Click(*form, "cmdPrintSetup");
    }
    /// The question before a file is replaced, in English.
    void ExpectReplaceQuestion(const std::string& file, MessageAnswer answer) {
        fakes.messages.Expect({.title = "Warning",
                               .text = "The file already exists:\n" + file + "\nReplace it?",
                               .icon = MessageIcon::Exclamation,
                               .buttons = MessageButtons::YesNo,
                               .defaultButton = MessageAnswer::No},
                              answer);
    }
    [[nodiscard]] std::string TitleOf(std::size_t page) const {
        return testing::TextAt(fakes.pages.Pages()[page], 10, 0);
    }

    Document document;
    FakeServices fakes;
    std::unique_ptr<frmPrintList> form;
};

TEST_F(frmPrintListTest, HasItsTextsInEnglish) {
    Load();
    EXPECT_EQ(form->objectName(), "frmPrintList");
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(FromQString(form->windowTitle()), "Print Out List");
    const char* captions[]{" Optional Features", " Key Assignment", " Scan Information", " DTMF",
                           " Corvane",           " Test Frequency", " Embedded Message", " Channel Information"};
    for (int index = 0; index < 8; ++index) {
        EXPECT_EQ(FromQString(Item(index).text()), captions[index]);
    }
    EXPECT_EQ(CaptionOf(*form, "cmdSelectAll"), "Select &All");
    EXPECT_EQ(CaptionOf(*form, "cmdClearAll"), "C&lear All");
    EXPECT_EQ(CaptionOf(*form, "cmdPrintSetup"), "P&rint setup");
    EXPECT_EQ(CaptionOf(*form, "cmdOK"), "&OK");
    EXPECT_EQ(CaptionOf(*form, "cmdCancel"), "&Cancel");
    EXPECT_EQ(CaptionOf(*form, "cmdHelp"), "&Help");
}

TEST_F(frmPrintListTest, HasItsTextsInChinese) {
    Load(Language::Chinese);
    EXPECT_EQ(FromQString(form->windowTitle()), "打印列表");
    const char* captions[]{" 可选功能",        " 键设定",   " 扫描信息", " DTMF(双音多频)",
                           " Corvane(科瓦讯)", " 测试频率", " 嵌入信息", " 信道信息"};
    for (int index = 0; index < 8; ++index) {
        EXPECT_EQ(FromQString(Item(index).text()), captions[index]);
    }
    EXPECT_EQ(CaptionOf(*form, "cmdSelectAll"), "全部选定(&A)");
    EXPECT_EQ(CaptionOf(*form, "cmdClearAll"), "全部清除(&L)");
    EXPECT_EQ(CaptionOf(*form, "cmdPrintSetup"), "打印设置(&R)");
    EXPECT_EQ(CaptionOf(*form, "cmdOK"), "确定(&O)");
    EXPECT_EQ(CaptionOf(*form, "cmdCancel"), "取消(&C)");
    EXPECT_EQ(CaptionOf(*form, "cmdHelp"), "帮助(&H)");
}

TEST_F(frmPrintListTest, OpensWithNothingTickedAndNothingToPrint) {
    Load();
    for (int index = 0; index < 8; ++index) {
        EXPECT_FALSE(Item(index).isChecked()) << index;
    }
    EXPECT_FALSE(CanPrint());
}

TEST_F(frmPrintListTest, CanPrintExactlyWhileAnItemIsTicked) {
    Load();
    for (int index = 0; index < 8; ++index) {
        Tick(index);
        EXPECT_TRUE(CanPrint()) << index;
        Tick(index);
        EXPECT_FALSE(CanPrint()) << index;
    }
    Tick(2);
    Tick(6);
    Tick(2);
    EXPECT_TRUE(CanPrint());
}

TEST_F(frmPrintListTest, TicksAndClearsAllItems) {
    Load();
    Tick(3);
    Click(*form, "cmdSelectAll");
    for (int index = 0; index < 8; ++index) {
        EXPECT_TRUE(Item(index).isChecked()) << index;
    }
    EXPECT_TRUE(CanPrint());
    Click(*form, "cmdClearAll");
    for (int index = 0; index < 8; ++index) {
        EXPECT_FALSE(Item(index).isChecked()) << index;
    }
    EXPECT_FALSE(CanPrint());
}

TEST_F(frmPrintListTest, IsUsableByItsAccessKeys) {
    Load();
    // A button is pressed for a moment before its key takes effect.
    QTest::keyClick(form.get(), Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return CanPrint(); }));
    QTest::keyClick(form.get(), Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !CanPrint(); }));
}

TEST_F(frmPrintListTest, PrintsWhatIsTickedAndCloses) {
    Load();
    document.Rename("/home/user/Radio.dat");
    fakes.clock.SetNow({2024, 5, 31, 14, 7, 9});
    Tick(7);
    Tick(1);
    Click(*form, "cmdOK");
    EXPECT_FALSE(form->isVisible());
    ASSERT_EQ(fakes.pages.Pages().size(), 3U);
    EXPECT_EQ(TitleOf(0), " Key Assignment");
    EXPECT_EQ(TitleOf(1), " Channel Information");
    EXPECT_EQ(TitleOf(2), " Channel Information");
    EXPECT_EQ(testing::TextAt(fakes.pages.Pages()[0], 6, 30), "/home/user/Radio.dat");
    EXPECT_EQ(fakes.pages.Pages()[0].texts[1].text, "2024-05-31  14:07:09");
    EXPECT_EQ(fakes.pages.Documents().size(), 1U);
}

TEST_F(frmPrintListTest, PrintsInTheLanguageOfTheProgram) {
    Load(Language::Chinese);
    Tick(0);
    Click(*form, "cmdOK");
    ASSERT_EQ(fakes.pages.Pages().size(), 1U);
    EXPECT_EQ(TitleOf(0), " 可选功能");
}

TEST_F(frmPrintListTest, LeavesTheDocumentAsItIs) {
    Load();
    Click(*form, "cmdSelectAll");
    Click(*form, "cmdOK");
    EXPECT_EQ(fakes.pages.Documents().size(), 1U);
    EXPECT_EQ(document.Image, testing::ReportImage());
}

TEST_F(frmPrintListTest, ClosesWithoutPrintingOnCancel) {
    Load();
    Tick(0);
    Click(*form, "cmdCancel");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(fakes.pages.Pages().empty());
}

TEST_F(frmPrintListTest, ShowsThePrintersSetupAndTakesNoHeedOfItsAnswer) {
    Load();
    Tick(0);
    for (const bool answer : {true, false}) {
        fakes.pages.ExpectSetup(answer);
        Click(*form, "cmdPrintSetup");
        EXPECT_TRUE(form->isVisible());
        EXPECT_TRUE(CanPrint());
    }
    EXPECT_TRUE(fakes.pages.Pages().empty());
}

TEST_F(frmPrintListTest, TellsOfAMissingPrinterInChineseInBothLanguages) {
    for (const Language language : {Language::English, Language::Chinese}) {
        Load(language);
        fakes.pages.SetAvailable(false);
        Tick(0);
        fakes.messages.Expect({.title = "打印列表",
                               .text = "打印之前必须已经安装打印机。\n要安装打印机，请单击\"开始\"，指向\"设置\","
                                       "选定\"打印机\"，然后再双击\"添加打印机\"。",
                               .icon = MessageIcon::Exclamation,
                               .buttons = MessageButtons::Ok},
                              MessageAnswer::Ok);
        Click(*form, "cmdOK");
        EXPECT_EQ(fakes.messages.Pending(), 0);
        EXPECT_FALSE(form->isVisible());
        EXPECT_TRUE(fakes.pages.Pages().empty());
    }
}

TEST_F(frmPrintListTest, TakesAPrinterThatFailsInTheMiddleWithoutAWord) {
    Load();
    fakes.pages.FailAtPage(5);
    Click(*form, "cmdSelectAll");
    Click(*form, "cmdOK");
    EXPECT_EQ(fakes.pages.Failures(), 1);
    EXPECT_TRUE(fakes.messages.Shown().empty());
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(document.Image, testing::ReportImage());
}

TEST_F(frmPrintListTest, ShowsItsHelp) {
    Load();
    Click(*form, "cmdHelp");
    QTest::keyClick(form.get(), Qt::Key_F1);
    EXPECT_EQ(fakes.help.Topics(), (std::vector<std::string>{ProgramFolder() + "\\Zelvor_e.chm::/html/print.htm",
                                                             ProgramFolder() + "\\Zelvor_e.chm::/html/print.htm"}));
}

TEST_F(frmPrintListTest, ShowsItsHelpInChinese) {
    Load(Language::Chinese);
    Click(*form, "cmdHelp");
    EXPECT_EQ(fakes.help.Topics(), (std::vector<std::string>{ProgramFolder() + "\\Zelvor_c.chm::/html/print.htm"}));
}

TEST_F(frmPrintListTest, SaysWhereTheReportGoes) {
    const PageTarget targets[]{{PageTarget::Kind::Printer, "Office"},
                               {PageTarget::Kind::File, "/home/user/radio 1.pdf"},
                               {PageTarget::Kind::None, ""},
                               {PageTarget::Kind::NoAnswer, ""}};
    const char* english[]{"Output: printer Office", "Output: PDF file radio 1.pdf", "Output: no printer",
                          "Output: no answer from the printing system"};
    const char* chinese[]{"输出：打印机 Office", "输出：PDF 文件 radio 1.pdf", "输出：没有打印机",
                          "输出：打印系统没有应答"};
    for (std::size_t i = 0; i < std::size(targets); ++i) {
        fakes.pages.SetTarget(targets[i]);
        Load();
        EXPECT_EQ(FromQString(Find<QLabel>(*form, "lblOutput").accessibleName()), english[i]);
        EXPECT_EQ(FromQString(Find<QLabel>(*form, "lblOutput").text()), english[i]);
        Load(Language::Chinese);
        EXPECT_EQ(FromQString(Find<QLabel>(*form, "lblOutput").accessibleName()), chinese[i]);
        EXPECT_EQ(FromQString(Find<QLabel>(*form, "lblOutput").text()), chinese[i]);
    }
}

TEST_F(frmPrintListTest, IsUsableWhileThePrintingSystemIsAsked) {
    fakes.pages.HoldAnswers();
    Load();
    EXPECT_EQ(Output(), "Output: asking the printing system…");
    Tick(1);
    Click(*form, "cmdOK");
    EXPECT_TRUE(fakes.pages.Pages().empty());
    EXPECT_TRUE(form->isVisible());
    Click(*form, "cmdOK"); // once is enough
    Click(*form, "cmdPrintSetup");
    fakes.pages.Answer();
    EXPECT_EQ(fakes.pages.Documents().size(), 1U);
    EXPECT_TRUE(fakes.pages.SetupDocuments().empty());
    EXPECT_FALSE(form->isVisible());
}

TEST_F(frmPrintListTest, PrintsNothingThatWasCancelledWhileThePrintingSystemIsAsked) {
    fakes.pages.HoldAnswers();
    Load();
    Tick(1);
    Click(*form, "cmdOK");
    Click(*form, "cmdCancel");
    fakes.pages.Answer();
    EXPECT_TRUE(fakes.pages.Pages().empty());
}

TEST_F(frmPrintListTest, MayBeGoneWhenThePrintingSystemAnswers) {
    for (const char* button : {"cmdOK", "cmdPrintSetup"}) {
        fakes.pages.HoldAnswers();
        Load();
        Tick(1);
        Click(*form, button);
        form.reset();
        fakes.pages.Answer();
        EXPECT_TRUE(fakes.pages.Pages().empty());
        EXPECT_TRUE(fakes.pages.SetupDocuments().empty());
    }
}

TEST_F(frmPrintListTest, TellsOfAPrintingSystemThatDoesNotAnswerAndStaysUp) {
    constexpr TextPair title{"Warning", "警告"};
    constexpr TextPair text{
        "No answer from the printing system.\nTry again later, or choose a PDF file in Print setup.",
        "打印系统没有应答。\n请稍后再试，或在打印设置中选择 PDF 文件。"};
    for (const Language language : {Language::English, Language::Chinese}) {
        Load(language);
        fakes.pages.SetTarget({PageTarget::Kind::NoAnswer, ""});
        Tick(1);
        fakes.messages.Expect({.title = std::string(title.In(language)),
                               .text = std::string(text.In(language)),
                               .icon = MessageIcon::Exclamation,
                               .buttons = MessageButtons::Ok},
                              MessageAnswer::Ok);
        Click(*form, "cmdOK");
        EXPECT_EQ(fakes.messages.Pending(), 0);
        EXPECT_TRUE(form->isVisible());
        fakes.pages.SetTarget({PageTarget::Kind::Printer, "Office"});
        Click(*form, "cmdOK");
        EXPECT_FALSE(form->isVisible());
    }
    EXPECT_EQ(fakes.pages.Documents().size(), 2U);
}

TEST_F(frmPrintListTest, OffersAPdfFileInSetupWhereThePrintingSystemDoesNotAnswer) {
    constexpr TextPair title{"Warning", "警告"};
    constexpr TextPair text{"No answer from the printing system.\nPrint to a PDF file instead?",
                            "打印系统没有应答。\n是否改为打印到 PDF 文件？"};
    for (const Language language : {Language::English, Language::Chinese}) {
        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            fakes.pages.SetTarget({PageTarget::Kind::NoAnswer, ""});
            Load(language);
            fakes.messages.Expect({.title = std::string(title.In(language)),
                                   .text = std::string(text.In(language)),
                                   .icon = MessageIcon::Exclamation,
                                   .buttons = MessageButtons::YesNo},
                                  answer);
            if (answer == MessageAnswer::Yes) {
                fakes.pages.ExpectSetup(PageTarget{PageTarget::Kind::File, "/home/user/radio.pdf"});
            }
            Click(*form, "cmdPrintSetup");
            EXPECT_EQ(fakes.messages.Pending(), 0);
            EXPECT_TRUE(form->isVisible());
        }
        EXPECT_NE(Output().find("radio.pdf"), std::string::npos) << Output();
    }
}

TEST_F(frmPrintListTest, GivesSetupTheDocumentsName) {
    Load();
    document.Rename("/home/user/radio 2.dat");
    fakes.pages.ExpectSetup(false);
    Click(*form, "cmdPrintSetup");
    EXPECT_EQ(fakes.pages.SetupDocuments(), (std::vector<std::string>{"/home/user/radio 2.dat"}));
}

TEST_F(frmPrintListTest, SaysWhereTheReportGoesAfterSetup) {
    Load();
    ChoosePdf({PageTarget::Kind::File, "/home/user/radio.pdf"});
    EXPECT_EQ(Output(), "Output: PDF file radio.pdf");
    EXPECT_EQ(Find<QLabel>(*form, "lblOutput").toolTip(), "/home/user/radio.pdf");
    fakes.pages.ExpectSetup(PageTarget{PageTarget::Kind::Printer, "Attic"});
    Click(*form, "cmdPrintSetup");
    EXPECT_EQ(Output(), "Output: printer Attic");
}

TEST_F(frmPrintListTest, AsksBeforeAFileIsReplacedEveryTime) {
    fakes.pages.SetTarget({PageTarget::Kind::File, "/home/user/radio1.pdf", true});
    for (std::size_t time = 1; time <= 2; ++time) {
        Load();
        Tick(1);
        ExpectReplaceQuestion("/home/user/radio1.pdf", MessageAnswer::Yes);
        Click(*form, "cmdOK");
        EXPECT_EQ(fakes.messages.Pending(), 0);
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(fakes.pages.Documents().size(), time);
    }
}

TEST_F(frmPrintListTest, AsksInChineseToo) {
    fakes.pages.SetTarget({PageTarget::Kind::File, "/home/user/radio1.pdf", true});
    Load(Language::Chinese);
    Tick(1);
    fakes.messages.Expect({.title = "警告",
                           .text = "文件已存在:\n/home/user/radio1.pdf\n是否替换？",
                           .icon = MessageIcon::Exclamation,
                           .buttons = MessageButtons::YesNo,
                           .defaultButton = MessageAnswer::No},
                          MessageAnswer::No);
    Click(*form, "cmdOK");
    EXPECT_EQ(fakes.messages.Pending(), 0);
}

TEST_F(frmPrintListTest, KeepsAFileAndStaysUpWhereTheUserDoesNotWantItReplaced) {
    fakes.pages.SetTarget({PageTarget::Kind::File, "/home/user/radio1.pdf", true});
    Load();
    Tick(1);
    ExpectReplaceQuestion("/home/user/radio1.pdf", MessageAnswer::No);
    Click(*form, "cmdOK");
    EXPECT_TRUE(fakes.pages.Pages().empty());
    EXPECT_TRUE(form->isVisible());
    ChoosePdf({PageTarget::Kind::File, "/home/user/radio2.pdf", false});
    Click(*form, "cmdOK");
    EXPECT_EQ(fakes.pages.Documents().size(), 1U);
    EXPECT_FALSE(form->isVisible());
}

// The set-up dialog has asked already.
TEST_F(frmPrintListTest, DoesNotAskAgainForAFileThatWasJustChosen) {
    Load();
    Tick(1);
    ChoosePdf({PageTarget::Kind::File, "/home/user/radio1.pdf", true});
    Click(*form, "cmdOK");
    EXPECT_EQ(fakes.pages.Documents().size(), 1U);
    Load(); // another time
    Tick(1);
    ExpectReplaceQuestion("/home/user/radio1.pdf", MessageAnswer::Yes);
    Click(*form, "cmdOK");
    EXPECT_EQ(fakes.pages.Documents().size(), 2U);
}

TEST_F(frmPrintListTest, AsksForAFileThatAppearedAfterItWasChosen) {
    Load();
    Tick(1);
    ChoosePdf({PageTarget::Kind::File, "/home/user/radio1.pdf", false});
    fakes.pages.SetTarget({PageTarget::Kind::File, "/home/user/radio1.pdf", true});
    ExpectReplaceQuestion("/home/user/radio1.pdf", MessageAnswer::No);
    Click(*form, "cmdOK");
    EXPECT_TRUE(fakes.pages.Pages().empty());
}

TEST_F(frmPrintListTest, ShortensALongFileNameInItsMiddleAndKeepsItsSize) {
    Load();
    const QSize size = form->size();
    ChoosePdf({PageTarget::Kind::File, "/home/user/" + std::string(180, 'x') + ".pdf"});
    EXPECT_EQ(form->size(), size);
    EXPECT_TRUE(Output().starts_with("Output: PDF file x")) << Output();
    EXPECT_TRUE(Output().ends_with("x.pdf")) << Output();
    const auto& line = Find<QLabel>(*form, "lblOutput");
    EXPECT_LE(line.fontMetrics().horizontalAdvance(line.text()), line.width());
}

} // namespace
} // namespace zelvor
