#include "simulator/ServiceResponder.h"

#include <cstddef>
#include <utility>

#include "data/MemoryMap.h"
#include "data/TestFrequencies.h"

namespace zelvor {
namespace {

using command::Acknowledge;
using command::End;
using command::IdentityRequest;

constexpr std::uint8_t TuningDataRequest = 0x05;
constexpr std::uint8_t PointRequest = 0x07;
constexpr std::uint8_t Transmitter = 0x08; // and On or Off
constexpr std::uint8_t Channel = 0x10;     // and 1 to 16
constexpr std::uint8_t Signalling = 0x11;  // and 1 to 9
constexpr std::uint8_t Wide = 'F';
constexpr std::uint8_t Narrow = 'G';

// Behind Transmitter.
constexpr std::uint8_t On = 0x0D;
constexpr std::uint8_t Off = 0x0E;

// Behind a code.
constexpr std::uint8_t MeasurementRequest = 0x0A;
constexpr std::uint8_t Select = 0x0D;
constexpr std::uint8_t Store = 0x0E;
constexpr std::uint8_t Set = 0x20; // and the value

constexpr int SignallingCount = 9;

// The measured value rises from Lowest by one a reading, and falls again.
constexpr int Lowest = 100;
constexpr int Rise = 20;

constexpr int MeasuredValue(int reading) {
    const int phase = reading % (2 * Rise);
    return Lowest + (phase <= Rise ? phase : 2 * Rise - phase);
}

Reaction Acknowledged(std::string description) {
    return {0, {Acknowledge}, SessionEvent::None, std::move(description)};
}

} // namespace

Reaction ServiceResponder::Enter() {
    Restart();
    active_ = true;
    return {0, {Acknowledge}, SessionEvent::Started, "Tuning entry"};
}

std::optional<Reaction> ServiceResponder::Take(std::uint8_t byte) {
    command_.push_back(byte);
    const std::size_t length = CommandLength();
    if (command_.size() < length) {
        return std::nullopt;
    }
    std::optional<Reaction> reaction = length > 0 ? Answer() : std::nullopt;
    if (reaction) {
        reaction->commandLength = length;
    }
    command_.clear();
    return reaction;
}

std::optional<Reaction> ServiceResponder::LineSilent() {
    command_.clear();
    return std::nullopt;
}

void ServiceResponder::Restart() {
    command_.clear();
    active_ = false;
    selectedCode_ = 0;
    tuning_.Begin();
}

/// The full length of the command begun, as far as its bytes tell; 0 where there is no such command.
std::size_t ServiceResponder::CommandLength() const {
    if (!active_) {
        return 0;
    }
    switch (command_.front()) {
    case IdentityRequest:
    case TuningDataRequest:
    case Acknowledge:
    case PointRequest:
    case Wide:
    case Narrow:
    case End:
        return 1;
    case Transmitter:
    case Channel:
    case Signalling:
        return 2;
    default:
        break;
    }
    if (!TuningState::IsCode(command_.front())) {
        return 0;
    }
    return command_.size() > 1 && command_[1] == Set ? 3 : 2;
}

std::optional<Reaction> ServiceResponder::Answer() {
    switch (command_.front()) {
    case IdentityRequest:
        return Reaction{0, IdentityReply(memory_), SessionEvent::None, "Identity request"};
    case TuningDataRequest:
        return ReadTuningData();
    case Acknowledge:
        return Acknowledged("Acknowledge");
    case PointRequest:
        return ReadPoint();
    case Transmitter:
        return SetTransmitter();
    case Channel:
        return SetChannel();
    case Signalling:
        return SetSignalling();
    case Wide:
        return SetWidth(false);
    case Narrow:
        return SetWidth(true);
    case End:
        return EndSession();
    default:
        return AnswerTuning();
    }
}

std::optional<Reaction> ServiceResponder::AnswerTuning() {
    const std::optional<TunePlace> place = tuning_.Find(command_.front());
    if (!place) {
        return std::nullopt;
    }
    switch (command_[1]) {
    case Select:
        selectedCode_ = command_.front();
        return Acknowledged("Select " + TunePlaceText(*place));
    case Set:
        return SetValue(*place);
    case Store:
        tuning_.Store(place->item);
        return Acknowledged("Store " + TunePlaceText(*place));
    case MeasurementRequest:
        return place->item >= FirstMeasuredItem ? std::optional(Measure(*place)) : std::nullopt;
    default:
        return std::nullopt;
    }
}

/// Also the reading of a test frequency: the same bytes ask for both.
std::optional<Reaction> ServiceResponder::SetChannel() const {
    const int channel = command_[1];
    if (channel < 1 || channel > TestChannelCount) {
        return std::nullopt;
    }
    Reaction reaction{0, {}, SessionEvent::None, "Set channel " + std::to_string(channel)};
    const int record = address::TestFrequencies + (channel - 1) * address::TestFrequencyPairSize;
    for (int i = 0; i < address::TestFrequencyPairSize; ++i) {
        reaction.reply.push_back(memory_.At(record + i));
    }
    return reaction;
}

std::optional<Reaction> ServiceResponder::SetSignalling() const {
    const int number = command_[1];
    if (number < 1 || number > SignallingCount) {
        return std::nullopt;
    }
    return Acknowledged("Set signalling " + std::to_string(number));
}

std::optional<Reaction> ServiceResponder::SetTransmitter() const {
    switch (command_[1]) {
    case On:
        return Acknowledged("PTT on");
    case Off:
        return Acknowledged("PTT off");
    default:
        return std::nullopt;
    }
}

Reaction ServiceResponder::SetWidth(bool narrow) {
    tuning_.SetNarrow(narrow);
    return Acknowledged(narrow ? "Narrow" : "Wide");
}

/// The selected code, its value, and four bytes for nothing: nobody looks at them.
Reaction ServiceResponder::ReadPoint() const {
    const std::optional<TunePlace> place = tuning_.Find(selectedCode_);
    const std::uint8_t value = place ? tuning_.WorkingValue(*place) : std::uint8_t{0};
    return {0, {selectedCode_, value, 0, 0, 0, 0}, SessionEvent::None, "Read point"};
}

Reaction ServiceResponder::ReadTuningData() const {
    const TuningRecord record = tuning_.Record();
    return {0, {record.begin(), record.end()}, SessionEvent::None, "Read tuning data"};
}

Reaction ServiceResponder::SetValue(const TunePlace& place) {
    const std::uint8_t value = command_[2];
    tuning_.Set(place, value);
    return Acknowledged("Set " + TunePlaceText(place) + " to " + std::to_string(value));
}

Reaction ServiceResponder::Measure(const TunePlace& place) {
    const auto value = static_cast<std::uint8_t>(MeasuredValue(measurements_++));
    return {0, {value}, SessionEvent::None, "Read measurement of " + TunePlaceText(place)};
}

Reaction ServiceResponder::EndSession() {
    Restart();
    return {0, {Acknowledge}, SessionEvent::Ended, "End"};
}

} // namespace zelvor
