// The receive half of CloneEngine: what each reply of the radio means, and where it leads.

#include "data/Document.h"
#include "data/MemoryMap.h"
#include "link/CloneEngine.h"
#include "link/CloneFrames.h"
#include "link/CloneTexts.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

constexpr int FastFailureInterval = 3; // milliseconds

} // namespace

void CloneEngine::OnReceive(ReceiveReason reason) {
    if (reason != ReceiveReason::DataReceived || !loaded_) {
        return;
    }
    if (deaf_) {
        port_.ClearInput();
        return;
    }
    switch (Current()) {
    case ConnectState::EnterProgramming:
        ReceiveEntryReply();
        break;
    case ConnectState::RequestIdentity:
        ReceiveIdentity();
        break;
    case ConnectState::ConfirmIdentity:
        ReceiveConfirmation();
        break;
    case ConnectState::TransferData:
        if (IsReading()) {
            ReceiveBlock();
        } else {
            ReceivePacketReply();
        }
        break;
    case ConnectState::CloseData:
        ReceiveCloseReply();
        break;
    case ConnectState::EndSession:
        ReceiveEndReply();
        break;
    }
}

void CloneEngine::ReceiveEntryReply() {
    if (!port_.ReadsAcknowledge()) {
        return LetTimeoutDecide();
    }
    Enter(ConnectState::RequestIdentity);
    MoveOn();
}

void CloneEngine::ReceiveIdentity() {
    // The event comes with the first byte; the rest has until the time-out.
    const std::vector<std::uint8_t> piece = port_.Read(wire::IdentityLength);
    std::vector<std::uint8_t>& identity = state_.RadioIdentity;
    identity.insert(identity.end(), piece.begin(), piece.end());
    if (identity.size() != wire::IdentityLength) {
        return LetTimeoutDecide();
    }
    if (IsReading()) {
        // Block 7 overwrites both with what the memory holds there.
        document_.Image.Set(address::Market, identity[address::Market - address::Identity]);
        document_.Image.Set(address::Family, identity[address::Family - address::Identity]);
    }
    Enter(ConnectState::ConfirmIdentity);
    MoveOn();
}

void CloneEngine::ReceiveConfirmation() {
    if (!port_.ReadsAcknowledge()) {
        return LetTimeoutDecide();
    }
    Enter(ConnectState::TransferData);
    if (link_.TransferMode == transfer::Writing) {
        CheckModel();
    }
    MoveOn();
}

void CloneEngine::CheckModel() {
    if (!IsModelWrong(state_.RadioIdentity, document_.Image)) {
        return;
    }
    messageTimer_->SetEnabled(false);
    deaf_ = true;
    const MessageAnswer answer = messages_.Show({.title = std::string(commontexts::Warning.In(language_)),
                                                 .text = std::string(clonetexts::ModelTypeWrong.In(language_)),
                                                 .icon = MessageIcon::Exclamation,
                                                 .buttons = MessageButtons::OkCancel,
                                                 .defaultButton = MessageAnswer::Cancel});
    deaf_ = false;
    if (answer != MessageAnswer::Ok) {
        Enter(ConnectState::EndSession);
    }
}

void CloneEngine::ReceiveBlock() {
    const std::vector<std::uint8_t> reply = port_.Read(wire::ReadReplyLength);
    StoreReadBlock(document_.Image, link_.StepCount, reply); // also of a reply that fails the test
    if (reply.empty() || reply.front() != wire::ReadReplyByte) {
        return FailFast();
    }
    Enter(ConnectState::CloseData);
    MoveOn();
}

void CloneEngine::ReceivePacketReply() {
    const bool acknowledged = port_.ReadsAcknowledge();
    ++link_.StepCount;
    AdvanceAddress(link_);
    RaiseProgress();
    if (!acknowledged) {
        return FailFast();
    }
    if (link_.StepCount == WriteDoneStep) {
        Enter(ConnectState::CloseData);
    } else {
        link_.SentState = NothingSent; // the state stays, and the next packet is due
    }
    MoveOn();
}

void CloneEngine::ReceiveCloseReply() {
    if (!IsReading()) { // a late byte behind the End of a write
        ++link_.StepCount;
        RaiseProgress();
        return;
    }
    if (!port_.ReadsAcknowledge()) {
        return FailFast();
    }
    Enter(ConnectState::TransferData);
    if (link_.StepCount == RepeatedReadStep) {
        Enter(ConnectState::EndSession);
        state_.ReadDone = true;
    }
    ++link_.StepCount;
    RaiseProgress();
    AdvanceAddress(link_);
    MoveOn();
}

void CloneEngine::ReceiveEndReply() {
    // Once the dialog is about to close, messageTimer is what closes it.
    if (port_.ReadsAcknowledge() && !state_.Finished) {
        messageTimer_->SetEnabled(false);
    }
}

void CloneEngine::MoveOn() {
    Run(*ctrTimer_, StepInterval);
    messageTimer_->SetEnabled(false);
}

void CloneEngine::LetTimeoutDecide() {
    messageTimer_->SetEnabled(true);
}

void CloneEngine::FailFast() {
    ctrTimer_->SetEnabled(false);
    Run(*messageTimer_, FastFailureInterval);
}

void CloneEngine::RaiseProgress() {
    if (progress_ < progressMaximum_) {
        SetProgress(progress_ + 1);
    }
}

void CloneEngine::SetProgress(int value) {
    progress_ = value;
    observer_.OnProgress(value);
}

} // namespace zelvor
