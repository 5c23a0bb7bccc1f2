#include "CloneFuzz.h"

#include "ClonePromises.h"
#include "Require.h"

namespace zelvor::fuzz {

namespace {

constexpr int LongestSession = 60'000; // milliseconds, of 52 exchanges that each take nearly their time-out

} // namespace

CloneFuzz::CloneFuzz(const ExchangeInputs& inputs, int transferMode)
    : SpoiltExchange(inputs), mode_(transferMode), language_(input_.TakeBool() ? Language::Chinese : Language::English),
      engine_(document_, {link_, *port_, clock_, user_, language_}, *this) {
    document_.Image = imageBefore_ = TakeImage(input_);
    radio_.Memory = memoryBefore_ = TakeImage(input_);
    link_.TransferMode = mode_;
    user_.WhileUp = [this] {
        isTornDown_ = true;
        engine_.Unload();
    };
}

void CloneFuzz::Run() {
    engine_.Load();
    engine_.Start();
    const int budget = LongestSession * (1 + 256); // no input has more retries
    Require(RunsToItsEnd(clock_, budget, [this] { return unloads_ > 0 || isTornDown_; }), "a transfer ends");
    Require(clock_.TickCount() <= LongestSession * (1 + user_.Retries()), "a transfer ends in time");
    Require(unloads_ == 1 || isTornDown_, "a transfer ends once");
    Require(completed_ <= 1, "a transfer is completed once");
    Require(!port_->IsOpen(), "the port is closed behind a transfer");
    const std::size_t sent = radio_.Commands().size();
    clock_.Advance(LongestSession);
    Require(radio_.Commands().size() == sent && !port_->IsOpen(), "nothing is sent behind a transfer");
    Require(completed_ == 1 || user_.HasGivenUp() || isTornDown_, "a transfer that nobody gives up is completed");
    if (mode_ == transfer::Reading) {
        CheckRead(*this);
    } else {
        CheckWrite(*this);
    }
}

void CloneFuzz::OnProgress(int value) {
    Require(value >= 0 && value <= engine_.ProgressMaximum(), "the progress is within its bar");
}

void CloneFuzz::OnUnloadRequested() {
    ++unloads_;
    engine_.Unload();
}

} // namespace zelvor::fuzz
