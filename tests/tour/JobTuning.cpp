// The tuning dialogs, on the live radio.

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/RadioProgram.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

QString ValueBoxOf(const TuneEdit& edit) {
    return QString("txtTuneValue(%1)").arg(edit.page - 1);
}

} // namespace

void Job::Tune() {
    const Tuning& tuning = round_.tuning;
    for (const TuneItem& item : {tuning.single, tuning.points}) {
        OpenTuning(item);
        screenshots_.Take("tuning-" + item.form);
        CloseTuning("CmdCancel");
    }
    Measure();
    if (tuning.edit.narrow) {
        user_.Click("CmdNarrow");
        radio_.WaitForText("(Narrow)");
    }
    TuneValue();
    SeeTunedValue();
    Done("tuning " + tuning.edit.item.caption.toStdString() + ": from " + tuning.edit.before.toStdString() + " to " +
         tuning.edit.after.toStdString() + ", and there again after the next reading");
}

void Job::OpenTuning(const TuneItem& item) {
    radio_.ForgetLines();
    user_.ClickRow("LvwTuneSel", item.row);
    user_.Click("CmdTune");
    ExpectWindow(item.form, item.caption);
}

void Job::CloseTuning(const QString& button) {
    user_.Click(button);
    ExpectWindow("TestForm", words_.testModeCaption);
}

void Job::Measure() {
    OpenTuning(round_.tuning.measured);
    const QString before = windows_.Ask([] { return TextOnTop("txtTuneValue"); });
    user_.Click("CmdStart");
    windows_.WaitUntil("a measured value", [&] { return TextOnTop("txtTuneValue") != before; });
    screenshots_.Take("tuning-TunningForm2");
    user_.Click("CmdStart");
    CloseTuning("CmdCancel");
}

void Job::TurnToPage(const TuneEdit& edit) {
    if (edit.page > 1) {
        user_.ClickTab("SSTabTune", edit.page);
        radio_.WaitForText("(Read point)");
    }
}

void Job::TuneValue() {
    const TuneEdit& edit = round_.tuning.edit;
    OpenTuning(edit.item);
    TurnToPage(edit);
    CheckText(ValueBoxOf(edit), edit.before);
    user_.TabTo(ValueBoxOf(edit));
    for (int press = 0; press < edit.presses; ++press) {
        user_.Press(edit.key);
    }
    CheckText(ValueBoxOf(edit), edit.after);
    radio_.WaitForText(edit.command);
    screenshots_.Take("tuning-" + edit.item.form);
    CloseTuning("CmdOK");
}

/// The dialog reads the radio's values anew when it is opened.
void Job::SeeTunedValue() {
    const TuneEdit& edit = round_.tuning.edit;
    OpenTuning(edit.item);
    TurnToPage(edit);
    CheckText(ValueBoxOf(edit), edit.after);
    CloseTuning("CmdCancel");
}

} // namespace zelvor::tour
