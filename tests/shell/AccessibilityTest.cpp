// What assistive technology is told by the main window, its child windows and its dialogs: every control has a name, a
// role and its label, and the grids say row, column and value.

#include <QApplication>
#include <QDialog>
#include <array>

#include "controls/EditGrid.h"
#include "shell/AccessibleTree.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

constexpr std::array DialogEntries{"MnuFilePrint",    "MnuModelInformation",       "MnuProgramRead",
                                   "MnuProgramWrite", "MnuSetupCommunicationPort", "MnuSetupLanguageFileSetup",
                                   "MnuHelpAbout"};

/// The program in English or Chinese.
class AccessibilityTest : public ShellTest, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        if (GetParam()) {
            OpenMainWindowInChinese();
        } else {
            OpenMainWindow();
        }
    }
    /// Selects a node of the navigator, as assistive technology does.
    void SelectNode(int node) const {
        auto* tree = Child("TreeViewForm")->findChild<QWidget*>("treView");
        QAccessibleInterface* cell = QAccessible::queryAccessibleInterface(tree)->tableInterface()->cellAt(node, 0);
        ASSERT_NE(cell, nullptr);
        cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCoreApplication::processEvents();
    }
};

TEST_P(AccessibilityTest, EveryControlOfTheMainWindowIsSpoken) {
    ExpectSpoken(*window);
}

TEST_P(AccessibilityTest, EveryControlOfEveryChildWindowIsSpoken) {
    VisitChildWindows(ExpectSpoken);
    ClickButton("ChannelForm", "cmdChannelEdit");
    QCoreApplication::processEvents();
    ExpectSpoken(*Child("ChannelEditForm"));
}

TEST_P(AccessibilityTest, TheGridOfTheChannelsSaysRowColumnAndValue) {
    document.Channels.SetCellText(3, column::Rx, "148.88888");
    auto* grid = Child("ChannelForm")->findChild<EditGrid*>();
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(grid);
    ASSERT_NE(accessible->tableInterface(), nullptr);
    QAccessibleTableInterface& table = *accessible->tableInterface();
    QAccessibleInterface* cell = table.cellAt(2, 0);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), "148.88888");
    EXPECT_EQ(table.rowDescription(2), "3");
    EXPECT_EQ(table.columnDescription(0).trimmed(), GetParam() ? "接收频率" : "RX Frequency");
    ASSERT_NE(cell->tableCellInterface(), nullptr);
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 2);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 0);
}

TEST_P(AccessibilityTest, EveryControlOfEveryDialogIsSpoken) {
    for (const char* entry : DialogEntries) {
        ChooseDialog(entry, [](QWidget& dialog) {
            ExpectSpoken(dialog);
            dialog.close();
        });
    }
}

TEST_P(AccessibilityTest, ANodeOfTheNavigatorThatIsSelectedIsTheOneThatEnterOpens) {
    Choose("MnuViewTreeView");
    SelectNode(3);
    EXPECT_EQ(Child("KeyAssign"), nullptr);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), "treView");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(IsChildShown("KeyAssign"));
}

TEST_P(AccessibilityTest, TheNavigatorsColumnIsNamed) {
    Choose("MnuViewTreeView");
    auto* tree = Child("TreeViewForm")->findChild<QWidget*>("treView");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(tree)->tableInterface()->columnDescription(0),
              GetParam() ? "树视图" : "Tree View");
}

INSTANTIATE_TEST_SUITE_P(Languages, AccessibilityTest, ::testing::Bool());

} // namespace
} // namespace zelvor
