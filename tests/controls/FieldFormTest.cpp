#include "controls/FieldForm.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

#include "controls/BoundCheck.h"
#include "controls/BoundList.h"
#include "controls/BoundRows.h"
#include "controls/BoundSpin.h"
#include "fakes/FakeServices.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

int ReadAny(std::string_view text) {
    return LeadingNumber(text);
}

constexpr NumberField Number{.key = "test.number",
                             .label = Text::SquelchLevel,
                             .address = 0x100,
                             .bytes = 1,
                             .first = 0,
                             .last = 9,
                             .increment = 1,
                             .lengthLimit = 1,
                             .erased = 0,
                             .showsErased = true,
                             .show = ShowNumber,
                             .read = ReadAny};
constexpr FieldWord Words[] = {{Text::Off}, {Text::On}};
constexpr ListField List{.key = "test.list", .label = Text::MicSensitivity, .address = 0x101, .words = Words};
constexpr ListField OwnLabel{.key = "test.ownlabel", .label = "PTT ID", .address = 0x102, .words = Words};
constexpr CheckField Check{.key = "test.check", .label = Text::Beep, .address = 0x103};
constexpr CheckField OtherCheck{.key = "test.othercheck", .label = Text::BatterySave, .address = 0x104};

class TestForm : public FieldForm {
public:
    TestForm(Document& document, const WindowState& windows, Services& services)
        : FieldForm(ChildWindow::Scan, "TestForm", {4500, 4500}, "picTest", Text::OptionalFeatures, document, windows,
                    services, nullptr) {
        BoundRows rows(*Panel(), document.Image, windows.LanguageFlag, 8, 4);
        rows.AddSpin("Number", Number);
        rows.AddList("List", List, "lblOther");
        rows.AddList("Own", OwnLabel);
        auto* left = rows.MakeCheck("Left", Check);
        rows.AddPair(left, rows.MakeCheck("Right", OtherCheck));
        rows.Add("lblText", QStringLiteral("Text"), new QLineEdit(Panel()));
        rows.End();
        LoadFields();
    }
    [[nodiscard]] std::string_view HelpPage() const override { return "test.htm"; }
};

class FieldFormTest : public testing::Test {
protected:
    void SetUp() override { Show(Language::English); }
    void Show(Language language) {
        windows.LanguageFlag = language;
        for (int address = 0x100; address <= 0x104; ++address) {
            document.Image.Set(address, 1);
        }
        form = std::make_unique<TestForm>(document, windows, services.Get());
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    template<typename Control>
    Control& Find(const char* name) {
        auto* control = form->findChild<Control*>(name);
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    void TypeNumber(const char* text) {
        Find<QLineEdit>("txtNumber").setFocus();
        QTest::keyClicks(QApplication::focusWidget(), text);
    }

    FakeServices services;
    Document document;
    WindowState windows;
    std::unique_ptr<TestForm> form;
};

TEST_F(FieldFormTest, LaysThePanelOverTheButtonsWithItsTitleInTheLanguage) {
    EXPECT_EQ(form->size(), QSize(300, 300));
    EXPECT_EQ(form->windowTitle(), "Optional Features");
    const auto& panel = Find<QWidget>("picTest");
    EXPECT_EQ(panel.geometry().topLeft(), QPoint(0, 0));
    EXPECT_EQ(panel.width(), 300);
    EXPECT_GE(Find<QPushButton>("cmdClose").y(), panel.height());
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "可选功能");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "关闭(&C)");
}

TEST_F(FieldFormTest, LabelsNameTheirControls) {
    EXPECT_EQ(Find<QLabel>("lblNumber").text(), "Squelch Level");
    EXPECT_EQ(Find<QLineEdit>("txtNumber").accessibleName(), "Squelch Level");
    EXPECT_EQ(Find<UpDown>("updNumber").accessibleName(), "Squelch Level");
    EXPECT_EQ(Find<QLabel>("lblOther").text(), "Mic Sensitivity");
    EXPECT_EQ(Find<QLabel>("lblOther").buddy(), &Find<QWidget>("cboList"));
    EXPECT_EQ(Find<QLabel>("lblOwn").text(), "PTT ID");
    EXPECT_EQ(Find<BoundList>("cboOwn").accessibleName(), "PTT ID");
    EXPECT_EQ(Find<QLabel>("lblText").text(), "Text");
    EXPECT_EQ(Find<QLabel>("lblText").buddy()->accessibleName(), "Text");
}

TEST_F(FieldFormTest, APairOfChecksSharesARow) {
    const auto& left = Find<BoundCheck>("chkLeft");
    const auto& right = Find<BoundCheck>("chkRight");
    EXPECT_EQ(left.y(), right.y());
    EXPECT_GE(right.x(), left.x() + left.width());
    EXPECT_EQ(right.text(), "Battery Save");
}

TEST_F(FieldFormTest, LoadingShowsTheImageInEveryBoundControl) {
    EXPECT_EQ(Find<QLineEdit>("txtNumber").text(), "1");
    EXPECT_EQ(Find<BoundList>("cboList").currentText(), "On");
    EXPECT_EQ(Find<BoundList>("cboOwn").currentText(), "On");
    EXPECT_TRUE(Find<BoundCheck>("chkLeft").isChecked());
    EXPECT_TRUE(Find<BoundCheck>("chkRight").isChecked());
}

TEST_F(FieldFormTest, ClosingEitherWayStoresWhatIsBeingEditedAndAsksToBeUnloaded) {
    const QSignalSpy unload(form.get(), &ChildForm::UnloadRequested);
    TypeNumber("7");
    QTest::mouseClick(&Find<QPushButton>("cmdClose"), Qt::LeftButton);
    EXPECT_EQ(document.Image.At(0x100), 7);
    EXPECT_EQ(unload.count(), 1);
    TypeNumber("8");
    form->CloseFromFrame();
    EXPECT_EQ(document.Image.At(0x100), 8);
    EXPECT_EQ(unload.count(), 2);
}

TEST_F(FieldFormTest, UnloadingDropsWhatIsBeingEdited) {
    TypeNumber("7");
    form.reset();
    EXPECT_EQ(document.Image.At(0x100), 1);
}

TEST_F(FieldFormTest, HelpAsksForThePageOfTheWindowInTheLanguage) {
    QTest::mouseClick(&Find<QPushButton>("cmdHelp"), Qt::LeftButton);
    Show(Language::Chinese);
    QTest::mouseClick(&Find<QPushButton>("cmdHelp"), Qt::LeftButton);
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_NE(services.help.Topics()[0].find("Zelvor_e.chm::/html/test.htm"), std::string::npos);
    EXPECT_NE(services.help.Topics()[1].find("Zelvor_c.chm::/html/test.htm"), std::string::npos);
}

} // namespace
} // namespace zelvor
