#include "cli/RadioTransfer.h"

#include "cli/RadioProgress.h"
#include "link/LinkState.h"

namespace zelvor::cli {

namespace {

// Milliseconds.
constexpr int ProgressDelay = 5; // a terminal is drawn on when the next command is on the wire
constexpr int Round = 2;         // of the event loop; all that happens, happens in it and at once

} // namespace

RadioTransfer::RadioTransfer(Document& document, const RadioLink& link, RadioHeldPort& port, RadioAnswers& answers,
                             const RadioMachine& machine, std::string_view what)
    : link_(link), port_(port), answers_(answers), machine_(machine), what_(what), engine_(document, link, *this),
      progressTimer_(link.clock.MakeTimer("progressTimer")) {
    progressTimer_->SetInterval(ProgressDelay);
    progressTimer_->OnTick = [this] { ShowProgress(); };
    answers_.OnPrompt = [this] { NotePrompt(); };
}

RadioTransfer::~RadioTransfer() {
    answers_.OnPrompt = nullptr;
}

TransferReport RadioTransfer::Run() {
    if (machine_.isInterrupted()) {
        return {.end = TransferEnd::Interrupted};
    }
    answers_.Begin();
    port_.Hold();
    engine_.Load();
    engine_.Start();
    while (!isOver_) {
        link_.clock.WaitProcessingEvents(Round);
        WatchUser();
    }
    progressTimer_->SetEnabled(false);
    machine_.progress.Clear();
    return report_;
}

/// A user who does not want to wait gets what a prompt answered with Cancel does: the radio is told the end.
void RadioTransfer::WatchUser() {
    if (!isOver_ && !answers_.HasGivenUp() && machine_.isInterrupted()) {
        answers_.GiveUp();
        engine_.OnTimeout();
    }
}

void RadioTransfer::OnProgress(int /*value*/) {
    progressTimer_->SetEnabled(true);
}

/// At a prompt, and at the pause behind it, when the port has been closed where it had to be.
void RadioTransfer::OnStandstill() {
    if (engine_.State().Pausing) {
        port_.Hold();
    }
}

void RadioTransfer::OnTransferDone() {
    ShowProgress();
}

void RadioTransfer::OnReadCompleted() {
    report_.end = TransferEnd::Done;
}

void RadioTransfer::OnWriteCompleted() {
    report_.end = TransferEnd::Done;
}

void RadioTransfer::OnUnloadRequested() {
    if (report_.end != TransferEnd::Done) {
        report_.end = EndWithoutSuccess();
        report_.failure = engine_.Failure();
    }
    engine_.Unload();
    isOver_ = true;
}

TransferEnd RadioTransfer::EndWithoutSuccess() const {
    if (answers_.HasGivenUp()) {
        return TransferEnd::Interrupted;
    }
    return answers_.HasRefusedModel() ? TransferEnd::ModelDiffers : TransferEnd::NoRadio;
}

void RadioTransfer::NotePrompt() {
    port_.LetGo();
    if (link_.state.CommState >= static_cast<std::uint8_t>(ConnectState::TransferData)) {
        report_.reachedData = true;
    }
}

void RadioTransfer::ShowProgress() {
    progressTimer_->SetEnabled(false);
    machine_.progress.Show(what_, engine_.Progress(), engine_.ProgressMaximum());
}

} // namespace zelvor::cli
