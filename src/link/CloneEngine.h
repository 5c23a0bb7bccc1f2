#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "link/LinkState.h"
#include "link/RadioLink.h"
#include "link/RadioPort.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"

namespace zelvor {

class Document;

/// The values of LinkState::CommState in a clone session: the state whose command is to be sent next.
enum class ConnectState : std::uint8_t {
    EnterProgramming = 1, // sends Entry, waits for an Acknowledge
    RequestIdentity = 2,  // sends Identity request, collects the eight identity bytes
    ConfirmIdentity = 3,  // sends Acknowledge, waits for one; a write then checks the model
    TransferData = 4,     // reading: asks for a block and stores it; writing: sends a packet, waits for an Acknowledge
    CloseData = 5,  // reading: acknowledges the block, waits for an Acknowledge; writing: sends End, all is written
    EndSession = 6, // sends End; the radio's answer does not matter
};

/// What the owner of a CloneEngine is told.
class CloneObserver {
public:
    virtual ~CloneObserver() = default;
    /// Called while the radio waits for the next command: must return at once and draw nothing.
    virtual void OnProgress(int value) = 0;
    /// cmdOK, cmdCancel and cmdHelp together.
    virtual void OnButtonsEnabled(bool enabled) = 0;
    /// A prompt comes, or a pause in which no event is served: what is told of the transfer is to be on the screen when
    /// this returns.
    virtual void OnStandstill() = 0;
    /// All is transferred and the End is sent; the box that says so follows after a moment in which events are served.
    virtual void OnTransferDone() = 0;
    /// The image is read and the document renamed: the grid is to be decoded and the title to be set.
    virtual void OnReadCompleted() = 0;
    virtual void OnWriteCompleted() = 0;
    /// The transfer is over: Unload() is to be called and the dialog to be closed.
    virtual void OnUnloadRequested() = 0;
};

/// The program's side of the clone protocol, without a window: moves the radio's memory into the image or the image
/// into the radio. The direction is LinkState::TransferMode at Load().
///
/// Driven by the ticks of its two timers and the port's receive event; shows the prompts and waits by itself, from
/// inside those handlers. While a prompt is up both timers are disabled and what arrives is not looked at.
class CloneEngine {
public:
    /// Members of the transfer beside the shared LinkState.
    struct TransferState {
        std::vector<std::uint8_t> RadioIdentity; // what arrived of the identity
        bool ReadDone = false;                   // the last block of a read is acknowledged
        bool Finished = false;                   // the dialog may close
        bool Running = false;                    // set by Start() and a retry
        bool Prompting = false;                  // the connection prompt is up
        bool Pausing = false;                    // between a Retry and the session that it begins
        bool CancelPressed = false;
    };

    CloneEngine(Document& document, const RadioLink& link, CloneObserver& observer);
    CloneEngine(const CloneEngine&) = delete;
    CloneEngine& operator=(const CloneEngine&) = delete;

    /// The dialog loads: tries the port once and sends nothing. Resets everything, also after Unload().
    void Load();
    /// cmdOK.
    void Start();
    /// cmdCancel; does nothing once started.
    void Cancel();
    /// Query-unload: false while a transfer runs.
    [[nodiscard]] bool MayUnload() const { return state_.Finished || !state_.Running; }
    /// Closes the port and stops; no input has an effect from here on. Returns and clears CancelPressed.
    bool Unload();

    /// Ticks of ctrTimer and messageTimer, and the port's event.
    void OnSendTimer();
    void OnTimeout();
    void OnReceive(ReceiveReason reason);

    [[nodiscard]] const TransferState& State() const { return state_; }
    /// Why the port could not be opened; PortFault::None while it can.
    [[nodiscard]] PortFailure Failure() const { return port_.Failure(); }
    [[nodiscard]] int Progress() const { return progress_; }
    /// Blocks of a read, packets of a write.
    [[nodiscard]] int ProgressMaximum() const { return progressMaximum_; }

private:
    /// The tick that follows a good reply.
    static constexpr int StepInterval = 1;

    [[nodiscard]] ConnectState Current() const { return static_cast<ConnectState>(link_.CommState); }
    [[nodiscard]] bool IsReading() const;
    void Enter(ConnectState state) { link_.CommState = static_cast<std::uint8_t>(state); }
    void BeginSession();
    void Run(Timer& timer, int milliseconds);

    void SendCommand();
    void SendData();

    void ReceiveEntryReply();
    void ReceiveIdentity();
    void ReceiveConfirmation();
    void CheckModel();
    void ReceiveBlock();
    void ReceivePacketReply();
    void ReceiveCloseReply();
    void ReceiveEndReply();
    void MoveOn();
    void LetTimeoutDecide();
    void FailFast();
    void RaiseProgress();
    void SetProgress(int value);

    void RunEndTest();
    void Complete(const TextPair& text);
    void EndRefused();

    void PromptForConnection();
    void Retry();
    void Abandon();

    Document& document_;
    LinkState& link_;
    RadioPort port_;
    Clock& clock_;
    MessageBoxes& messages_;
    const Language language_;
    CloneObserver& observer_;
    std::unique_ptr<Timer> ctrTimer_;
    std::unique_ptr<Timer> messageTimer_;
    TransferState state_;
    int progress_ = 0;
    int progressMaximum_ = 0;
    bool loaded_ = false;
    bool deaf_ = false;      // what arrives is not looked at: a prompt is up, or the user has given up
    bool abandoned_ = false; // the user has given up at the prompt
};

} // namespace zelvor
