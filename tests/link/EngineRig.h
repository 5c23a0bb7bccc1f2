#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/Document.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeMessageBoxes.h"
#include "fakes/FakeSerialPort.h"
#include "link/CloneEngine.h"
#include "link/ScriptedRadio.h"

namespace zelvor {

inline constexpr int Read = 0;
inline constexpr int Write = 1;

/// The byte that tests put at a radio address: differs between neighbours, blocks and pages.
[[nodiscard]] std::uint8_t PatternAt(int address);

/// The boxes of a transfer, in English.
[[nodiscard]] Message ModelPrompt();
[[nodiscard]] Message ReadingCompleted();
[[nodiscard]] Message WritingCompleted();

/// An engine on a fake port, a virtual clock and scripted boxes. It acts as its owner does: an unload request unloads
/// it.
class EngineRig : public CloneObserver {
public:
    explicit EngineRig(int transferMode);
    ~EngineRig() override;

    Document document;
    LinkState link;
    FakeClock clock;
    FakeSerialPorts ports;
    FakeMessageBoxes messages;
    ScriptedRadio radio{clock, ports};
    std::unique_ptr<SerialPort> serialPort;
    std::unique_ptr<CloneEngine> engine;
    /// "progress 1", "buttons on", "buttons off", "read completed", "write completed", "unload", "unload cancelled".
    std::vector<std::string> events;
    std::function<void()> WhenReadCompleted;
    std::function<void()> WhenStandingStill;

    [[nodiscard]] FakeSerialPort& Port() { return static_cast<FakeSerialPort&>(*serialPort); }
    [[nodiscard]] LinkState& Link() { return link; }

    /// Fills image and radio with the pattern, the image's identity matching the radio's.
    void UsePattern();
    void FillImageWithPattern();

    /// Opens the dialog of another transfer.
    void LoadAgain(int transferMode);
    /// Another engine, in that language, for the same transfer.
    void UseLanguage(Language language);
    /// Puts the scripted radio at the far end.
    void ConnectRadio() { radio.Attach(Port()); }

    /// Steps by hand, without the scripted radio: each sends the command of the state.
    void ToEntry();        // "PROGRAM" is sent
    void ToIdentity();     // 02 is sent
    void ToConfirmation(); // 06 is sent
    void ToData();         // the first block or packet command is sent
    /// Delivers a reply and runs the tick that follows a good one.
    void Answer(const Bytes& reply);
    /// Answers block or packet commands until StepCount is `step` and its command is sent.
    void AnswerUntilStep(int step);

    [[nodiscard]] bool IsRunning(std::string_view timer) const { return clock.FindTimer(timer)->IsEnabled(); }
    /// "1", or "off" for a disabled timer.
    [[nodiscard]] std::string TimerState(std::string_view timer) const;
    /// What was sent since the last call, in hex; clears the record.
    std::string TakeSent();
    [[nodiscard]] int Count(const std::string& event) const;

    void OnProgress(int value) override { events.push_back("progress " + std::to_string(value)); }
    void OnButtonsEnabled(bool enabled) override { events.emplace_back(enabled ? "buttons on" : "buttons off"); }
    void OnStandstill() override {
        if (WhenStandingStill) {
            WhenStandingStill();
        }
    }
    void OnTransferDone() override {}
    void OnReadCompleted() override;
    void OnWriteCompleted() override { events.emplace_back("write completed"); }
    void OnUnloadRequested() override { events.emplace_back(engine->Unload() ? "unload cancelled" : "unload"); }
};

/// The bytes that the hand-driven radio of the rig gives: identity of model 4618, market M.
[[nodiscard]] Bytes IdentityReply();
/// A Read reply whose data bytes are the pattern of block `block` (1 to 16).
[[nodiscard]] Bytes BlockReply(int block);

/// Expects the prompt, keeps when it came, and gives an answer.
class PromptWatch {
public:
    PromptWatch(EngineRig& rig, MessageAnswer answer) {
        rig.messages.Expect(ConnectionPrompt(), [this, &rig, answer] {
            time = rig.clock.TickCount();
            timers = rig.TimerState("ctrTimer") + " " + rig.TimerState("messageTimer");
            portOpen = rig.Port().IsOpen();
            return answer;
        });
    }
    std::int64_t time = -1;
    std::string timers;
    bool portOpen = false;
};

} // namespace zelvor
