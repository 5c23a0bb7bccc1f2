#include "link/ConnectForm.h"

#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTimer>

#include "data/Document.h"
#include "link/EngineRig.h"
#include "link/LinkFormRig.h"

namespace zelvor {
namespace {

class ConnectFormTest : public testing::Test {
protected:
    ConnectFormTest() {
        fakes.ports.OnMake = [this](FakeSerialPort& port) { radio.Attach(port); };
        document.Image.Set(0x1BD, 0x01);
        document.Image.Set(0x1BE, 0xF8);
    }
    ConnectForm& Load(TransferDirection direction) {
        form = std::make_unique<ConnectForm>(document, link, language_, fakes.Get(), direction);
        QObject::connect(form.get(), &ConnectForm::ReadCompleted, [this] { Note("read completed"); });
        QObject::connect(form.get(), &ConnectForm::WriteCompleted, [this] { Note("write completed"); });
        QObject::connect(form.get(), &ConnectForm::Unloaded,
                         [this](bool cancelled) { Note(cancelled ? "unloaded by cancel" : "unloaded"); });
        return *form;
    }
    void Note(const std::string& what) { notes.push_back(what + (form->isVisible() ? ", visible" : ", hidden")); }
    [[nodiscard]] QProgressBar& Bar() const { return Find<QProgressBar>(*form, "PrgValue"); }
    [[nodiscard]] std::string Status() const { return FromQString(Find<QLabel>(*form, "labStatus").text()); }
    [[nodiscard]] bool IsEnabled(const char* button) const { return Find<QPushButton>(*form, button).isEnabled(); }

    Document document;
    LinkState link;
    Language language_ = Language::English;
    FakeServices fakes;
    ScriptedRadio radio{fakes.clock, fakes.ports};
    std::unique_ptr<ConnectForm> form;
    std::vector<std::string> notes;
};

TEST_F(ConnectFormTest, HasItsTextsInEnglish) {
    Load(TransferDirection::Read);
    EXPECT_EQ(form->objectName(), "ConnectForm");
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(FromQString(form->windowTitle()), "Read data from radio");
    EXPECT_EQ(CaptionOf(*form, "cmdOK"), "&OK");
    EXPECT_EQ(CaptionOf(*form, "cmdCancel"), "&Cancel");
    EXPECT_EQ(CaptionOf(*form, "cmdHelp"), "&Help");
    Load(TransferDirection::Write);
    EXPECT_EQ(FromQString(form->windowTitle()), "Write data to radio");
}

TEST_F(ConnectFormTest, HasItsTextsInChinese) {
    language_ = Language::Chinese;
    Load(TransferDirection::Read);
    EXPECT_EQ(FromQString(form->windowTitle()), "从对讲机读取数据");
    EXPECT_EQ(CaptionOf(*form, "cmdOK"), "确定(&O)");
    EXPECT_EQ(CaptionOf(*form, "cmdCancel"), "取消(&C)");
    EXPECT_EQ(CaptionOf(*form, "cmdHelp"), "帮助(&H)");
    Load(TransferDirection::Write);
    EXPECT_EQ(FromQString(form->windowTitle()), "向对讲机写入数据");
}

TEST_F(ConnectFormTest, HasItsTimersAndItsPortByName) {
    Load(TransferDirection::Read);
    EXPECT_NE(fakes.clock.FindTimer("ctrTimer"), nullptr);
    EXPECT_NE(fakes.clock.FindTimer("messageTimer"), nullptr);
    EXPECT_NE(fakes.ports.Port("MSComm1"), nullptr);
}

TEST_F(ConnectFormTest, ReadingHasABarOfSixteenAndWritingOneOfFortyNine) {
    Load(TransferDirection::Read);
    EXPECT_EQ(link.TransferMode, 0);
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_EQ(Bar().maximum(), 16);
    Load(TransferDirection::Write);
    EXPECT_EQ(link.TransferMode, 1);
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_EQ(Bar().maximum(), 49);
}

TEST_F(ConnectFormTest, SendsNothingBeforeOk) {
    ShowActive(Load(TransferDirection::Read));
    fakes.clock.Advance(10000);
    EXPECT_TRUE(radio.Commands().empty());
    EXPECT_TRUE(notes.empty());
}

TEST_F(ConnectFormTest, EnterIsOk) {
    ShowActive(Load(TransferDirection::Read));
    QTest::keyClick(form.get(), Qt::Key_Return);
    fakes.clock.Advance(10);
    EXPECT_EQ(radio.Commands(), std::vector<std::string>{"50 52 4F 47 52 41 4D"});
}

TEST_F(ConnectFormTest, ReadsDecodesAndCloses) {
    ShowActive(Load(TransferDirection::Read));
    fakes.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
    Click(*form, "cmdOK");
    fakes.clock.Advance(1000);
    EXPECT_EQ(notes, (std::vector<std::string>{"read completed, visible", "unloaded, hidden"}));
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_FALSE(fakes.ports.Port("MSComm1")->IsOpen());
}

TEST_F(ConnectFormTest, WritesAndCloses) {
    ShowActive(Load(TransferDirection::Write));
    fakes.messages.Expect(WritingCompleted(), MessageAnswer::Ok);
    Click(*form, "cmdOK");
    fakes.clock.Advance(1000);
    EXPECT_EQ(notes, (std::vector<std::string>{"write completed, visible", "unloaded, hidden"}));
}

TEST_F(ConnectFormTest, ExecReturnsWhenTheTransferIsOver) {
    Load(TransferDirection::Read);
    fakes.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
    QTimer::singleShot(0, form.get(), [this] {
        Click(*form, "cmdOK");
        fakes.clock.Advance(1000);
    });
    EXPECT_EQ(form->exec(), QDialog::Accepted);
    EXPECT_EQ(notes.size(), 2U);
}

TEST_F(ConnectFormTest, DisablesItsButtonsWhileItRuns) {
    ShowActive(Load(TransferDirection::Read));
    Click(*form, "cmdOK");
    for (const char* button : {"cmdOK", "cmdCancel", "cmdHelp"}) {
        EXPECT_FALSE(IsEnabled(button)) << button;
    }
    fakes.clock.Advance(30);
    QTest::keyClick(form.get(), Qt::Key_F1);
    EXPECT_TRUE(fakes.help.Topics().empty());
}

TEST_F(ConnectFormTest, CancelBeforeOkUnloadsAndTellsThatCancelWasPressed) {
    ShowActive(Load(TransferDirection::Read));
    Click(*form, "cmdCancel");
    EXPECT_EQ(notes, std::vector<std::string>{"unloaded by cancel, hidden"});
    EXPECT_TRUE(radio.Commands().empty());
}

TEST_F(ConnectFormTest, EscapeBeforeOkIsCancel) {
    ShowActive(Load(TransferDirection::Read));
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(notes, std::vector<std::string>{"unloaded by cancel, hidden"});
}

TEST_F(ConnectFormTest, ClosedByItsFrameBeforeOkWasNotCancelled) {
    ShowActive(Load(TransferDirection::Read));
    EXPECT_TRUE(form->close());
    EXPECT_EQ(notes, std::vector<std::string>{"unloaded, hidden"});
}

TEST_F(ConnectFormTest, RefusesToCloseWhileItRuns) {
    ShowActive(Load(TransferDirection::Read));
    Click(*form, "cmdOK");
    fakes.clock.Advance(30);
    EXPECT_FALSE(form->close());
    QTest::keyClick(form.get(), Qt::Key_Escape);
    form->reject();
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(notes.empty());
}

TEST_F(ConnectFormTest, RefusesToCloseBehindThePromptAndClosesAfterCancel) {
    radio.Spoil(1, Fault::Drop);
    ShowActive(Load(TransferDirection::Read));
    fakes.messages.Expect(ConnectionPrompt(), [this] {
        EXPECT_FALSE(form->close());
        return MessageAnswer::Cancel;
    });
    Click(*form, "cmdOK");
    fakes.clock.Advance(1000);
    EXPECT_EQ(radio.FaultsFired(), 1);
    EXPECT_EQ(notes, std::vector<std::string>{"unloaded, hidden"});
    for (const char* button : {"cmdOK", "cmdCancel", "cmdHelp"}) {
        EXPECT_TRUE(IsEnabled(button)) << button;
    }
}

TEST_F(ConnectFormTest, MayBeClosedByItsFrameOnceTheUserRefusedTheModel) {
    document.Image.Set(0x1BD, 0x55);
    ShowActive(Load(TransferDirection::Write));
    fakes.messages.Expect(ModelPrompt(), MessageAnswer::Cancel);
    Click(*form, "cmdOK");
    fakes.clock.Advance(60);
    EXPECT_TRUE(notes.empty());
    EXPECT_TRUE(form->close());
    fakes.clock.Advance(1000);
    EXPECT_EQ(notes, std::vector<std::string>{"unloaded, hidden"});
}

TEST_F(ConnectFormTest, PaintsProgressOnlyWhenTheNextCommandIsOnTheWire) {
    ShowActive(Load(TransferDirection::Write));
    Click(*form, "cmdOK");
    fakes.clock.Advance(10 + 3 * 3 + 2); // the first packet is acknowledged now
    EXPECT_EQ(form->Engine().Progress(), 1);
    const std::size_t commands = radio.Commands().size();
    EXPECT_EQ(Bar().value(), 0);
    fakes.clock.Advance(4);
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_GT(radio.Commands().size(), commands);
    fakes.clock.Advance(1);
    EXPECT_EQ(Bar().value(), form->Engine().Progress());
    EXPECT_GT(Bar().value(), 0);
}

TEST_F(ConnectFormTest, FillsTheBarBeforeTheShellIsTold) {
    ShowActive(Load(TransferDirection::Read));
    int atBox = 0;
    fakes.messages.Expect(ReadingCompleted(), [&] {
        atBox = Bar().value();
        return MessageAnswer::Ok;
    });
    Click(*form, "cmdOK");
    fakes.clock.Advance(1000);
    EXPECT_EQ(atBox, 16);
}

TEST_F(ConnectFormTest, ARetryEmptiesTheBar) {
    radio.Spoil(3 + 6 + 1, Fault::Drop);
    ShowActive(Load(TransferDirection::Read));
    fakes.messages.Expect(ConnectionPrompt(), [this] {
        EXPECT_EQ(Bar().value(), 3);
        return MessageAnswer::Retry;
    });
    Click(*form, "cmdOK");
    fakes.clock.Advance(600);
    fakes.clock.Advance(9);
    EXPECT_EQ(radio.FaultsFired(), 1);
    EXPECT_EQ(Bar().value(), 0);
}

TEST_F(ConnectFormTest, TellsWhatItDoesInBothLanguages) {
    ShowActive(Load(TransferDirection::Read));
    EXPECT_EQ(Status(), "Connect the radio, switch it on and press OK.");
    Click(*form, "cmdOK");
    fakes.clock.Advance(12);
    EXPECT_EQ(Status(), "Connecting to the radio...");
    fakes.clock.Advance(30);
    EXPECT_EQ(Status(), "Reading...");

    language_ = Language::Chinese;
    ShowActive(Load(TransferDirection::Write));
    Click(*form, "cmdOK");
    fakes.clock.Advance(42);
    EXPECT_EQ(Status(), "正在写入...");
}

TEST_F(ConnectFormTest, SaysCompletedUnderTheBoxThatSaysSo) {
    const auto statusAtBox = [this](TransferDirection direction, const Message& box) {
        std::string status;
        ShowActive(Load(direction));
        fakes.messages.Expect(box, [&] {
            status = Status();
            return MessageAnswer::Ok;
        });
        Click(*form, "cmdOK");
        fakes.clock.Advance(1000);
        return status;
    };
    EXPECT_EQ(statusAtBox(TransferDirection::Write, WritingCompleted()), "Completed.");
    EXPECT_EQ(statusAtBox(TransferDirection::Read, ReadingCompleted()), "Completed.");
    language_ = Language::Chinese;
    Message box = ReadingCompleted();
    box.text = "读取完毕";
    EXPECT_EQ(statusAtBox(TransferDirection::Read, box), "完毕。");
}

TEST_F(ConnectFormTest, SaysBeforeOkThatItsPortCannotBeOpenedAndWhy) {
    link.CommPortNumber = 3;
    fakes.ports.Missing(3);
    Load(TransferDirection::Read);
    EXPECT_EQ(Status(), "COM3 is missing. Plug in the cable, or choose another port in Setup > Communication Port.");
    fakes.ports.Present(3);
    fakes.ports.InUse(3);
    Load(TransferDirection::Read);
    EXPECT_EQ(Status(), "COM3 (/dev/fake3) is in use by another program. Close that program.");
    fakes.ports.Present(3);
    fakes.ports.NotPermitted(3, "dialout");
    Load(TransferDirection::Write);
    EXPECT_EQ(Status(),
              "You have no permission to open COM3 (/dev/fake3). Run: sudo usermod -aG dialout $USER, then log "
              "in again.");
    fakes.ports.NotPermitted(3, "");
    Load(TransferDirection::Write);
    EXPECT_EQ(Status(), "You have no permission to open COM3 (/dev/fake3). Ask the administrator of this computer.");
}

TEST_F(ConnectFormTest, SaysInChineseWhyItsPortCannotBeOpened) {
    language_ = Language::Chinese;
    fakes.ports.Missing(1);
    Load(TransferDirection::Read);
    EXPECT_EQ(Status(), "通信口1 不存在。请插上编程线，或在“设置 > 通信端口”中选择其他端口。");
    fakes.ports.Present(1);
    fakes.ports.InUse(1);
    Load(TransferDirection::Read);
    EXPECT_EQ(Status(), "通信口1 (/dev/fake1) 正被其他程序使用。请关闭该程序。");
    fakes.ports.Present(1);
    fakes.ports.NotPermitted(1, "dialout");
    Load(TransferDirection::Read);
    EXPECT_EQ(Status(),
              "您没有打开 通信口1 (/dev/fake1) 的权限。请执行 sudo usermod -aG dialout $USER，然后重新登录。");
    fakes.ports.NotPermitted(1, "");
    Load(TransferDirection::Read);
    EXPECT_EQ(Status(), "您没有打开 通信口1 (/dev/fake1) 的权限。请与计算机管理员联系。");
}

TEST_F(ConnectFormTest, TellsAMissingPortFromASilentRadioWhileThePromptIsUp) {
    ShowActive(Load(TransferDirection::Read));
    radio.Spoil(1, Fault::Drop);
    std::vector<std::string> atPrompt;
    fakes.messages.Expect(ConnectionPrompt(), [&] {
        atPrompt.push_back(Status());
        fakes.ports.Port("MSComm1")->Vanish();
        return MessageAnswer::Retry;
    });
    fakes.messages.Expect(ConnectionPrompt(), [&] {
        atPrompt.push_back(Status());
        fakes.ports.Present(1);
        return MessageAnswer::Retry;
    });
    fakes.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
    Click(*form, "cmdOK");
    fakes.clock.Advance(10000);
    EXPECT_EQ(atPrompt,
              (std::vector<std::string>{
                  "COM1 is open, but the radio does not answer as it should.",
                  "COM1 is missing. Plug in the cable, or choose another port in Setup > Communication Port."}));
    EXPECT_EQ(notes, (std::vector<std::string>{"read completed, visible", "unloaded, hidden"}));
}

/// Notes the texts that are painted.
class PaintedTexts : public QObject {
public:
    explicit PaintedTexts(QLabel& label) : label_(label) { label.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && (texts.empty() || texts.back() != FromQString(label_.text()))) {
            texts.push_back(FromQString(label_.text()));
        }
        return false;
    }
    std::vector<std::string> texts;

private:
    QLabel& label_;
};

class ConnectFormRetry : public ConnectFormTest, public testing::WithParamInterface<Language> {};

INSTANTIATE_TEST_SUITE_P(Languages, ConnectFormRetry, testing::Values(Language::English, Language::Chinese),
                         [](const auto& test) { return test.param == Language::English ? "English" : "Chinese"; });

TEST_P(ConnectFormRetry, SaysThatItTakesItsTimeBeforeTheWindowStandsStill) {
    const bool english = GetParam() == Language::English;
    language_ = GetParam();
    radio.Spoil(1, Fault::Drop);
    ShowActive(Load(TransferDirection::Read));
    PaintedTexts painted(Find<QLabel>(*form, "labStatus"));
    Message prompt = ConnectionPrompt();
    prompt.title = english ? "Error" : "错误";
    prompt.text =
        english ? "please check all connections and communication port settings." : "检查所有连接及通信端口设置。";
    fakes.messages.Expect(prompt, [&] {
        painted.texts.clear();
        return MessageAnswer::Retry;
    });
    Click(*form, "cmdOK");
    fakes.clock.Advance(610); // the prompt, and the pause behind it, in which no event is served
    EXPECT_EQ(fakes.clock.Sleeps(), (std::vector<int>{100, 1700}));
    EXPECT_EQ(painted.texts,
              std::vector<std::string>{english ? "Beginning again in 1.7 seconds. The window does not react "
                                                 "until then."
                                               : "1.7 秒后重新开始，在此之前窗口没有反应。"});
}

TEST_F(ConnectFormTest, HasRoomForWhateverItTells) {
    for (const Language language : {Language::English, Language::Chinese}) {
        language_ = language;
        fakes.ports.Present(1);
        ShowActive(Load(TransferDirection::Read));
        const QSize size = form->size();
        fakes.ports.SetDescription(1, {"/dev/ttyUSB0", ""});
        fakes.ports.NotPermitted(1, "dialout");
        ShowActive(Load(TransferDirection::Read));
        EXPECT_EQ(form->size(), size);
        const auto& label = Find<QLabel>(*form, "labStatus");
        EXPECT_LE(label.heightForWidth(label.width()), label.height());
    }
}

TEST_F(ConnectFormTest, KeepsItsSizeWhateverItTells) {
    ShowActive(Load(TransferDirection::Read));
    const QSize size = form->size();
    Click(*form, "cmdOK");
    fakes.clock.Advance(60);
    QCoreApplication::processEvents();
    EXPECT_EQ(Status(), "Reading...");
    EXPECT_EQ(form->size(), size);
}

TEST_F(ConnectFormTest, HelpOpensTheTopicOfItsDirection) {
    const auto topicOf = [this](TransferDirection direction, Language language) {
        language_ = language;
        ShowActive(Load(direction));
        Click(*form, "cmdHelp");
        return fakes.help.Topics().back();
    };
    const std::string folder = ProgramFolder();
    EXPECT_EQ(topicOf(TransferDirection::Read, Language::English), folder + "\\Zelvor_e.chm::/html/readradio.htm");
    EXPECT_EQ(topicOf(TransferDirection::Write, Language::English), folder + "\\Zelvor_e.chm::/html/writeradio.htm");
    EXPECT_EQ(topicOf(TransferDirection::Read, Language::Chinese), folder + "\\Zelvor_c.chm::/html/readradio.htm");
    EXPECT_EQ(topicOf(TransferDirection::Write, Language::Chinese), folder + "\\Zelvor_c.chm::/html/writeradio.htm");
}

TEST_F(ConnectFormTest, F1IsHelp) {
    ShowActive(Load(TransferDirection::Read));
    QTest::keyClick(form.get(), Qt::Key_F1);
    EXPECT_EQ(fakes.help.Topics(), std::vector<std::string>{ProgramFolder() + "\\Zelvor_e.chm::/html/readradio.htm"});
}

TEST_F(ConnectFormTest, HasItsButtonsInOrder) {
    ShowActive(Load(TransferDirection::Read));
    const int ok = Find<QPushButton>(*form, "cmdOK").x();
    const int cancel = Find<QPushButton>(*form, "cmdCancel").x();
    const int help = Find<QPushButton>(*form, "cmdHelp").x();
    EXPECT_LT(ok, cancel);
    EXPECT_LT(cancel, help);
}

TEST_F(ConnectFormTest, DestroyedWhileItRunsClosesThePort) {
    ShowActive(Load(TransferDirection::Read));
    Click(*form, "cmdOK");
    fakes.clock.Advance(30);
    ASSERT_TRUE(fakes.ports.Port("MSComm1")->IsOpen());
    form.reset();
    EXPECT_EQ(fakes.ports.Record("MSComm1").log.back(), "close");
    fakes.clock.Advance(5000);
}

TEST_F(ConnectFormTest, EnterPressesTheButtonThatHasTheKeyboard) {
    Load(TransferDirection::Write);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    auto& cmdCancel = Find<QPushButton>(*form, "cmdCancel");
    cmdCancel.setFocus();
    QTest::keyClick(&cmdCancel, Qt::Key_Return);
    fakes.clock.Advance(1000);
    EXPECT_EQ(notes, std::vector<std::string>{"unloaded by cancel, hidden"});
    EXPECT_TRUE(radio.Commands().empty());
}

} // namespace
} // namespace zelvor
