#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <algorithm>
#include <map>

#include "ShellTest.h"
#include "link/ScriptedRadio.h"
#include "service/DJJInfoForm.h"
#include "service/TestForm.h"

namespace zelvor {
namespace {

/// The main window with a radio in service mode behind its ports; every command not told otherwise is acknowledged.
class ServiceCommandsTest : public ShellTest {
protected:
    void SetUp() override {
        fakes.ports.OnMake = [this](FakeSerialPort& port) {
            port.OnSend = [this, &port](std::span<const std::uint8_t> command) {
                const std::string hex = Hex(command);
                sent.push_back(hex);
                const Bytes reply = ReplyTo(hex);
                fakes.clock.At(2, [this, &port, reply] {
                    if (!reply.empty() && fakes.ports.Port("MSComm1") == &port && port.IsOpen()) {
                        port.Deliver(reply);
                    }
                });
            };
        };
        OpenMainWindow();
    }

    [[nodiscard]] Bytes ReplyTo(const std::string& command) const {
        if (silent) {
            return {};
        }
        if (command == "02") {
            return {0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF};
        }
        if (command == "4E 52 4B") {
            Bytes record(34, '-');
            record[13] = 'Z';
            for (std::size_t i = 0; i < 8; ++i) {
                record[17 + i] = static_cast<std::uint8_t>('1' + i);
            }
            return record;
        }
        if (command == "50") {
            return Bytes(10, 0x20);
        }
        if (command == "05") {
            return Bytes(62, 0x11);
        }
        if (command.starts_with("10 ")) {
            Bytes record;
            const int channel = std::stoi(command.substr(3), nullptr, 16);
            for (int i = 0; i < 8; ++i) {
                record.push_back(document.Image.At(0x280 + (channel - 1) * 8 + i));
            }
            return record;
        }
        return {0x06};
    }

    [[nodiscard]] QString Text(const char* label) const { return Find<QLabel>(label)->text(); }

    std::vector<std::string> sent;
    bool silent = false;
};

TEST_F(ServiceCommandsTest, RadioInformationShowsTheRadiosSerialNumberOverADisabledMainWindow) {
    Choose("MnuToolRadioInformation");
    EXPECT_TRUE(window->isEnabled());
    fakes.clock.Advance(500);
    ASSERT_NE(Find<DJJInfoForm>("DJJInfoForm"), nullptr);
    EXPECT_TRUE(Find<DJJInfoForm>("DJJInfoForm")->isVisible());
    EXPECT_TRUE(Find<DJJInfoForm>("DJJInfoForm")->isEnabled());
    EXPECT_FALSE(window->isEnabled());
    EXPECT_EQ(Text("LabSN"), " Z 12345678");
    EXPECT_EQ(Text("LabModel"), "4618");
    EXPECT_EQ(Text("LabFreq"), "VHF: 136-174 MHz(M)");
    EXPECT_EQ(service.RadioInfoRecord[0], '-');
    EXPECT_EQ(service.RadioInfoRecord[33], '-');
}

TEST_F(ServiceCommandsTest, ClosingTheInformationEnablesTheMainWindowWhicheverWay) {
    for (const bool byButton : {true, false}) {
        Choose("MnuToolRadioInformation");
        fakes.clock.Advance(500);
        if (byButton) {
            QTest::mouseClick(Find<DJJInfoForm>("DJJInfoForm")->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
        } else {
            Find<DJJInfoForm>("DJJInfoForm")->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(window->isEnabled());
        EXPECT_EQ(Find<DJJInfoForm>("DJJInfoForm"), nullptr);
    }
}

TEST_F(ServiceCommandsTest, APromptBehindAChangeOfTheLanguageIsInTheNewOne) {
    silent = true;
    Choose("MnuToolRadioInformation");
    fakes.clock.Advance(120); // the first command is out
    ASSERT_EQ(sent.size(), 1U);
    ChooseDialog("MnuSetupLanguageFileSetup", [](QWidget& dialog) {
        dialog.findChild<QComboBox*>("ComLanguage")->setCurrentIndex(1);
        Click(dialog, "CmdOK");
    });
    Message prompt = ConnectionPrompt();
    prompt.title = "错误";
    prompt.text = "检查所有连接及通信端口设置。";
    fakes.messages.Expect(prompt, MessageAnswer::Cancel);
    fakes.clock.Advance(1000);
    EXPECT_EQ(fakes.messages.Pending(), 0);
}

TEST_F(ServiceCommandsTest, ASilentRadioPromptsAndCancelLeavesEverythingAsItWas) {
    silent = true;
    fakes.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Choose("MnuToolRadioInformation");
    fakes.clock.Advance(1000);
    EXPECT_EQ(fakes.messages.Pending(), 0);
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(Find<DJJInfoForm>("DJJInfoForm"), nullptr);
    EXPECT_EQ(sent, std::vector<std::string>{"50 52 4F 47 52 41 4D"});
}

TEST_F(ServiceCommandsTest, TestModeOpensOverADisabledMainWindowAndEndsWithEnd) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    auto* form = Find<TestForm>("TestForm");
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(form->isEnabled());
    EXPECT_FALSE(window->isEnabled());
    sent.clear();
    QTest::mouseClick(form->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
    fakes.clock.Advance(200);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(sent, (std::vector<std::string>{"11 01", "45"}));
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(Find<TestForm>("TestForm"), nullptr);
}

TEST_F(ServiceCommandsTest, TheMainWindowDoesNotCloseWhileTestModeIsOpen) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    fakes.messages.Expect({"Warning", "Test Mode is still open. Close it before you leave Zelvor.",
                           MessageIcon::Exclamation, MessageButtons::Ok, MessageAnswer::Ok},
                          MessageAnswer::Ok);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(fakes.messages.Pending(), 0);
    EXPECT_TRUE(Find<TestForm>("TestForm")->isEnabled());
}

TEST_F(ServiceCommandsTest, TheMainWindowDoesNotCloseUntilTestModeHasTakenLeaveOfTheRadio) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    sent.clear();
    Find<TestForm>("TestForm")->close();
    fakes.clock.Advance(20); // the radio has answered, and End is due 80 ms behind
    fakes.messages.Expect({"Warning", "Test Mode is still open. Close it before you leave Zelvor.",
                           MessageIcon::Exclamation, MessageButtons::Ok, MessageAnswer::Ok},
                          MessageAnswer::Ok);
    EXPECT_FALSE(window->close());
    EXPECT_FALSE(window->isEnabled());
    EXPECT_EQ(sent, std::vector<std::string>{"11 01"});
    fakes.clock.Advance(200);
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(sent, (std::vector<std::string>{"11 01", "45"}));
    fakes.messages.Expect({"Confirmation", "Do you wish to exit Zelvor program？", MessageIcon::Question,
                           MessageButtons::YesNo, MessageAnswer::Yes},
                          MessageAnswer::Yes);
    fakes.messages.Expect({"Zelvor", "Do you wish to save the changes in \"Zelvor.DAT\" ?", MessageIcon::Exclamation,
                           MessageButtons::YesNoCancel, MessageAnswer::Yes},
                          MessageAnswer::No);
    EXPECT_TRUE(window->close());
}

TEST_F(ServiceCommandsTest, DestroyingTheMainWindowWhileTestModeTakesLeaveIsHarmless) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    Find<TestForm>("TestForm")->close();
    fakes.clock.Advance(20);
    sent.clear();
    window.reset();
    fakes.clock.Advance(1000);
    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(fakes.ports.Port("MSComm1"), nullptr);
}

TEST_F(ServiceCommandsTest, TheMainWindowDoesNotCloseWhileRadioInformationIsOpen) {
    windows.LanguageFlag = Language::Chinese;
    Choose("MnuToolRadioInformation");
    fakes.clock.Advance(500);
    ASSERT_NE(Find<DJJInfoForm>("DJJInfoForm"), nullptr);
    fakes.messages.Expect({"警告", "对讲机信息窗口仍未关闭。请先将其关闭，再退出 Zelvor。", MessageIcon::Exclamation,
                           MessageButtons::Ok, MessageAnswer::Ok},
                          MessageAnswer::Ok);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(fakes.messages.Pending(), 0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Find<DJJInfoForm>("DJJInfoForm")));
}

TEST_F(ServiceCommandsTest, AClosedWindowDoesNotKeepTheProgramOpen) {
    Choose("MnuToolRadioInformation");
    fakes.clock.Advance(500);
    Find<DJJInfoForm>("DJJInfoForm")->close();
    fakes.messages.Expect({"Confirmation", "Do you wish to exit Zelvor program？", MessageIcon::Question,
                           MessageButtons::YesNo, MessageAnswer::Yes},
                          MessageAnswer::No);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(fakes.messages.Pending(), 0);
}

TEST_F(ServiceCommandsTest, TheStatusBarShowsHowFarAnExchangeIs) {
    EXPECT_EQ(Text("LabExchange"), "");
    Choose("MnuToolRadioInformation");
    EXPECT_EQ(Text("LabExchange"), "Reading radio information: 0 %");
    fakes.clock.Advance(105);
    EXPECT_EQ(Text("LabExchange"), "Reading radio information: 25 %"); // 2 of 8
    fakes.clock.Advance(400);
    EXPECT_EQ(Text("LabExchange"), "");
    Find<DJJInfoForm>("DJJInfoForm")->close();
    windows.LanguageFlag = Language::Chinese;
    Choose("MnuProgramTestMode");
    EXPECT_EQ(Text("LabExchange"), "正在进入测试模式：0 %");
    fakes.clock.Advance(100 + 2 + 9 * 3);
    EXPECT_EQ(Text("LabExchange"), "正在进入测试模式：27 %"); // 10 of 37
    fakes.clock.Advance(400);
    EXPECT_EQ(Text("LabExchange"), "");
    EXPECT_EQ(Text("StatusBar1(1)"), "COM1");
}

TEST_F(ServiceCommandsTest, NothingIsShownOfAnExchangeThatTheUserHasGivenUp) {
    silent = true;
    fakes.messages.Expect(ConnectionPrompt(), [this] {
        EXPECT_EQ(Text("LabExchange"), "Entering test mode: 0 %");
        return MessageAnswer::Cancel;
    });
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    EXPECT_EQ(Text("LabExchange"), "");
}

/// A command that ends an exchange; its dialog or question is left at once.
struct EndingCommand {
    const char* entry;
    const char* cancelButton; // of its dialog
};

void PrintTo(const EndingCommand& value, std::ostream* out) {
    *out << value.entry;
}

class EndingCommandTest : public ServiceCommandsTest, public testing::WithParamInterface<EndingCommand> {
protected:
    void LeaveCommand() {
        if (GetParam().cancelButton == nullptr) {
            Choose(GetParam().entry);
        } else {
            ChooseDialog(GetParam().entry, [](QWidget& dialog) { Click(dialog, GetParam().cancelButton); });
        }
    }
};

TEST_P(EndingCommandTest, EndsTheEntryIntoTestModeAndSaysSo) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(120);
    if (std::string(GetParam().entry) == "MnuFileNew") {
        fakes.messages.Expect({"Warning", "All data will be cleared.", MessageIcon::Exclamation,
                               MessageButtons::OkCancel, MessageAnswer::Cancel},
                              MessageAnswer::Ok);
    }
    if (std::string(GetParam().entry) == "MnuFileOpen") {
        fakes.files.ExpectOpen({"", "QPK Data Files(*.dat)|*.dat", ""}, std::nullopt);
    }
    LeaveCommand();
    EXPECT_EQ(Text("LabExchange"), "Test mode was not entered: another command was chosen.");
    sent.clear();
    fakes.clock.Advance(2000);
    QTest::qWait(100); // a window that waited for the dialog would come now
    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(Find<TestForm>("TestForm"), nullptr);
    EXPECT_TRUE(window->isEnabled());
    fakes.clock.Advance(12'999);
    EXPECT_EQ(Text("LabExchange"), "Test mode was not entered: another command was chosen.");
    fakes.clock.Advance(1);
    EXPECT_EQ(Text("LabExchange"), "");
}

INSTANTIATE_TEST_SUITE_P(Commands, EndingCommandTest,
                         testing::Values(EndingCommand{"MnuFileNew", nullptr}, EndingCommand{"MnuFileOpen", nullptr},
                                         EndingCommand{"MnuModelInformation", "cmdCancel"},
                                         EndingCommand{"MnuProgramRead", "cmdCancel"},
                                         EndingCommand{"MnuProgramWrite", "cmdCancel"}));

TEST_F(ServiceCommandsTest, TheChoiceOfThePortEndsAnExchange) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(110);
    ChooseDialog("MnuSetupCommunicationPort", [](QWidget& dialog) { Click(dialog, "cmdCancel"); });
    sent.clear();
    fakes.clock.Advance(2000);
    QTest::qWait(100);
    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(Find<TestForm>("TestForm"), nullptr);
}

TEST_F(ServiceCommandsTest, TestModeDoesNotOpenOnADocumentThatWasOpenedMeanwhile) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(150); // the radio tells its test frequencies
    const std::string path = "/nowhere/Fleet.dat";
    fakes.store.Put(path, "RQ6152" + std::string(10, '\xFF') + std::string(1024, '\x5A'));
    fakes.files.ExpectOpen({"", "QPK Data Files(*.dat)|*.dat", ""}, path);
    Choose("MnuFileOpen");
    EXPECT_EQ(document.Image.At(0x280), 0x5A);
    fakes.clock.Advance(1000);
    EXPECT_EQ(Text("LabExchange"), "Test mode was not entered: another command was chosen.");
    QTest::qWait(200);
    EXPECT_EQ(Find<TestForm>("TestForm"), nullptr);
    EXPECT_TRUE(window->isEnabled());
}

TEST_F(ServiceCommandsTest, AWindowThatWaitsForADialogIsAnnouncedAndDroppedForAnotherDocument) {
    Choose("MnuProgramTestMode");
    ChooseDialog("MnuHelpAbout", [this](QWidget& dialog) {
        fakes.clock.Advance(1000); // the radio has answered everything
        EXPECT_EQ(Text("LabExchange"), "Entering test mode: 100 %");
        fakes.files.ExpectOpen({"", "QPK Data Files(*.dat)|*.dat", ""}, std::nullopt);
        Entry("MnuFileOpen")->trigger();
        EXPECT_EQ(Text("LabExchange"), "Test mode was not entered: another command was chosen.");
        dialog.close();
    });
    QTest::qWait(200);
    EXPECT_EQ(Find<TestForm>("TestForm"), nullptr);
    EXPECT_TRUE(window->isEnabled());
}

TEST_F(ServiceCommandsTest, TheSameCommandAgainLetsTheExchangeGoOn) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(110);
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    EXPECT_NE(Find<TestForm>("TestForm"), nullptr);
    EXPECT_EQ(std::count(sent.begin(), sent.end(), "54 55 4E 49 4E 47 20"), 1);
}

TEST_F(ServiceCommandsTest, RadioInformationTakesThePlaceOfAnEntryIntoTestMode) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(110);
    Choose("MnuToolRadioInformation");
    EXPECT_EQ(Text("LabExchange"), "Reading radio information: 0 %");
    fakes.clock.Advance(1000);
    EXPECT_NE(Find<DJJInfoForm>("DJJInfoForm"), nullptr);
    EXPECT_EQ(Find<TestForm>("TestForm"), nullptr);
}

TEST_F(ServiceCommandsTest, ADialogThatWasOpenedMeanwhileComesFirst) {
    Choose("MnuProgramTestMode");
    ChooseDialog("MnuHelpAbout", [this](QWidget& dialog) {
        fakes.clock.Advance(1000);
        EXPECT_TRUE(dialog.isEnabled());
        EXPECT_TRUE(window->isEnabled());
        EXPECT_EQ(Find<TestForm>("TestForm"), nullptr);
        dialog.close();
    });
    ASSERT_TRUE(QTest::qWaitFor([this] { return Find<TestForm>("TestForm") != nullptr; }));
    EXPECT_FALSE(window->isEnabled());
    EXPECT_TRUE(Find<TestForm>("TestForm")->isEnabled());
}

TEST_F(ServiceCommandsTest, DestroyingTheMainWindowWithTestModeOpenIsHarmless) {
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    window.reset();
    sent.clear();
    fakes.clock.Advance(1000);
    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(fakes.ports.Port("MSComm1"), nullptr);
}

TEST_F(ServiceCommandsTest, ATransferEndsAnExchangeThatIsUnderWay) {
    Choose("MnuToolRadioInformation");
    fakes.clock.Advance(101);
    ChooseDialog("MnuProgramRead", [](QWidget& dialog) { Click(dialog, "cmdCancel"); });
    sent.clear();
    fakes.clock.Advance(1000);
    EXPECT_TRUE(sent.empty());
    EXPECT_TRUE(window->isEnabled());
}

TEST_F(ServiceCommandsTest, TestModeMarksTheSeventhEntryOfTheWindowList) {
    Choose("MnuEditTestFrequency");
    Choose("MnuEditScanInformation");
    EXPECT_FALSE(Entry("MnuWindowSub(6)")->isChecked());
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Find<TestForm>("TestForm"); }));
    EXPECT_TRUE(Entry("MnuWindowSub(6)")->isChecked());
    EXPECT_FALSE(Entry("MnuWindowSub(3)")->isChecked());
}

TEST_F(ServiceCommandsTest, AShortRecordKeepsTheRest) {
    window->GetDJJInfo(std::string(34, 'x'));
    window->GetDJJInfo("ab");
    EXPECT_EQ(service.RadioInfoRecord[0], 'a');
    EXPECT_EQ(service.RadioInfoRecord[1], 'b');
    EXPECT_EQ(service.RadioInfoRecord[2], 'x');
    window->GetDJJInfo(std::string(40, 'y'));
    EXPECT_EQ(service.RadioInfoRecord[33], 'y');
}

TEST_F(ServiceCommandsTest, TheWindowOnTopStaysOnTopWithTheKeyboardWhereItWas) {
    Choose("MnuEditTestFrequency");
    Choose("MnuEditScanInformation");
    auto* field = Find<QWidget>("txtDropoutDelayTime");
    field->setFocus();
    Choose("MnuProgramTestMode");
    fakes.clock.Advance(1000);
    auto* form = Find<TestForm>("TestForm");
    ASSERT_NE(form, nullptr);
    QTest::mouseClick(form->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
    fakes.clock.Advance(200);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(window->findChild<QMdiArea*>()->activeSubWindow()->widget(), Child("ScanForm"));
}

} // namespace
} // namespace zelvor
