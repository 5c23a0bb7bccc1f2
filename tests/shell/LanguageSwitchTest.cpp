#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>

#include "shell/ShellTest.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

using Flags = std::array<bool, 10>;
using Writes = std::vector<std::pair<std::string, std::string>>;
using Record = std::array<std::uint8_t, 16>;

// 145.12500 both ways, tones 67.0 and none, High, Wide, no signalling.
constexpr Record FirstRecord{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14,
                             0x9E, 0x02, 0xFF, 0xFF, 0x00, 0xBF, 0xB1, 0xF8};
// 145.12500 receive only, no tones, Low, Narrow, DTMF.
constexpr Record LastRecord{0x00, 0x25, 0x51, 0x14, 0xFF, 0xFF, 0xFF, 0xFF,
                            0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0x8F, 0xB0, 0xF8};

class LanguageSwitchTest : public ShellTest {
protected:
    void Switch(int index, const char* button = "CmdOK") {
        ChooseDialog("MnuSetupLanguageFileSetup", [&](QWidget& dialog) {
            dialog.findChild<QComboBox*>("ComLanguage")->setCurrentIndex(index);
            Click(dialog, button);
        });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void SwitchToChinese() { Switch(1); }
    void SwitchToEnglish() { Switch(0); }

    void OpenAllWindows() {
        for (const char* entry : {"MnuEditOptionalFeatures", "MnuEditKeyAssignment", "MnuEditScanInformation",
                                  "MnuEditDTMF", "MnuEditCorvane", "MnuEditTestFrequency", "MnuEditEmbeddedMessage",
                                  "MnuViewTreeView", "MnuEditChannelInformation"}) {
            Choose(entry);
        }
        ClickButton("ChannelForm", "cmdChannelEdit");
    }
    /// Programs channels 1 and 16, and shows them.
    void OpenWithChannels(int pttIdType, bool inChinese = false) {
        if (inChinese) {
            OpenMainWindowInChinese();
        } else {
            OpenMainWindow();
        }
        for (std::size_t j = 0; j < 16; ++j) {
            document.Image.Set(0x010 + static_cast<int>(j), FirstRecord[j]);
            document.Image.Set(0x100 + static_cast<int>(j), LastRecord[j]);
        }
        document.Image.Set(0x133, static_cast<std::uint8_t>(pttIdType));
        document.Image.Set(0x17E, 0x01);
        document.TakeSnapshot();
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
    }
    [[nodiscard]] QTableWidget& Grid() const { return *Find<QTableWidget>("ChannelGrid"); }
    [[nodiscard]] QMdiSubWindow& GridFrame() const {
        return *qobject_cast<QMdiSubWindow*>(Child("ChannelForm")->parentWidget());
    }
    [[nodiscard]] QStringList Cells(int row) const {
        QStringList cells;
        for (int column = 0; column < 9; ++column) {
            cells.append(Grid().item(row - 1, column)->text());
        }
        return cells;
    }
    [[nodiscard]] QStringList Headings() const {
        QStringList headings{Find<QLabel>("corner")->text()};
        for (int column = 0; column < 9; ++column) {
            headings.append(Grid().horizontalHeaderItem(column)->text());
        }
        return headings;
    }
    [[nodiscard]] QString Button(const char* name) const {
        return Child("ChannelForm")->findChild<QPushButton*>(name)->text();
    }
    [[nodiscard]] bool IsListed(int entry) const {
        return Entry("MnuWindowSub(" + std::to_string(entry) + ")")->isVisible();
    }
};

TEST_F(LanguageSwitchTest, ClosesEveryWindowButTheGrid) {
    OpenMainWindow();
    OpenAllWindows();
    ASSERT_EQ(windows.Open(), (Flags{true, true, true, true, true, true, true, true, true, true}));
    SwitchToChinese();
    for (const char* name : {"OptionalForm", "KeyAssign", "ScanForm", "DTMFForm", "CorvaneForm", "TestChannelForm",
                             "EmbedInfoForm", "TreeViewForm", "ChannelEditForm"}) {
        EXPECT_EQ(Child(name), nullptr) << name;
    }
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_EQ(windows.Open(), (Flags{true}));
    for (int entry = 0; entry < 9; ++entry) {
        EXPECT_EQ(IsListed(entry), entry == 0) << entry;
    }
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
}

TEST_F(LanguageSwitchTest, TheLanguageThatIsSetAlreadyClosesNothing) {
    OpenMainWindow();
    OpenAllWindows();
    const Flags open = windows.Open();
    Switch(0);
    EXPECT_EQ(windows.Open(), open);
    EXPECT_TRUE(IsChildShown("ScanForm"));
    EXPECT_TRUE(IsChildShown("ChannelEditForm"));
    EXPECT_EQ(Child("ChannelForm")->windowTitle(), " Channel Information [ Channel - 1 ]");
}

TEST_F(LanguageSwitchTest, CancelAfterAChoiceClosesNothingAlsoAfterAnEarlierSwitch) {
    OpenMainWindow();
    SwitchToChinese();
    OpenAllWindows();
    const Flags open = windows.Open();
    const QWidget* focus = window->focusWidget();
    ASSERT_NE(focus, nullptr);
    Switch(0, "CmdCancel");
    EXPECT_EQ(windows.Open(), open);
    EXPECT_TRUE(IsChildShown("ScanForm"));
    EXPECT_EQ(window->focusWidget(), focus);
    EXPECT_EQ(windows.LanguageFlag, Language::Chinese);
    EXPECT_EQ(TextOf("MnuFile"), "文件(&F)");
}

TEST_F(LanguageSwitchTest, CancelLeavesTheOrderOfTheWindows) {
    OpenMainWindow();
    for (const char* entry : {"MnuEditScanInformation", "MnuEditKeyAssignment", "MnuEditCorvane"}) {
        Choose(entry);
    }
    window->activateWindow();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    ChooseDialog("MnuSetupLanguageFileSetup", [&](QWidget& dialog) {
        dialog.activateWindow();
        Click(dialog, "CmdCancel");
        window->activateWindow(); // as the window system does when the dialog has gone
    });
    QStringList fromBottomToTop;
    for (const QMdiSubWindow* frame : window->findChild<QMdiArea*>()->subWindowList(QMdiArea::StackingOrder)) {
        fromBottomToTop.append(frame->widget()->objectName());
    }
    EXPECT_EQ(fromBottomToTop, (QStringList{"ChannelForm", "ScanForm", "KeyAssign", "CorvaneForm"}));
}

TEST_F(LanguageSwitchTest, AWindowOpenedAfterwardsIsInTheNewLanguage) {
    OpenMainWindow();
    Choose("MnuEditEmbeddedMessage");
    Choose("MnuWindowCloseAll");
    SwitchToChinese();
    EXPECT_EQ(Child("EmbedInfoForm"), nullptr);
    Choose("MnuEditEmbeddedMessage");
    EXPECT_EQ(Child("EmbedInfoForm")->windowTitle(), " 嵌入信息");
    EXPECT_EQ(TextOf("MnuWindowSub(7)"), " 嵌入信息");
}

TEST_F(LanguageSwitchTest, ADialogThatTheGridHidWithItselfComesBackInTheNewLanguage) {
    OpenMainWindow();
    ClickButton("ChannelForm", "cmdChannelEdit");
    CloseFrame("ChannelForm");
    ASSERT_NE(Child("ChannelEditForm"), nullptr);
    SwitchToChinese();
    EXPECT_FALSE(IsChildShown("ChannelForm"));
    Choose("MnuEditChannelInformation");
    ClickButton("ChannelForm", "cmdChannelEdit");
    EXPECT_EQ(Child("ChannelEditForm")->windowTitle(), " 信道编辑");
    EXPECT_EQ(Child("ChannelForm")->windowTitle(), " 信道信息 [ 信道 - 1 ]");
    EXPECT_EQ(Button("cmdClose"), "关闭(&C)");
}

TEST_F(LanguageSwitchTest, AGridThatWasMaximisedOrMinimisedIsNormalAtTheTopLeft) {
    OpenMainWindow();
    GridFrame().showMaximized();
    SwitchToChinese();
    EXPECT_FALSE(GridFrame().isMaximized());
    EXPECT_EQ(GridFrame().pos(), QPoint(0, 0));
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ 文件名:Zelvor.dat]");
    GridFrame().showMinimized();
    SwitchToEnglish();
    EXPECT_FALSE(GridFrame().isMinimized());
    EXPECT_EQ(GridFrame().pos(), QPoint(0, 0));
    GridFrame().move(50, 60);
    SwitchToChinese();
    EXPECT_EQ(GridFrame().pos(), QPoint(0, 0));
}

TEST_F(LanguageSwitchTest, TheMainWindowsTextsFollow) {
    OpenMainWindow();
    SwitchToChinese();
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ 文件名:Zelvor.dat]");
    EXPECT_EQ(TextOf("MnuFile"), "文件(&F)");
    EXPECT_EQ(TextOf("MnuProgramMemoryMap"), "内存指针图(&M)");
    EXPECT_EQ(TextOf("MnuWindowCloseAll"), "关闭所有窗口(&W)");
    EXPECT_EQ(TextOf("MnuHelp"), "帮助(&H)");
    EXPECT_EQ(TextOf("MnuHelpAbout"), "关于 Zelvor(&A)");
    const std::pair<int, const char*> toolTips[] = {{1, "新建"}, {2, "打开"}, {3, "保存"}, {5, "打印"},
                                                    {7, "读取"}, {9, "写入"}, {11, "关于"}};
    for (const auto& [index, text] : toolTips) {
        const auto* button = window->findChild<QToolButton*>(QStringLiteral("Toolbar1(%1)").arg(index));
        EXPECT_EQ(button->toolTip(), text);
        EXPECT_EQ(button->accessibleName(), text);
    }
    SwitchToEnglish();
    EXPECT_EQ(window->windowTitle(), "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
    EXPECT_EQ(TextOf("MnuFile"), "&File");
    EXPECT_EQ(Entry("Toolbar1(1)")->toolTip(), "New");
}

TEST_F(LanguageSwitchTest, TheGridsTextsFollow) {
    OpenMainWindow();
    SwitchToChinese();
    EXPECT_EQ(Headings(), QStringList({"信道编号", "接收频率", "发射频率", "QT/DQT解码", "QT/DQT编码 ", "发射功率 ",
                                       "宽/窄", "扫描添加 ", "可选信令 ", "PTT ID"}));
    EXPECT_EQ(Button("cmdClose"), "关闭(&C)");
    EXPECT_EQ(Button("cmdHelp"), "帮助(&H)");
    EXPECT_EQ(Button("cmdChannelEdit"), "信道编辑(&E)");
    EXPECT_EQ(Find<QLabel>("LabFreeArea")->text(), "空位(Bytes):");
    EXPECT_EQ(Find<QLabel>("LabHint")->text(), "按回车键或单击可编辑单元格，上下方向键选择数值，Esc 键还原频率。");
    EXPECT_EQ(Grid().accessibleName(), "信道信息");
    EXPECT_EQ(Find<QLabel>("LabBlankChannel")->accessibleName(), "空位(Bytes): 256");
    SwitchToEnglish();
    EXPECT_EQ(Headings(), QStringList({"Channel No.", "RX Frequency", "TX Frequency", "QT/DQT Dec", "QT/DQT Enc",
                                       "TX Power", "W/N", "Scan Add", "Opt Signal", "PTT ID"}));
    EXPECT_EQ(Button("cmdClose"), "&Close");
    EXPECT_EQ(Button("cmdHelp"), "&Help");
    EXPECT_EQ(Button("cmdChannelEdit"), "Channel &Edit");
    EXPECT_EQ(Find<QLabel>("LabFreeArea")->text(), "Free Area(Bytes):");
}

TEST_F(LanguageSwitchTest, TheGridsTitleIsThatOfANewDocumentWhereverTheCursorIs) {
    OpenMainWindow();
    QTest::keyClick(&Grid(), Qt::Key_Down);
    ASSERT_EQ(Child("ChannelForm")->windowTitle(), " Channel Information [ Channel - 2 ]");
    SwitchToChinese();
    EXPECT_EQ(Child("ChannelForm")->windowTitle(), " 信道信息 [ 信道 - 1 ]");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " 信道信息 [ 信道 - 1 ]");
    SwitchToEnglish();
    EXPECT_EQ(Child("ChannelForm")->windowTitle(), " Channel Information [ Channel-1 ]");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel-1 ]");
}

TEST_F(LanguageSwitchTest, TheWordsInTheCellsFollowAndBlankRowsStayBlank) {
    OpenWithChannels(0);
    ASSERT_EQ(Cells(1), QStringList({"145.12500", "145.12500", "67.0", "None", "High", "Wide", "Yes", "None", "On"}));
    const QStringList blank{"", "", "", "", "", "", "", "", ""};
    SwitchToChinese();
    EXPECT_EQ(Cells(1), QStringList({"145.12500", "145.12500", "67.0", "无", "高", "宽带", "有", "无", "开"}));
    EXPECT_EQ(Cells(16), QStringList({"145.12500", "", "无", "无", "低", "窄带", "无", "DTMF", "关"}));
    for (int row = 2; row <= 15; ++row) {
        EXPECT_EQ(Cells(row), blank) << row;
    }
    SwitchToEnglish();
    EXPECT_EQ(Cells(1), QStringList({"145.12500", "145.12500", "67.0", "None", "High", "Wide", "Yes", "None", "On"}));
    EXPECT_EQ(Cells(16), QStringList({"145.12500", "", "None", "None", "Low", "Narrow", "No", "DTMF", "Off"}));
    for (int row = 2; row <= 15; ++row) {
        EXPECT_EQ(Cells(row), blank) << row;
    }
    EXPECT_EQ(Find<QLabel>("LabBlankChannel")->text(), "224");
}

TEST_F(LanguageSwitchTest, PttIdOfTypeCorvaneComesFromTheImageNotFromTheCell) {
    OpenWithChannels(1, true);
    ASSERT_EQ(Cells(1)[8], "自身");
    document.Image.Set(0x01E, 0xB3);
    SwitchToEnglish();
    EXPECT_EQ(Cells(1)[8], "Fleet List 2");
    EXPECT_EQ(Cells(16)[8], "Off");
    SwitchToChinese();
    EXPECT_EQ(Cells(1)[8], "队列表 2");
    EXPECT_EQ(Cells(16)[8], "关");
}

TEST_F(LanguageSwitchTest, TheToneListsFollow) {
    OpenWithChannels(0);
    SwitchToChinese();
    for (const int column : {2, 3}) {
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {},
                          Grid().visualItemRect(Grid().item(0, column)).center());
        const auto* list = Find<QComboBox>("comInputStep");
        ASSERT_TRUE(list->isVisible());
        ASSERT_EQ(list->count(), 205);
        EXPECT_EQ(list->itemText(0), "无");
        EXPECT_EQ(list->itemText(1), "67.0");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }
}

TEST_F(LanguageSwitchTest, TheImageStaysAlsoWhenCellsAreEditedAfterwards) {
    OpenWithChannels(0);
    const DataImage before = document.Image;
    SwitchToChinese();
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Grid().visualItemRect(Grid().item(0, 3)).center());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ClickButton("ChannelForm", "cmdChannelEdit");
    ClickButton("ChannelEditForm", "cmdOK");
    EXPECT_EQ(document.Image, before);
    EXPECT_EQ(Cells(1), QStringList({"145.12500", "145.12500", "67.0", "无", "高", "宽带", "有", "无", "开"}));
}

TEST_F(LanguageSwitchTest, UnsavedChangesStayUnsavedAndNothingIsAsked) {
    OpenMainWindow();
    document.Image.Set(0x300, 0x41);
    const DataImage image = document.Image;
    const DataImage saved = document.Snapshot();
    OpenAllWindows();
    SwitchToChinese();
    EXPECT_EQ(document.Image, image);
    EXPECT_EQ(document.Snapshot(), saved);
    EXPECT_TRUE(document.IsDocumentChanged());
}

TEST_F(LanguageSwitchTest, AnEditUnderWayIsStoredInTheLanguageItWasMadeIn) {
    OpenWithChannels(0);
    ClickButton("ChannelForm", "cmdChannelEdit");
    auto* encode = Find<QComboBox>("ComEncode");
    encode->setFocus();
    ASSERT_EQ(encode->currentText(), "None");
    const DataImage before = document.Image;
    SwitchToChinese();
    EXPECT_EQ(document.Image, before);
    EXPECT_EQ(Cells(1)[3], "无");

    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Grid().visualItemRect(Grid().item(0, 0)).center());
    QTest::keyClicks(QApplication::focusWidget(), "146");
    SwitchToEnglish();
    EXPECT_EQ(Cells(1), QStringList({"146.00000", "145.12500", "67.0", "None", "High", "Wide", "Yes", "None", "On"}));
    EXPECT_FALSE(Child("txtInputBox")->isVisible());
}

TEST_F(LanguageSwitchTest, IsForgottenUnlessTheProgramEnds) {
    fakes.settings.Preset("LastModel", "50:34:36:31:38:01:F8:FF");
    fakes.settings.Preset("Language", "0");
    OpenMainWindow();
    SwitchToChinese();
    EXPECT_TRUE(fakes.settings.Writes().empty());
    fakes.messages.Expect(
        {"确认", "是否退出 Zelvor 程序？", MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::Yes},
        MessageAnswer::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(fakes.settings.Writes(), (Writes{{"LastModel", "50:34:36:31:38:01:F8:FF"}, {"Language", "1"}}));
}

TEST_F(LanguageSwitchTest, TheHelpFollows) {
    OpenMainWindow();
    SwitchToChinese();
    QTest::keyClick(window.get(), Qt::Key_F1);
    ClickButton("ChannelForm", "cmdHelp");
    ASSERT_EQ(fakes.help.Topics().size(), 2U);
    for (const std::string& topic : fakes.help.Topics()) {
        EXPECT_TRUE(QString::fromStdString(topic).endsWith("\\Zelvor_c.chm::/html/chinfo.htm"));
    }
}

TEST_F(LanguageSwitchTest, TheToolkitsOwnTextsFollow) {
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_zh_CN.qm"))) {
        GTEST_SKIP() << "The toolkit's translations are not installed";
    }
    OpenMainWindow();
    const auto cancel = [] {
        QDialogButtonBox box(QDialogButtonBox::Cancel);
        return box.button(QDialogButtonBox::Cancel)->text();
    };
    const auto frameMenu = [this] {
        QStringList texts;
        for (const QAction* action : GridFrame().systemMenu()->actions()) {
            texts.append(action->text());
        }
        return texts;
    };
    const QStringList english = frameMenu();
    SwitchToChinese();
    EXPECT_EQ(cancel(), "取消");
    for (const QString& text : frameMenu()) {
        EXPECT_TRUE(text.isEmpty() || !english.contains(text)) << text.toStdString();
    }
    SwitchToEnglish();
    EXPECT_EQ(cancel(), "Cancel");
    EXPECT_EQ(frameMenu(), english);
}

TEST_F(LanguageSwitchTest, AGridThatIsGoneIsMadeInTheNewLanguage) {
    OpenMainWindow();
    windows.ExitConfirmed = true; // a cancelled exit
    CloseFrame("ChannelForm");
    ASSERT_EQ(Child("ChannelForm"), nullptr);
    SwitchToChinese();
    EXPECT_EQ(Child("ChannelForm"), nullptr);
    Choose("MnuEditChannelInformation");
    EXPECT_EQ(Headings().first(), "信道编号");
}

} // namespace
} // namespace zelvor
