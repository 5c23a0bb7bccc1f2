#include "link/ComForm.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <algorithm>

#include "link/LinkFormRig.h"

namespace zelvor {
namespace {

class ComFormTest : public testing::Test {
protected:
    ComForm& Load() {
        form = std::make_unique<ComForm>(link, language_, fakes.Get());
        chosen = std::make_unique<QSignalSpy>(form.get(), &ComForm::PortChosen);
        return *form;
    }
    [[nodiscard]] QRadioButton& OptPort(int index) const {
        return Find<QRadioButton>(*form, ("optPort(" + std::to_string(index) + ")").c_str());
    }

    LinkState link;
    Language language_ = Language::English;
    FakeServices fakes;
    std::unique_ptr<ComForm> form;
    std::unique_ptr<QSignalSpy> chosen;
};

TEST_F(ComFormTest, HasItsTextsInEnglish) {
    Load();
    EXPECT_EQ(form->objectName(), "ComForm");
    EXPECT_EQ(FromQString(form->windowTitle()), "Communication Port");
    EXPECT_EQ(FromQString(Find<QGroupBox>(*form, "frmPort").title()), "Communication Port");
    for (int n = 1; n <= 20; ++n) {
        EXPECT_EQ(FromQString(OptPort(n - 1).text()), "COM" + std::to_string(n));
    }
    EXPECT_EQ(CaptionOf(*form, "cmdOK"), "&OK");
    EXPECT_EQ(CaptionOf(*form, "cmdCancel"), "&Cancel");
    EXPECT_EQ(CaptionOf(*form, "cmdHelp"), "&Help");
}

TEST_F(ComFormTest, HasItsTextsInChinese) {
    language_ = Language::Chinese;
    Load();
    EXPECT_EQ(FromQString(form->windowTitle()), "通信端口");
    EXPECT_EQ(FromQString(Find<QGroupBox>(*form, "frmPort").title()), "通信端口");
    for (int n = 1; n <= 20; ++n) {
        EXPECT_EQ(FromQString(OptPort(n - 1).text()), "通信口" + std::to_string(n));
    }
    EXPECT_EQ(CaptionOf(*form, "cmdOK"), "确定(&O)");
    EXPECT_EQ(CaptionOf(*form, "cmdCancel"), "取消(&C)");
    EXPECT_EQ(CaptionOf(*form, "cmdHelp"), "帮助(&H)");
}

TEST_F(ComFormTest, ProbesThePortsInOrderForTwoHundredMillisecondsEach) {
    for (int n = 4; n <= 20; ++n) {
        fakes.ports.Missing(n);
    }
    Load();
    EXPECT_EQ(fakes.clock.Sleeps(), (std::vector<int>{200, 200, 200}));
    const std::vector<std::string>& log = fakes.ports.Record("MSComm1").log;
    std::vector<std::string> numbers;
    for (const std::string& line : log) {
        if (line.starts_with("number")) {
            numbers.push_back(line);
        }
    }
    ASSERT_EQ(numbers.size(), 20U);
    for (std::size_t n = 1; n <= 20; ++n) {
        EXPECT_EQ(numbers[n - 1], "number " + std::to_string(n));
    }
}

TEST_F(ComFormTest, NumbersThePortsAnewBeforeItShowsThem) {
    int numberings = 0;
    fakes.ports.OnMake = [&](FakeSerialPort& port) {
        port.OnSend = [&](std::span<const std::uint8_t>) { numberings = fakes.ports.Numberings(); };
    };
    Load();
    EXPECT_EQ(numberings, 1);
    EXPECT_EQ(fakes.ports.Numberings(), 1);
}

TEST_F(ComFormTest, SendsItsBytesAtNineteenTwoHundredWithOneStopBit) {
    Load();
    const std::vector<std::string>& log = fakes.ports.Record("MSComm1").log;
    EXPECT_EQ(std::count(log.begin(), log.end(), "settings 19200,N,8,1"), 20);
    EXPECT_EQ(std::count(log.begin(), log.end(), "send 41 54 49 31 0D"), 20);
}

TEST_F(ComFormTest, EnablesExactlyThePortsThatOpen) {
    fakes.ports.Missing(2);
    fakes.ports.InUse(5);
    Load();
    for (int n = 1; n <= 20; ++n) {
        EXPECT_EQ(OptPort(n - 1).isEnabled(), n != 2 && n != 5) << n;
    }
    EXPECT_TRUE(fakes.messages.Shown().empty());
}

TEST_F(ComFormTest, OfAMachineWithNoPortsShowsTwentyDisabledButtonsWithTheCurrentOneSet) {
    fakes.ports.AllMissing();
    link.CommPortNumber = 7;
    Load();
    for (int index = 0; index < 20; ++index) {
        EXPECT_FALSE(OptPort(index).isEnabled()) << index;
        EXPECT_EQ(OptPort(index).isChecked(), index == 6) << index;
    }
    EXPECT_TRUE(fakes.clock.Sleeps().empty());
}

TEST_F(ComFormTest, StartsWithPortOneAtEveryStartOfTheProgram) {
    EXPECT_EQ(LinkState().CommPortNumber, 1);
    Load();
    EXPECT_TRUE(OptPort(0).isChecked());
}

TEST_F(ComFormTest, OkTakesTheSetButtonAndSaysSo) {
    ShowActive(Load());
    QTest::mouseClick(&OptPort(11), Qt::LeftButton);
    EXPECT_EQ(link.CommPortNumber, 1);
    Click(*form, "cmdOK");
    EXPECT_EQ(link.CommPortNumber, 12);
    EXPECT_EQ(chosen->count(), 1);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ComFormTest, OkTakesADisabledButtonThatIsSet) {
    fakes.ports.AllMissing();
    link.CommPortNumber = 3;
    ShowActive(Load());
    Click(*form, "cmdOK");
    EXPECT_EQ(link.CommPortNumber, 3);
}

TEST_F(ComFormTest, OkWithNoButtonSetGivesTwentyOne) {
    link.CommPortNumber = 21;
    ShowActive(Load());
    for (int index = 0; index < 20; ++index) {
        EXPECT_FALSE(OptPort(index).isChecked());
    }
    link.CommPortNumber = 1;
    Click(*form, "cmdOK");
    EXPECT_EQ(link.CommPortNumber, 21);
    EXPECT_EQ(chosen->count(), 1);
}

TEST_F(ComFormTest, EnterIsOk) {
    ShowActive(Load());
    QTest::mouseClick(&OptPort(4), Qt::LeftButton);
    QTest::keyClick(&OptPort(4), Qt::Key_Return);
    EXPECT_EQ(link.CommPortNumber, 5);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ComFormTest, CancelChangesNothing) {
    ShowActive(Load());
    QTest::mouseClick(&OptPort(4), Qt::LeftButton);
    Click(*form, "cmdCancel");
    EXPECT_EQ(link.CommPortNumber, 1);
    EXPECT_EQ(chosen->count(), 0);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ComFormTest, EscapeIsCancel) {
    ShowActive(Load());
    QTest::mouseClick(&OptPort(4), Qt::LeftButton);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(link.CommPortNumber, 1);
    EXPECT_EQ(chosen->count(), 0);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ComFormTest, LeavesNoPortOpen) {
    ShowActive(Load());
    EXPECT_FALSE(fakes.ports.Port("MSComm1")->IsOpen());
    static_cast<void>(fakes.ports.Port("MSComm1")->Open());
    Click(*form, "cmdCancel");
    EXPECT_FALSE(fakes.ports.Port("MSComm1")->IsOpen());
}

TEST_F(ComFormTest, ShowsTheDeviceBehindANumberInItsToolTip) {
    fakes.ports.SetDescription(1, {"/dev/ttyUSB0", "FT232R USB UART"});
    fakes.ports.SetDescription(2, {"/dev/ttyS0", ""});
    fakes.ports.Missing(3);
    Load();
    EXPECT_EQ(FromQString(OptPort(0).toolTip()), "/dev/ttyUSB0 - FT232R USB UART");
    EXPECT_EQ(FromQString(OptPort(1).toolTip()), "/dev/ttyS0");
    EXPECT_EQ(FromQString(OptPort(2).toolTip()), "No device");
}

TEST_F(ComFormTest, SaysInChineseThatThereIsNoDevice) {
    language_ = Language::Chinese;
    fakes.ports.Missing(3);
    Load();
    EXPECT_EQ(FromQString(OptPort(2).toolTip()), "无设备");
}

TEST_F(ComFormTest, ShowsAWaitCursorWhileItProbes) {
    int waiting = 0;
    fakes.ports.OnMake = [&](FakeSerialPort& port) {
        port.OnSend = [&](std::span<const std::uint8_t>) {
            waiting +=
                QGuiApplication::overrideCursor() && QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
        };
    };
    Load();
    EXPECT_EQ(waiting, 20);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ComFormTest, HelpOpensItsTopic) {
    ShowActive(Load());
    Click(*form, "cmdHelp");
    QTest::keyClick(form.get(), Qt::Key_F1);
    const std::string topic = ProgramFolder() + "\\Zelvor_e.chm::/html/commport.htm";
    EXPECT_EQ(fakes.help.Topics(), (std::vector<std::string>{topic, topic}));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(ComFormTest, HelpOpensItsTopicInChinese) {
    language_ = Language::Chinese;
    ShowActive(Load());
    Click(*form, "cmdHelp");
    EXPECT_EQ(fakes.help.Topics(), std::vector<std::string>{ProgramFolder() + "\\Zelvor_c.chm::/html/commport.htm"});
}

} // namespace
} // namespace zelvor
