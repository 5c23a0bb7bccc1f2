#include "TestModeFuzz.h"

#include "FuzzImages.h"
#include "Require.h"
#include "ServiceRadio.h"
#include "data/MemoryMap.h"
#include "data/TuneItems.h"

namespace zelvor::fuzz {

namespace {

constexpr std::uint8_t TuningEntry[]{'T', 'U', 'N', 'I', 'N', 'G', ' '};

bool IsCommand(const std::vector<std::uint8_t>& command) {
    const std::uint8_t first = command[0];
    if (command.size() == 1) {
        return first == 0x05 || first == 0x06 || first == 'F' || first == 'G' || first == 'E';
    }
    const std::uint8_t second = command[1];
    switch (first) {
    case 0x08:
        return second == 0x0D || second == 0x0E;
    case 0x10:
        return second >= 1 && second <= 16;
    case 0x11:
        return second >= 1 && second <= 9;
    default:
        return command.size() == 2 && second == 0x0D; // an item is selected
    }
}

} // namespace

TestModeFuzz::TestModeFuzz(const ExchangeInputs& inputs) : SpoiltExchange(inputs) {
    document_.Image = TakeImage(input_);
    radio_.Memory = document_.Image;
    radio_.Prepare(TuningEntry);
    user_.WhileUp = [this] {
        Act(); // in a list that was open already
        clock_.Advance(LongestClosing);
    };
}

void TestModeFuzz::Run() {
    const DataImage image = document_.Image;
    const DataImage memory = radio_.Memory;
    engine_.Load();
    for (int actions = input_.TakeByte(); actions > 0 && !input_.IsEmpty() && closed_ == 0; --actions) {
        Act();
    }
    Leave();
    Require(radio_.Memory == memory, "test mode stores nothing in the radio");
    for (int address = 0; address < 0x400; ++address) {
        const bool isTuningData = address >= address::Tuning && address < address::Identity;
        Require(isTuningData || document_.Image.At(address) == image.At(address), "test mode takes tuning data only");
    }
    for (const std::vector<std::uint8_t>& command : radio_.Commands()) {
        Require(IsCommand(command), "test mode sends commands of test mode");
    }
}

void TestModeFuzz::Act() {
    switch (input_.TakeByte() % 8) {
    case 0:
        engine_.ChooseChannel(1 + input_.TakeByte() % 16);
        break;
    case 1:
        engine_.ChooseSignalling(1 + input_.TakeByte() % 9);
        break;
    case 2:
        engine_.ChooseWide(input_.TakeBool());
        break;
    case 3:
        engine_.PressPtt();
        break;
    case 4:
        service_.TuneItem = 1 + input_.TakeByte() % TuneItemCount;
        engine_.Tune();
        break;
    case 5:
        radio_.PlugIn();
        break;
    default:
        clock_.Advance(input_.TakeByte());
    }
}

void TestModeFuzz::Leave() {
    const auto timeOfTheRadio = [this] { return clock_.TickCount() - user_.TimeInBoxes(); };
    const std::int64_t begin = timeOfTheRadio();
    const int retries = user_.Retries();
    isLeaving_ = true;
    engine_.Close();
    Require(RunsToItsEnd(clock_, LongestClosing * 300, [this] { return closed_ > 0; }), "test mode can be left");
    Require(timeOfTheRadio() - begin <= LongestClosing * (1 + user_.Retries() - retries), "test mode is left in time");
    Require(!port_->IsOpen(), "the port is closed behind test mode");
    Require(!IsLeftKeyed(radio_.Commands()) || service_.TestAborted, "no transmitter is left keyed");
    const std::size_t sent = radio_.Commands().size();
    engine_.PressPtt();
    engine_.ChooseChannel(1);
    clock_.Advance(LongestClosing);
    Require(radio_.Commands().size() == sent && closed_ == 1, "nothing comes behind the end");
}

/// The tuning dialog is opened and closed again; it has a target of its own.
void TestModeFuzz::OnTuningReady() {
    ++tunings_;
    Require(!isLeaving_, "nothing is tuned behind the end");
    Require(!port_->IsOpen(), "the tuning dialog opens on a closed port");
    Require(service_.TuneItem >= 1 && service_.TuneItem <= TuneItemCount, "an item is tuned");
}

void TestModeFuzz::OnUnloadRequested() {
    isLeaving_ = true;
    engine_.Close();
}

} // namespace zelvor::fuzz
