#include "EntryFuzz.h"

#include "FuzzImages.h"
#include "Require.h"
#include "data/MemoryMap.h"
#include "service/RadioInformation.h"
#include "text/Utf8.h"

namespace zelvor::fuzz {

namespace {

constexpr int LongestSession = 20'000; // milliseconds, of 37 exchanges that each take nearly their time-out

} // namespace

EntryFuzz::EntryFuzz(const ExchangeInputs& inputs) : SpoiltExchange(inputs) {
    isInformation_ = input_.TakeBool();
    document_.Image = TakeImage(input_);
    radio_.Memory = input_.TakeBool() ? document_.Image : TakeImage(input_);
}

void EntryFuzz::Run() {
    const DataImage image = document_.Image;
    const DataImage memory = radio_.Memory;
    Start();
    const int actions = input_.TakeByte() % 4;
    for (int i = 0; i < actions; ++i) {
        Act();
    }
    Require(RunsToItsEnd(clock_, LongestSession * 300, [this] { return ends_ > 0; }), "an entry ends");
    Require(clock_.TickCount() <= LongestSession * (5 + user_.Retries()), "an entry ends in time");
    clock_.Advance(LongestSession);
    Require(ends_ == 1, "an entry ends once");
    Require(!port_->IsOpen(), "the port is closed behind an entry");
    Require(isOpened_ || user_.HasGivenUp() || wasRefused_ || wasAborted_,
            "an entry that nobody gives up leads to its window");
    Require(radio_.Memory == memory, "an entry leaves the radio as it is");
    for (int address = 0; address < 0x400; ++address) {
        const bool isTuning = address >= address::Tuning && address < address::Identity;
        Require(document_.Image.At(address) == image.At(address) || (isTuning && !isInformation_),
                "an entry stores tuning data only, and radio information nothing");
    }
}

void EntryFuzz::Start() {
    ends_ = 0;
    if (isInformation_) {
        engine_.StartInformation();
    } else {
        engine_.StartTestMode();
    }
}

/// What the user does meanwhile.
void EntryFuzz::Act() {
    clock_.Advance(input_.TakeByte());
    switch (input_.TakeByte() % 4) {
    case 0:
        engine_.SetLanguage(Language::Chinese);
        break;
    case 1:
        Start();
        break;
    case 2:
        engine_.Abort();
        wasAborted_ = true;
        ends_ = 1;
        break;
    default:
        break;
    }
}

void EntryFuzz::OnInformation(const std::string& record) {
    const std::vector<std::uint8_t> bytes(record.begin(), record.end());
    information_ = record;
    Require(bytes.size() == 34, "a manufacturing record has 34 bytes");
    const std::string serial = SerialNumberOf(bytes);
    Require(Utf8Of(Utf16Of(serial)) == serial, "a serial number is UTF-8");
    const std::vector<std::uint8_t>& identity = engine_.Identity();
    Require(identity.size() == 8, "the record comes behind an identity");
    static_cast<void>(InformationModelOf(identity[6], identity[5]));
}

void EntryFuzz::OnTestModeReady() {
    End(!isInformation_ && engine_.IsEntryDone());
    for (const TestFrequencyTexts& texts : service_.TestFrequencyText) {
        Require(texts.receive.size() == 9 || texts.receive == "0", "a test channel has its frequency");
    }
}

void EntryFuzz::OnExchangeEnded() {
    ++ends_;
    wasRefused_ = wasRefused_ || !user_.HasGivenUp();
}

void EntryFuzz::OnProgress(int replies, int all) {
    Require(replies >= 0 && replies <= all, "progress has an end");
}

void EntryFuzz::End(bool isWanted) {
    Require(isWanted, "the window that opens is the one that was asked for");
    Require(!port_->IsOpen(), "a window opens on a closed port");
    ++ends_;
    isOpened_ = true;
}

} // namespace zelvor::fuzz
