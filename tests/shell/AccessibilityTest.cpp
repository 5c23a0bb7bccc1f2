// What assistive technology is told: every control of every window has a name, and the grids say row, column and value.

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <array>
#include <set>

#include "controls/EditGrid.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

constexpr std::array DialogEntries{
    "MnuFilePrint", "MnuModelInformation", "MnuProgramRead", "MnuSetupCommunicationPort", "MnuSetupLanguageFileSetup",
    "MnuHelpAbout"};

/// Roles with which the user does something, or that tell something: they need a name.
bool NeedsName(QAccessible::Role role) {
    static const std::set<QAccessible::Role> roles{
        QAccessible::Button,      QAccessible::PushButton,   QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::ComboBox,    QAccessible::EditableText, QAccessible::SpinBox,  QAccessible::Slider,
        QAccessible::ProgressBar, QAccessible::List,         QAccessible::Table,    QAccessible::Tree,
        QAccessible::PageTab,     QAccessible::Graphic,      QAccessible::Dialog,   QAccessible::MenuItem,
        QAccessible::StaticText,  QAccessible::Dial,         QAccessible::ToolBar};
    return roles.contains(role);
}

std::string Told(const QAccessibleInterface& each) {
    const QObject* object = each.object();
    return (object == nullptr
                ? "part"
                : std::string(object->metaObject()->className()) + ' ' + object->objectName().toStdString()) +
           ", role " + std::to_string(each.role());
}

/// Whether a label or a description says what it is: on some systems the name of a list that opens is its value.
bool IsLabelled(const QAccessibleInterface& list) {
    return !list.relations(QAccessible::Label).isEmpty() || !list.text(QAccessible::Description).isEmpty();
}

/// All that is visible below, itself included.
void Walk(QAccessibleInterface* from, const std::function<void(QAccessibleInterface&)>& visit) {
    if (from == nullptr || !from->isValid() || from->state().invisible) {
        return;
    }
    visit(*from);
    for (int i = 0; i < from->childCount(); ++i) {
        Walk(from->child(i), visit);
    }
}

void ExpectNames(QWidget& window) {
    int named = 0;
    Walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& each) {
        const bool takesKeys = each.state().focusable && each.role() != QAccessible::Cell;
        if (!takesKeys && !NeedsName(each.role())) {
            return;
        }
        const bool saysNothing = each.text(QAccessible::Name).isEmpty() && each.text(QAccessible::Value).isEmpty();
        const bool isText = each.role() == QAccessible::StaticText;
        if (isText && saysNothing && each.text(QAccessible::Description).isEmpty()) {
            return; // a label that shows nothing now
        }
        ++named;
        EXPECT_FALSE(each.text(QAccessible::Name).isEmpty()) << window.objectName().toStdString() << ": " << Told(each);
        if (each.role() == QAccessible::ComboBox) {
            EXPECT_TRUE(IsLabelled(each)) << window.objectName().toStdString() << ": " << Told(each);
        }
    });
    EXPECT_GE(named, 2) << window.objectName().toStdString();
}

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
};

TEST_P(AccessibilityTest, EveryControlOfTheMainWindowHasAName) {
    ExpectNames(*window);
}

TEST_P(AccessibilityTest, EveryControlOfEveryChildWindowHasAName) {
    VisitChildWindows(ExpectNames);
    ClickButton("ChannelForm", "cmdChannelEdit");
    QCoreApplication::processEvents();
    ExpectNames(*Child("ChannelEditForm"));
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

TEST_P(AccessibilityTest, EveryControlOfEveryDialogHasAName) {
    for (const char* entry : DialogEntries) {
        ChooseDialog(entry, [](QWidget& dialog) {
            ExpectNames(dialog);
            dialog.close();
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, AccessibilityTest, ::testing::Bool());

} // namespace
} // namespace zelvor
