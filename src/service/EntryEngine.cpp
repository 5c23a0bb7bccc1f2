#include "service/EntryEngine.h"

#include "data/Document.h"
#include "data/TestFrequencies.h"
#include "data/TuneItems.h"
#include "link/CloneFrames.h"
#include "platform/MessageBoxes.h"
#include "service/ServiceFrames.h"
#include "service/ServiceState.h"
#include "service/TestChannels.h"

namespace zelvor {

namespace {

// Milliseconds.
constexpr int FirstSendInterval = 100;
constexpr int StepInterval = 1;
constexpr int Timeout = 100;
constexpr int EntryFailureInterval = 2;
constexpr int FailureInterval = 1;
constexpr int DonePause = 30;
constexpr int RefusedPause = 10;

// Values of StepCount in a test mode entry: 1 to 16 are channels.
constexpr int AllChannelsStep = 17;
constexpr int MismatchStep = 30;

constexpr int InformationReplies = 8;
constexpr int TestModeReplies = 5 + 2 * TestChannelCount;

/// Intended: the Chinese title is that of a warning.
constexpr TextPair MismatchTitle{"Error", "警告"};
constexpr TextPair MismatchText{"Test Frequency mismatch.\nExecute read data from radio\nor write to radio.",
                                "测试频率不匹配。\n执行\"从对讲机读取数据\"\n或\"向对讲机写入数据\"。"};

} // namespace

EntryEngine::EntryEngine(Document& document, ServiceState& service, const RadioLink& link, EntryObserver& observer)
    : RadioExchange(link, "OverTimer", Timeout), document_(document), service_(service), observer_(observer) {}

void EntryEngine::Start(bool infoMode) {
    Stop();
    port_.SetUp();
    port_.Close();
    InfoMode = infoMode;
    EntryDone = false;
    link_.StepCount = 1;
    if (link_.SentState == SendEntry) {
        link_.SentState = NothingSent; // left by a transfer that was given up; the first tick would do nothing
    }
    Enter(SendEntry, FirstSendInterval);
    CountReply(0);
}

void EntryEngine::CountReply(int replies) {
    replies_ = replies;
    observer_.OnProgress(replies, InfoMode ? InformationReplies : TestModeReplies);
}

void EntryEngine::Abort() {
    Stop();
    port_.Close();
}

void EntryEngine::SendCommand() {
    switch (State()) {
    case SendEntry:
        port_.ExpectBytes(1);
        port_.Send(InfoMode ? wire::Entry : service::TuningEntry);
        break;
    case AskIdentity:
        port_.Send(wire::IdentityRequest);
        port_.ExpectBytes(wire::IdentityLength);
        break;
    case ConfirmIdentity:
        port_.Send(wire::Acknowledge);
        port_.ExpectBytes(1);
        break;
    case ConfirmRecord:
    case ConfirmNext:
        port_.ExpectBytes(1);
        port_.Send(wire::Acknowledge);
        break;
    default:
        if (InfoMode) {
            SendInformationCommand();
        } else {
            SendTestModeCommand();
        }
    }
}

void EntryEngine::SendInformationCommand() {
    switch (State()) {
    case AskRecord:
        port_.Send(service::ManufacturingRecord);
        port_.ExpectBytes(service::ManufacturingRecordLength);
        break;
    case AskNext:
        port_.Send({service::UnusedRecord});
        port_.ExpectBytes(service::UnusedRecordLength);
        break;
    default:
        port_.ExpectBytes(1);
        port_.Send(wire::End);
    }
}

void EntryEngine::SendTestModeCommand() {
    if (State() == AskRecord) {
        port_.Send({service::ReadTuningData});
        port_.ExpectBytes(TuningRecordSize);
    } else {
        port_.Send({service::SetChannel, static_cast<std::uint8_t>(link_.StepCount)});
        port_.ExpectBytes(service::ChannelRecordLength);
    }
}

void EntryEngine::Receive() {
    if (TakeReply()) {
        MoveOn();
    } else {
        FailFast(State() == SendEntry ? EntryFailureInterval : FailureInterval);
    }
}

bool EntryEngine::TakeReply() {
    switch (State()) {
    case AskIdentity:
        identity_ = port_.Read(wire::IdentityLength);
        return !identity_.empty() && identity_.front() == service::IdentityFirstByte;
    case AskRecord: {
        if (InfoMode) {
            return TakeInformationRecord();
        }
        const std::vector<std::uint8_t> record = port_.Read(TuningRecordSize);
        StoreTuningData(record, document_.Image, service_.Values);
        return record.size() == TuningRecordSize;
    }
    case AskNext:
        if (InfoMode) {
            return port_.Read(service::UnusedRecordLength).size() == service::UnusedRecordLength;
        }
        TakeTestFrequency();
        return true;
    default:
        return port_.ReadsAcknowledge();
    }
}

bool EntryEngine::TakeInformationRecord() {
    const std::vector<std::uint8_t> record = port_.Read(service::ManufacturingRecordLength);
    if (record.size() != service::ManufacturingRecordLength) {
        return false;
    }
    observer_.OnInformation(std::string(record.begin(), record.end()));
    return true;
}

void EntryEngine::TakeTestFrequency() {
    const std::vector<std::uint8_t> reply = port_.Read(service::ChannelRecordLength);
    if (reply.size() != service::ChannelRecordLength) {
        return;
    }
    const auto record = std::span(reply).first<address::TestFrequencyPairSize>();
    const int channel = link_.StepCount;
    service_.TestFrequencyText[static_cast<std::size_t>(channel - 1)] = TestFrequencyTextOf(record);
    if (!AgreesWithImage(record, document_.Image, channel)) {
        link_.StepCount = MismatchStep;
    }
}

void EntryEngine::MoveOn() {
    CountReply(replies_ + 1);
    if (InfoMode && State() == SendEnd) {
        FinishInformation();
    } else if (!InfoMode && State() == ConfirmNext) {
        CountChannel();
    } else {
        Enter(State() + 1, StepInterval);
    }
}

void EntryEngine::CountChannel() {
    ++link_.StepCount;
    if (link_.StepCount > MismatchStep) {
        RefuseTestMode();
    } else if (link_.StepCount == AllChannelsStep) {
        FinishTestMode();
    } else {
        Enter(AskNext, StepInterval);
    }
}

void EntryEngine::FinishInformation() {
    observer_.OnExchangeDone();
    Stop();
    port_.Close();
    clock_.Sleep(DonePause);
    observer_.OnInformationReady();
}

void EntryEngine::FinishTestMode() {
    EntryDone = true;
    observer_.OnExchangeDone();
    Stop();
    port_.Close();
    clock_.Sleep(DonePause);
    observer_.OnTestModeReady();
}

/// The radio is left in its tuning mode, with no End.
void EntryEngine::RefuseTestMode() {
    Stop();
    port_.Close();
    clock_.Sleep(RefusedPause);
    observer_.OnExchangeEnded();
    messages_.Show({.title = std::string(MismatchTitle.In(language_)),
                    .text = std::string(MismatchText.In(language_)),
                    .icon = MessageIcon::Critical,
                    .buttons = MessageButtons::Ok});
}

void EntryEngine::Retry() {
    link_.StepCount = 1;
    CountReply(0);
    Enter(SendEntry, StepInterval);
}

void EntryEngine::GiveUp() {
    Stop();
    port_.Close();
    observer_.OnExchangeEnded();
}

} // namespace zelvor
