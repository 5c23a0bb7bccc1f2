#pragma once

#include <cstdint>
#include <memory>

#include "service/CommandExchange.h"
#include "service/ServiceState.h"

namespace zelvor {

class Document;

/// The kinds of TestEngine's commands.
enum class TestCommandKind { SetChannel = 1, SetSignalling, Ptt, Tune, Wide, Narrow, Close };

/// What the owner of a TestEngine is told.
class TestObserver {
public:
    virtual ~TestObserver() = default;
    /// The radio has acknowledged that its transmitter is keyed, or everything is idle again.
    virtual void OnLamps(bool transmitting) = 0;
    /// The radio is ready to tune TuneItem and the port is closed: this dialog is to be disabled and the
    /// item's tuning dialog to be opened.
    virtual void OnTuningReady() = 0;
    /// The user has given up at the connection prompt: the dialog is to be closed.
    virtual void OnUnloadRequested() = 0;
    /// What Close() has begun is done: the radio is told, or given up, and the port is closed.
    virtual void OnClosed() = 0;
};

/// Test mode without a window: the commands that put the radio on a test channel, key it and start tuning. A later
/// command of a kind replaces the earlier one; closing replaces all, and tuning is given up for whatever is asked next.
class TestEngine : public CommandExchange {
public:
    TestEngine(Document& document, ServiceState& service, const RadioLink& link, TestObserver& observer);

    /// The dialog loads, TestChannelNo being chosen: the radio gets channel and signalling 1.
    void Load();

    void ChooseChannel(int number);    // 1 to 16
    void ChooseSignalling(int number); // 1 to 9
    void ChooseWide(bool wide);
    /// Starts tuning of TuneItem.
    void Tune();

    /// Leaves test mode: no command is taken any more, and OnClosed follows when the radio has been told; at once where
    /// the user has given up. Calls meanwhile do nothing.
    void Close();

private:
    enum : std::uint8_t { SendIt = 1, Confirm, SelectItem };

    void Ask(TestCommandKind kind, int interval, int argument = 0);
    [[nodiscard]] TestCommandKind Kind() const { return static_cast<TestCommandKind>(Current().kind); }
    [[nodiscard]] bool Replaces(const RadioCommand& later, const RadioCommand& earlier) const override;
    [[nodiscard]] bool DropsPtt(const RadioCommand& command) const override { return command.kind != Ptt; }
    void SendStep() override;
    void SendFirst();
    void SendEnd();
    void Leave();
    void ReceiveStep() override;
    void OnKeyed(bool keyed) override { observer_.OnLamps(keyed); }
    void OnDropRefused() override { observer_.OnLamps(false); }
    void ReceiveFirst();
    void ReceiveTuningData();
    void ReceiveConfirmation();
    void ReceiveSelection();
    void GiveUp() override;
    [[nodiscard]] bool EndsAtTimeout() override;
    [[nodiscard]] bool IsShortChannelReply() const;

    Document& document_;
    ServiceState& service_;
    TestObserver& observer_;
    std::unique_ptr<Timer> endTimer_; // from the answer to the last signalling to End
    int signalling_ = 1;              // the last one chosen
};

} // namespace zelvor
