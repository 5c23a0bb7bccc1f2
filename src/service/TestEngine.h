#pragma once

#include <optional>

#include "service/RadioExchange.h"

namespace zelvor {

/// The values of TestEngine's command in progress.
enum class TestCommandKind { SetChannel = 1, SetSignalling, Ptt, Tune, Wide, Narrow, Close };

/// What the owner of a TestEngine is told.
class TestObserver {
public:
    virtual ~TestObserver() = default;
    /// The radio has acknowledged that its transmitter is keyed, or everything is idle again.
    virtual void OnLamps(bool transmitting) = 0;
    /// The radio is ready to tune Session's TuneItem and the port is closed: this dialog is to be disabled and the
    /// item's tuning dialog to be opened.
    virtual void OnTuningReady() = 0;
    /// The user has given up at the connection prompt: the dialog is to be closed.
    virtual void OnUnloadRequested() = 0;
};

/// Test mode without a window: the commands that put the radio on a test channel, key it and start tuning. One command
/// is in progress at a time; a later one takes its place.
class TestEngine : public RadioExchange {
public:
    TestEngine(Session& session, SerialPort& port, Clock& clock, MessageBoxes& messages, TestObserver& observer);

    /// The dialog loads, Session's TestChannelNo being chosen: the radio gets channel and signalling 1.
    void Load();

    void ChooseChannel(int number);    // 1 to 16
    void ChooseSignalling(int number); // 1 to 9
    void PressPtt();
    void ChooseWide(bool wide);
    /// Starts tuning of Session's TuneItem.
    void Tune();

    /// Leaves test mode: keeps the event loop running until the radio has been told, unless the user has given up. The
    /// port is closed then. Calls from inside do nothing.
    void Close();

    [[nodiscard]] bool IsPttOn() const { return PttOn; }

private:
    enum : std::uint8_t { SendIt = 1, Confirm, SelectItem };

    void Ask(TestCommandKind command, int interval);
    void SendCommand() override;
    void SendFirst();
    void SendEnd();
    void Receive() override;
    void OnKeyed(bool keyed) override;
    void ReceiveFirst();
    void ReceivePttDrop();
    void ReceivePtt();
    void ReceiveTuningData();
    void ReceiveConfirmation();
    void ReceiveSelection();
    void Retry() override;
    void GiveUp() override;
    [[nodiscard]] bool EndsAtTimeout() override;

    TestObserver& observer_;
    TestCommandKind TestCommand = TestCommandKind::SetChannel;
    int signalling_ = 1;
    bool ChannelOnly = false; // the channel command is not followed by a signalling command
    int tunedItem_ = 0;
    bool CloseDone = false; // ends the wait of Close
    bool closing_ = false;
};

} // namespace zelvor
