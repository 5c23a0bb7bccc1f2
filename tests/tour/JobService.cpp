// Radio information and test mode.

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/RadioProgram.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

/// Pictures of a lamp.
constexpr int Idle = 101;
constexpr int Transmitting = 102;
constexpr int Chosen = 106;

/// For questions to the window thread.
bool Shines(const QString& lamp, int picture) {
    const QWidget* found = WidgetOnTop(lamp);
    return found && found->property("lit").toBool() && found->property("picture").toInt() == picture;
}

bool IsMainWindowFree() {
    return IsOnTop("MDIForm1") && WindowOnTop()->isEnabled();
}

} // namespace

void Job::CheckText(const QString& control, const QString& text) {
    CheckEqual("text of " + control.toStdString(), windows_.Ask([&] { return TextOnTop(control); }), text);
}

void Job::ExpectWindow(const QString& window, const QString& title) {
    windows_.WaitUntil("the window " + window.toStdString(), [&] { return IsOnTop(window); });
    CheckEqual("title of " + window.toStdString(), windows_.Ask(TitleOnTop), title);
}

void Job::WaitUntilShining(const QString& lamp, int picture) {
    windows_.WaitUntil("the lamp " + lamp.toStdString() + " to shine", [=] { return Shines(lamp, picture); });
}

void Job::ShowRadioInformation() {
    user_.ChooseByMouse("MnuTool", "MnuToolRadioInformation");
    ExpectWindow("DJJInfoForm", words_.informationCaption);
    CheckText("LabModel", "4618");
    CheckText("LabFreq", "VHF: 136-174 MHz(M)");
    CheckText("LabSN", " A 10024618");
    CheckText("LabVersion", "V1.0");
    screenshots_.Take("radio-information");
    ShowHelpOf("radioinfo.htm");
    user_.Click("cmdClose");
    windows_.WaitUntil("the main window", IsMainWindowFree);
    Done("Tools > Radio Information: the radio's serial number");
}

void Job::RunTestMode() {
    EnterTestMode();
    UseTestMode();
    Tune();
    PrintTuningReport();
    LeaveTestMode();
}

void Job::EnterTestMode() {
    radio_.ForgetMemory();
    radio_.ForgetLines();
    user_.ChooseByMouse("MnuProgram", "MnuProgramTestMode");
    ExpectWindow("TestForm", words_.testModeCaption);
    CheckText("ComChannel", "1");
    CheckText("LabRxFreq", "155.05000MHz");
    CheckText("LabTxFreq", "155.10000MHz");
    CheckText("LabTxSignal", words_.none);
    radio_.WaitForText("(Set signalling 1)");
    screenshots_.Take("test-mode");
    Done("Program > Test Mode: the radio is in its test mode");
}

void Job::UseTestMode() {
    radio_.ForgetLines();
    user_.TabTo("ComChannel");
    user_.Press(Qt::Key_Down);
    radio_.WaitForText("(Set channel 2)");
    CheckText("LabRxFreq", "136.05000MHz");
    CheckText("LabTxFreq", "136.10000MHz");
    user_.TabTo("ComSignal");
    user_.Press(Qt::Key_Down);
    user_.Press(Qt::Key_Down);
    radio_.WaitForText("(Set signalling 3)");
    CheckText("LabTxSignal", "QT 67.0Hz");

    user_.Click("CmdPTT");
    radio_.WaitForText("(PTT on)");
    WaitUntilShining("PicPtt", Transmitting);
    WaitUntilShining("PicChannelTx", Transmitting);
    screenshots_.Take("test-mode-keyed");
    user_.Click("CmdPTT");
    radio_.WaitForText("(PTT off)");
    WaitUntilShining("PicPtt", Idle);
    WaitUntilShining("PicChannelRx", Idle);

    user_.Click("CmdNarrow");
    radio_.WaitForText("(Narrow)");
    WaitUntilShining("PicNarrow", Chosen);
    user_.Click("cmdWide");
    radio_.WaitForText("(Wide)");
    WaitUntilShining("PicWide", Chosen);
    Done("test mode: channel 2, signalling 3, PTT on and off, narrow and wide");
}

void Job::LeaveTestMode() {
    user_.Click("cmdClose");
    windows_.WaitUntil("the main window", IsMainWindowFree);
    CheckBytes("the radio's tuning values", radio_.Memory().mid(0x180, 56), Tuned(round_.tuning), 0x180);
    Done("test mode is left; the radio keeps what was tuned, and nothing else");
}

} // namespace zelvor::tour
