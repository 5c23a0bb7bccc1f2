#pragma once

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>

#include "platform/Toolkit.h"
#include "service/Lamp.h"
#include "service/ServiceRig.h"
#include "service/TestForm.h"
#include "service/TuningForm.h"

namespace zelvor {

/// The windows of the service mode over a radio that answers, on virtual time; the document is of model 4618, VHF.
class ServiceWindowTest : public testing::Test {
protected:
    ServiceWindowTest() { SetModel(1, 0xF8); }

    /// The two model bytes of the document.
    void SetModel(std::uint8_t first, std::uint8_t second) {
        rig.document.Image.SetIndex(982, first);
        rig.document.Image.SetIndex(998, second);
    }

    template<typename Control>
    static Control& In(const QWidget& form, const QString& name) {
        auto* control = form.findChild<Control*>(name);
        if (control == nullptr) {
            ADD_FAILURE() << "no control " << FromQString(name);
            static Control none;
            return none;
        }
        return *control;
    }

    static void ShowActive(QWidget& form) {
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    static void Click(const QWidget& form, const char* button) {
        QTest::mouseClick(&In<QPushButton>(form, button), Qt::LeftButton);
    }
    static void Press(QWidget& control, Qt::Key key, int times = 1) {
        control.setFocus();
        ASSERT_TRUE(control.hasFocus());
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(&control, key);
        }
    }
    /// As by the frame's button.
    static void CloseByFrame(const QWidget& form) { form.windowHandle()->close(); }
    /// Lets a window that was closed take leave of the radio, also past a prompt or two.
    void LetLeave() { rig.clock.Advance(1000); }
    /// Lets what has closed go away.
    static void RemoveClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    static std::string TextOf(const QWidget& form, const QString& name) {
        const auto* control = form.findChild<QWidget*>(name);
        if (control == nullptr) {
            return "no control " + FromQString(name);
        }
        const QVariant title = control->property("title");
        return FromQString(title.isValid() ? title.toString() : control->property("text").toString());
    }
    /// The picture of a lamp, or "-" for a dark one.
    static std::string LampOf(const QWidget& form, const char* name) {
        const auto* lamp = form.findChild<Lamp*>(name);
        if (lamp == nullptr) {
            return std::string("no lamp ") + name;
        }
        return lamp->IsLit() ? std::to_string(lamp->Picture()) : "-";
    }

    /// Whatever takes the focus, and every lamp, is named for assistive technology.
    static void ExpectSpokenNames(const QWidget& form) {
        for (QWidget* control : form.findChildren<QWidget*>()) {
            const QString name = control->objectName();
            const bool isLamp = name.startsWith("Pic");
            if (name.isEmpty() || name.startsWith("qt_") || (control->focusPolicy() == Qt::NoFocus && !isLamp)) {
                continue;
            }
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
                << FromQString(name);
        }
    }

    ServiceRig rig;
};

/// Test mode with three test channels: 1, 2 and 5.
class TestFormTest : public ServiceWindowTest {
protected:
    TestFormTest() {
        for (int channel = 1; channel <= 16; ++channel) {
            Offer(channel, "0", "0");
        }
        Offer(1, "145.12500", "155.00000");
        Offer(2, "136.05000", "136.10000");
        Offer(5, "173.95000", "173.90000");
    }
    void TearDown() override { delete form; }

    void Offer(int channel, std::string receive, std::string transmit) {
        rig.service.TestFrequencyText[static_cast<std::size_t>(channel - 1)] = {std::move(receive),
                                                                                std::move(transmit)};
    }
    void Load(Language language = Language::English) {
        rig.language = language;
        form = new TestForm(rig.document, rig.link, rig.service, rig.language, rig.services);
        unloaded = std::make_unique<QSignalSpy>(form, &TestForm::Unloaded);
        ShowActive(*form);
    }
    /// Loads and lets channel and signalling go out.
    void Open(Language language = Language::English) {
        Load(language);
        rig.clock.Advance(100);
        rig.TakeSent();
    }

    QComboBox& Channels() { return In<QComboBox>(*form, "ComChannel"); }
    QComboBox& Signallings() { return In<QComboBox>(*form, "ComSignal"); }
    QListWidget& Items() { return In<QListWidget>(*form, "LvwTuneSel"); }
    void ClickItem(int tuneItem) {
        const QRect row = Items().visualItemRect(Items().item(tuneItem - 1));
        QTest::mouseClick(Items().viewport(), Qt::LeftButton, {}, row.center());
    }
    void PressPtt() {
        Click(*form, "CmdPTT");
        rig.clock.Advance(50);
    }
    /// Receive and transmit lamp of the channel, of the signalling, and PTT.
    std::string Lamps() {
        QStringList lamps;
        for (const char* name : {"PicChannelRx", "PicChannelTx", "PicSignalRx", "PicSignalTx", "PicPtt"}) {
            lamps.append(ToQString(LampOf(*form, name)));
        }
        return FromQString(lamps.join(' '));
    }
    std::string WidthLamps() { return LampOf(*form, "PicWide") + " " + LampOf(*form, "PicNarrow"); }
    static constexpr const char* IdleLamps = "101 - 101 - 101";
    static constexpr const char* TransmitLamps = "- 102 - 102 102";

    TuningForm* Tuning() { return form->findChild<TuningForm*>(); }
    void ExpectGone() {
        EXPECT_EQ(unloaded->count(), 1);
        RemoveClosed();
        EXPECT_TRUE(form.isNull());
        EXPECT_FALSE(rig.IsPortOpen());
    }

    QPointer<TestForm> form;
    std::unique_ptr<QSignalSpy> unloaded;
};

/// The tuning dialogs by themselves.
class TuningFormTest : public ServiceWindowTest {
protected:
    TuningFormTest() { rig.service.TestFrequencyText[0] = {"155.05000", "155.10000"}; }
    void TearDown() override { delete form; }

    void Put(int imageIndex, std::uint8_t value) { rig.document.Image.SetIndex(imageIndex, value); }
    /// The radio's RF High Power: 100 at the test frequency; 90, 95, 105, 110, 120.
    void PutHighPower() {
        rig.service.Values.TestPointHighPower = 100;
        Put(86, 90);
        Put(70, 95);
        Put(54, 105);
        Put(38, 110);
        Put(22, 120);
    }
    /// The radio's Sensitivity: 40 at the test frequency; 41, 42, 43.
    void PutSensitivity() {
        rig.service.Values.TestPointSensitivity = 40;
        Put(502, 41);
        Put(486, 42);
        Put(470, 43);
    }
    void Open(int tuneItem, bool narrow = false, Language language = Language::English) {
        rig.language = language;
        rig.service.TuneItem = tuneItem;
        rig.service.NarrowMode = narrow;
        form = MakeTuningForm(rig.document, rig.link, rig.service, rig.language, rig.services, nullptr);
        unloaded = std::make_unique<QSignalSpy>(form, &TuningForm::Unloaded);
        ShowActive(*form);
    }
    void OpenHighPower() {
        PutHighPower();
        Open(1);
    }
    void OpenSensitivity() {
        PutSensitivity();
        Open(8);
    }
    /// MSK Fine Deviation, narrow: 60.
    void OpenOneValue() {
        Put(646, 60);
        Open(11, true);
    }
    /// VOX1: 70.
    void OpenMeasured() {
        Put(742, 70);
        Open(13);
    }

    static QString Of(const char* name, int page) { return QStringLiteral("%1(%2)").arg(name).arg(page); }
    QSlider& Slider(int page = 0) { return In<QSlider>(*form, Of("SldValue", page)); }
    QLineEdit& Box(int page = 0) { return In<QLineEdit>(*form, Of("txtTuneValue", page)); }
    QTabWidget& Pages() { return In<QTabWidget>(*form, "SSTabTune"); }
    void ClickPage(int page) {
        QTabBar* tabs = Pages().tabBar();
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(page).center());
    }
    void ClickSpin(int page, bool up) {
        auto* spin = form->findChild<QWidget*>(Of("updValue", page));
        ASSERT_NE(spin, nullptr);
        QTest::mouseClick(spin, Qt::LeftButton, {},
                          {spin->width() / 2, up ? spin->height() / 4 : spin->height() * 3 / 4});
    }
    /// Lets what was asked for get to the radio.
    void Settle() { rig.clock.Advance(100); }

    /// The text of every page.
    std::string Shown() {
        QStringList shown;
        for (int page = 0; page < Pages().count(); ++page) {
            shown.append(Box(page).text());
        }
        return FromQString(shown.join(' '));
    }
    void ExpectInStep(int page, int value) {
        EXPECT_EQ(Slider(page).value(), value) << page;
        EXPECT_EQ(FromQString(Box(page).text()), std::to_string(value)) << page;
        EXPECT_EQ(In<QProgressBar>(*form, Of("PrgValue", page)).value(), value) << page;
        EXPECT_EQ(In<QWidget>(*form, Of("updValue", page)).property("value").toInt(), value) << page;
    }
    void ExpectGone() {
        EXPECT_EQ(unloaded->count(), 1);
        RemoveClosed();
        EXPECT_TRUE(form.isNull());
        EXPECT_FALSE(rig.IsPortOpen());
        EXPECT_FALSE(rig.service.TestAborted);
    }

    QPointer<TuningForm> form;
    std::unique_ptr<QSignalSpy> unloaded;
};

} // namespace zelvor
