#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "service/RadioExchange.h"

namespace zelvor {

class Document;
struct ServiceState;

/// What the owner of an EntryEngine is told.
class EntryObserver {
public:
    virtual ~EntryObserver() = default;
    /// The radio's 34-byte manufacturing record, one character a byte.
    virtual void OnInformation(const std::string& record) = 0;
    /// The exchange has succeeded: the main window is to be disabled. OnInformationReady or OnTestModeReady follows.
    virtual void OnExchangeDone() = 0;
    virtual void OnInformationReady() = 0;
    virtual void OnTestModeReady() = 0;
    /// The exchange has begun, or has gone one command on; so many of its replies have come.
    virtual void OnProgress(int replies, int all) = 0;
    /// The exchange is over, and nothing is to be opened: the user has given up, or test mode was refused.
    virtual void OnExchangeEnded() = 0;
};

/// The exchange that fetches the radio's manufacturing record, and the one that enters test mode: one machine.
/// docs/service-engines.md draws both.
class EntryEngine : public RadioExchange {
public:
    EntryEngine(Document& document, ServiceState& service, const RadioLink& link, EntryObserver& observer);

    /// The user has chosen another one; also while an exchange is under way.
    void SetLanguage(Language language) { language_ = language; }

    /// Either starts anew where an exchange is under way.
    void StartInformation() { Start(true); }
    void StartTestMode() { Start(false); }
    /// Ends an exchange without a word, for a command that wants the port for itself.
    void Abort();

    [[nodiscard]] bool IsInfoMode() const { return InfoMode; }
    /// What the radio told of itself at the start of the exchange; eight bytes where all of it came.
    [[nodiscard]] const std::vector<std::uint8_t>& Identity() const { return identity_; }
    [[nodiscard]] bool IsEntryDone() const { return EntryDone; }

private:
    /// Information: 1 Entry, 2 identity, 3 acknowledge, 4 record, 5 acknowledge, 6 unused record, 7 acknowledge, 8 End.
    /// Test mode: 1 Entry, 2 identity, 3 acknowledge, 4 tuning data, 5 acknowledge, 6 channel StepCount, 7 acknowledge.
    enum : std::uint8_t {
        SendEntry = 1,
        AskIdentity,
        ConfirmIdentity,
        AskRecord,
        ConfirmRecord,
        AskNext,
        ConfirmNext,
        SendEnd
    };

    void Start(bool infoMode);
    void CountReply(int replies);
    void SendCommand() override;
    void Receive() override;
    void Retry() override;
    void GiveUp() override;

    void SendInformationCommand();
    void SendTestModeCommand();
    [[nodiscard]] bool TakeReply();
    [[nodiscard]] bool TakeInformationRecord();
    void TakeTestFrequency();
    void MoveOn();
    void CountChannel();
    void FinishInformation();
    void FinishTestMode();
    void RefuseTestMode();

    Document& document_;
    ServiceState& service_;
    EntryObserver& observer_;
    std::vector<std::uint8_t> identity_;
    int replies_ = 0;
    bool InfoMode = false;
    bool EntryDone = false; // all test channels agree, and test mode opens
};

} // namespace zelvor
