#include "TuningFuzz.h"

#include <algorithm>

#include "FuzzImages.h"
#include "Require.h"
#include "ServiceRadio.h"
#include "data/MemoryMap.h"
#include "service/FrequencyPoints.h"

namespace zelvor::fuzz {

namespace {

constexpr std::uint8_t TuningEntry[]{'T', 'U', 'N', 'I', 'N', 'G', ' '};
constexpr std::uint8_t Narrow[]{'G'};

} // namespace

TuningFuzz::TuningFuzz(const ExchangeInputs& inputs)
    : SpoiltExchange(inputs), isNarrow_(input_.TakeBool()),
      dialog_(TuningDialogOf(1 + input_.TakeByte() % TuneItemCount, isNarrow_)), image_(TakeImage(input_)),
      values_(LoadValues()),
      engine_(service_, {link_, *port_, clock_, user_, Language::English}, PlanOf(dialog_), *this, *this) {
    radio_.Memory = image_;
    radio_.Prepare(TuningEntry);
    user_.WhileUp = [this] {
        Act(); // in a list that was open already
        clock_.Advance(LongestClosing);
    };
    if (isNarrow_) {
        radio_.Prepare(Narrow);
    }
}

void TuningFuzz::Run() {
    engine_.Load();
    for (int actions = input_.TakeByte(); actions > 0 && !input_.IsEmpty() && closed_ == 0; --actions) {
        Act();
    }
    const bool isOk = input_.TakeBool();
    Leave(isOk ? TuningEngine::Ending::Ok : TuningEngine::Ending::Cancel);
    for (int address = 0; address < 0x400; ++address) {
        const bool isSame = radio_.Memory.At(address) == image_.At(address);
        Require(isSame || IsOfItem(address), "tuning an item stores its own values");
        Require(isSame || isOk || !radio_.IsUnspoilt(), "Cancel brings the old values back");
    }
    for (const std::vector<std::uint8_t>& command : radio_.Commands()) {
        Require(IsCommand(command), "tuning sends commands of tuning");
    }
}

LinkedValues TuningFuzz::LoadValues() const {
    const TuneItemRow& item = TuneItemOf(dialog_.tuneItem);
    const std::optional<FrequencyPoints> points = FrequencyPointsOf(image_);
    std::vector<std::uint8_t> values;
    std::vector<std::int64_t> frequencies;
    for (const TunePoint point : dialog_.points) {
        values.push_back(static_cast<std::uint8_t>(TuneValueOf(item, point, image_, {})));
        if (dialog_.kind == TuningKind::Points && point != TunePoint::Test && points) {
            frequencies.push_back(points->At(point).transmit);
        }
    }
    const std::int64_t testFrequency = std::int64_t{input_.TakeByte()} * 300'000;
    return {values, frequencies, testFrequency, input_.TakeByte()};
}

void TuningFuzz::Act() {
    switch (input_.TakeByte() % 6) {
    case 0:
        ChangePage(input_.TakeByte() % Pages());
        break;
    case 1:
        ChangeValue(input_.TakeByte());
        break;
    case 2:
        engine_.PressPtt();
        break;
    case 3:
        if (dialog_.kind == TuningKind::Measured) {
            engine_.ToggleMeasuring();
        }
        break;
    case 4:
        radio_.PlugIn();
        break;
    default:
        clock_.Advance(4 * input_.TakeByte());
    }
}

void TuningFuzz::ChangePage(int page) {
    if (dialog_.kind == TuningKind::Points && page != page_) {
        page_ = page;
        engine_.ChangePage(page);
    }
}

void TuningFuzz::ChangeValue(int value) {
    const bool isLinked = dialog_.kind == TuningKind::Points;
    if (dialog_.kind == TuningKind::Measured || (isLinked && page_ == 0 && !values_.MayMoveTest(value))) {
        return;
    }
    values_.Set(page_, value);
    engine_.SliderMoved();
}

void TuningFuzz::Leave(TuningEngine::Ending ending) {
    const auto timeOfTheRadio = [this] { return clock_.TickCount() - user_.TimeInBoxes(); };
    const std::int64_t begin = timeOfTheRadio();
    const int retries = user_.Retries();
    engine_.Close(ending);
    Require(RunsToItsEnd(clock_, LongestClosing * 300, [this] { return closed_ > 0; }), "a dialog can be left");
    Require(timeOfTheRadio() - begin <= LongestClosing * (1 + user_.Retries() - retries), "a dialog is left in time");
    Require(!port_->IsOpen(), "the port is closed behind a tuning dialog");
    Require(!IsLeftKeyed(radio_.Commands()) || service_.TestAborted, "no transmitter is left keyed");
    const std::size_t sent = radio_.Commands().size();
    engine_.PressPtt();
    engine_.SliderMoved();
    clock_.Advance(LongestClosing);
    Require(radio_.Commands().size() == sent && closed_ == 1, "nothing comes behind the end");
}

bool TuningFuzz::IsOfItem(int address) const {
    return std::ranges::any_of(TuneItemOf(dialog_.tuneItem).cells,
                               [address](const TuneCell& cell) { return cell.Exists() && cell.address == address; });
}

bool TuningFuzz::IsCommand(const std::vector<std::uint8_t>& command) const {
    if (command.size() == 1) {
        return command[0] == 0x06 || command[0] == 0x07;
    }
    if (command[0] == 0x08) {
        return command.size() == 2 && (command[1] == 0x0D || command[1] == 0x0E);
    }
    bool isOwnCode = command[0] == TuneItemOf(dialog_.tuneItem).code;
    for (const TuneCell& cell : TuneItemOf(dialog_.tuneItem).cells) {
        isOwnCode = isOwnCode || (cell.Exists() && cell.code == command[0]);
    }
    const bool isSet = command.size() == 3 && command[1] == 0x20;
    const bool isOther = command.size() == 2 && (command[1] == 0x0D || command[1] == 0x0E || command[1] == 0x0A);
    return isOwnCode && (isSet || isOther);
}

void TuningFuzz::OnPointRead(int page) {
    Require(page >= 0 && page < Pages(), "a point is one of the dialog's");
}

void TuningFuzz::OnMeasured(int value) {
    Require(value >= 0 && value <= 255, "a measured value is a byte");
    values_.SetMeasured(value);
}

} // namespace zelvor::fuzz
