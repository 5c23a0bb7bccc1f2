// What assistive technology is told by the windows that stand by themselves: those of the service mode, the memory map,
// the help, and the dialogs and boxes of the toolkit.

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>

#include "../platform/ModalDriver.h"
#include "controls/EditGrid.h"
#include "data/TuneItems.h"
#include "features/CPUForm.h"
#include "help/QtHelpViewer.h"
#include "platform/FileQuestion.h"
#include "platform/PrintSetupDialog.h"
#include "platform/QtFileDialogs.h"
#include "platform/QtLanguage.h"
#include "platform/QtMessageBoxes.h"
#include "service/DJJInfoForm.h"
#include "service/TestForm.h"
#include "service/TuningForm.h"
#include "shell/AccessibleTree.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

class AccessibleWindowsTest : public testing::TestWithParam<Language> {
protected:
    AccessibleWindowsTest() {
        toolkitLanguage_.Use(GetParam());
        service.TestChannelNo = 1;
        service.TuneItem = 1;
        for (TestFrequencyTexts& texts : service.TestFrequencyText) {
            texts = {"155.05000", "155.10000"};
        }
    }

    [[nodiscard]] const char* Text(const char* english, const char* chinese) const {
        return GetParam() == Language::Chinese ? chinese : english;
    }

    static void Show(QWidget& window) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Each page of a window.
    static void ExpectPagesSpoken(QWidget& window) {
        auto* tabs = window.findChild<QTabWidget*>();
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr) {
                tabs->setCurrentIndex(page);
                QCoreApplication::processEvents();
            }
            ExpectSpoken(window);
        }
    }
    /// Selects a row of a list, as assistive technology does.
    static void SelectRow(QListWidget& list, int row) {
        QAccessibleInterface* item = QAccessible::queryAccessibleInterface(&list)->child(row);
        ASSERT_NE(item, nullptr);
        item->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCoreApplication::processEvents();
    }
    static QString DescriptionOf(QWidget& control) {
        return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Description);
    }

    QtLanguage toolkitLanguage_;
    FakeServices fakes;
    Document document;
    LinkState link;
    ServiceState service;
};

TEST_P(AccessibleWindowsTest, EveryControlOfTestModeIsSpoken) {
    TestForm form(document, link, service, GetParam(), fakes.services);
    Show(form);
    ExpectSpoken(form);
}

TEST_P(AccessibleWindowsTest, EveryControlOfEveryTuningDialogIsSpoken) {
    for (int item = 1; item <= TuneItemCount; ++item) {
        for (const bool narrow : {false, true}) {
            service.TuneItem = item;
            service.NarrowMode = narrow;
            const std::unique_ptr<TuningForm> form(
                MakeTuningForm(document, link, service, GetParam(), fakes.services, nullptr));
            Show(*form);
            ExpectPagesSpoken(*form);
        }
    }
}

TEST_P(AccessibleWindowsTest, TheArrowsOfATuningValueStepIt) {
    service.TuneItem = 7; // of one page
    const std::unique_ptr<TuningForm> form(
        MakeTuningForm(document, link, service, GetParam(), fakes.services, nullptr));
    Show(*form);
    auto& slider = *form->findChild<QSlider*>("SldValue(0)");
    slider.setValue(100);
    QAccessibleValueInterface& arrows =
        *QAccessible::queryAccessibleInterface(form->findChild<QWidget*>("updValue(0)"))->valueInterface();
    for (const int expected : {101, 102}) {
        arrows.setCurrentValue(arrows.currentValue().toDouble() + arrows.minimumStepSize().toDouble());
        EXPECT_EQ(slider.value(), expected);
    }
    arrows.setCurrentValue(arrows.currentValue().toDouble() - arrows.minimumStepSize().toDouble());
    EXPECT_EQ(slider.value(), 101);
}

TEST_P(AccessibleWindowsTest, EveryControlOfTheRadiosInformationIsSpoken) {
    service.RadioInfoRecord.fill(0x35);
    DJJInfoForm form(document, service, GetParam(), fakes.services);
    Show(form);
    ExpectSpoken(form);
}

TEST_P(AccessibleWindowsTest, AnItemThatIsSelectedIsTheOneThatIsTuned) {
    TestForm form(document, link, service, GetParam(), fakes.services);
    Show(form);
    auto& items = *form.findChild<QListWidget*>("LvwTuneSel");
    auto& tune = *form.findChild<QPushButton*>("CmdTune");
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&tune)->state().disabled);
    for (const int row : {2, 14, 0}) {
        SelectRow(items, row);
        EXPECT_EQ(service.TuneItem, row + 1);
        EXPECT_EQ(items.currentRow(), row);
        EXPECT_EQ(items.selectedItems().size(), 1);
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(&tune)->state().disabled);
    }
    SelectRow(items, 0); // which would take the mark away
    EXPECT_EQ(items.selectedItems(), QList{items.item(0)});
}

TEST_P(AccessibleWindowsTest, TheMemoryMapSaysAddressValueAndChange) {
    document.Image.Set(0x12, 0x50);
    CPUForm form(document, GetParam(), fakes.services, nullptr);
    Show(form);
    ExpectSpoken(form);
    auto& grid = *form.findChild<EditGrid*>("msgMemory");
    QAccessibleTableInterface& table = *QAccessible::queryAccessibleInterface(&grid)->tableInterface();
    QAccessibleInterface* cell = table.cellAt(1, 2);
    EXPECT_EQ(cell->text(QAccessible::Name), "50");
    EXPECT_EQ(cell->text(QAccessible::Description), "");
    EXPECT_EQ(table.columnDescription(2), "2");

    grid.MoveTo(2, 3);
    QTest::keyClick(&grid, '5');
    auto& box = *form.findChild<QLineEdit*>("txtMemory");
    EXPECT_EQ(box.accessibleName(), Text("Address 0012", "地址 0012"));
    QTest::keyClick(&box, '1');
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(cell->text(QAccessible::Name), "51");
    EXPECT_EQ(cell->text(QAccessible::Description), Text("Changed, was 50", "已更改，原值 50"));
}

class AccessibleHelpTest : public AccessibleWindowsTest {
protected:
    AccessibleHelpTest() {
        viewer_.Show({GetParam(), "general.htm"});
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            window = widget->objectName() == "HelpWindow" ? widget : window;
        }
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(window)); }
    template<class Part>
    Part& Get(const char* name) {
        return *window->findChild<Part*>(name);
    }

    QtHelpViewer viewer_{QStringList{HELP_FOLDER}};
    QWidget* window = nullptr;
};

TEST_P(AccessibleHelpTest, EveryControlIsSpokenWhileReadingAndWhileSearching) {
    ExpectSpoken(*window);
    Get<QLineEdit>("HelpSearch").setText("DTMF");
    ExpectSpoken(*window);
}

TEST_P(AccessibleHelpTest, ThePageOffersItsTextForReading) {
    QAccessibleInterface* page = QAccessible::queryAccessibleInterface(&Get<QTextBrowser>("HelpPage"));
    ASSERT_NE(page->textInterface(), nullptr);
    EXPECT_TRUE(page->state().readOnly);
    EXPECT_GT(page->textInterface()->characterCount(), 200);
    EXPECT_TRUE(page->textInterface()->text(0, 60).contains("Zelvor"));
}

TEST_P(AccessibleHelpTest, AButtonThatShowsAMarkIsNamedByItsWords) {
    QStringList names;
    WalkAccessibles(QAccessible::queryAccessibleInterface(&Get<QWidget>("HelpToolbar")),
                    [&](QAccessibleInterface& each) {
                        if (each.role() == QAccessible::PushButton || each.role() == QAccessible::Button) {
                            names.append(each.text(QAccessible::Name));
                        }
                    });
    EXPECT_EQ(names, GetParam() == Language::Chinese
                         ? (QStringList{"后退", "前进", "首页", "缩小文字", "文字恢复原大小", "放大文字"})
                         : (QStringList{"Back", "Forward", "Home", "Smaller letters", "Usual size of letters",
                                        "Larger letters"}));
}

TEST_P(AccessibleHelpTest, AnEntryThatIsSelectedShowsItsPage) {
    SelectRow(Get<QListWidget>("HelpContents"), 7);
    EXPECT_EQ(Get<QTextBrowser>("HelpPage").source().fileName(), "dtmf.htm");
}

TEST_P(AccessibleHelpTest, TheSearchBoxTellsHowManyPagesWereFound) {
    auto& search = Get<QLineEdit>("HelpSearch");
    EXPECT_TRUE(DescriptionOf(search).contains("Ctrl+F"));
    search.setText("xyzzy");
    EXPECT_EQ(DescriptionOf(search), Text("No page has these words.", "没有页面包含这些文字。"));
    search.setText(Text("fleet list", "队列表"));
    const int found = Get<QListWidget>("HelpResults").count();
    ASSERT_GE(found, 1);
    EXPECT_EQ(DescriptionOf(search), QString(Text("Pages found: %1", "找到的页面：%1")).arg(found));
    search.clear();
    EXPECT_TRUE(DescriptionOf(search).contains("Ctrl+F"));
}

TEST_P(AccessibleWindowsTest, EveryControlOfTheFileDialogsIsSpoken) {
    const QTemporaryDir folder;
    QtFileDialogs dialogs;
    for (const bool opens : {true, false}) {
        bool isSeen = false;
        WithNextDialog<QDialog>([&](QDialog& dialog) {
            isSeen = true;
            ExpectNames(dialog);
            dialog.reject();
        });
        const FileDialogRequest request{"Zelvor.dat", "QPK Data Files(*.dat)|*.dat", folder.path().toStdString()};
        EXPECT_EQ(opens ? dialogs.Open(request) : dialogs.Save(request), std::nullopt);
        EXPECT_TRUE(isSeen);
    }
}

#ifdef Q_OS_UNIX
TEST_P(AccessibleWindowsTest, EveryControlOfThePrintSetUpIsSpoken) {
    QPrinter printer;
    FileQuestion question;
    PrintSetupDialog dialog(printer, {}, question, nullptr);
    Show(dialog);
    ExpectNames(dialog);
}
#endif

TEST_P(AccessibleWindowsTest, AMessageBoxIsAnAlertThatTellsItsText) {
    QtMessageBoxes boxes;
    bool isSeen = false;
    WithNextDialog<QDialog>([&](QDialog& box) {
        isSeen = true;
        QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(&box);
        EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
        EXPECT_NE(alert->text(QAccessible::Name).trimmed(), "");
        QStringList texts;
        WalkAccessibles(alert, [&](QAccessibleInterface& each) {
            if (each.role() == QAccessible::StaticText) {
                texts.append(each.text(QAccessible::Name));
            }
        });
        EXPECT_TRUE(texts.contains("Model type wrong.")) << texts.join(u'|').toStdString();
        box.reject();
    });
    boxes.Show({"Warning", "Model type wrong.", MessageIcon::Exclamation, MessageButtons::OkCancel});
    EXPECT_TRUE(isSeen);
}

const auto Languages = ::testing::Values(Language::English, Language::Chinese);
INSTANTIATE_TEST_SUITE_P(Languages, AccessibleWindowsTest, Languages);
INSTANTIATE_TEST_SUITE_P(Languages, AccessibleHelpTest, Languages);

} // namespace
} // namespace zelvor
