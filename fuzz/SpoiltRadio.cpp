#include "SpoiltRadio.h"

#include <algorithm>
#include <utility>

#include "Require.h"

namespace zelvor::fuzz {

namespace {

constexpr const char* PortName = "MSComm1";
constexpr int LongestForeign = 80;
constexpr int NotTold = -1;

} // namespace

SpoiltRadio::SpoiltRadio(FuzzInput& input, FakeClock& clock, FakeSerialPorts& ports)
    : input_(input), clock_(clock), ports_(ports) {
    ports.OnMake = [this](FakeSerialPort& port) {
        port.OnSend = [this](std::span<const std::uint8_t> bytes) { Serve(bytes); };
    };
}

void SpoiltRadio::Prepare(std::span<const std::uint8_t> bytes) {
    static_cast<void>(ReplyTo(bytes));
}

void SpoiltRadio::Serve(std::span<const std::uint8_t> command) {
    commands_.emplace_back(command.begin(), command.end());
    std::vector<std::uint8_t> reply = ReplyTo(command);
    if (!reply.empty()) {
        replies_.push_back({commands_.back(), reply});
        Spoil(std::move(reply));
    }
}

std::vector<std::uint8_t> SpoiltRadio::ReplyTo(std::span<const std::uint8_t> command) {
    std::vector<std::uint8_t> reply;
    const auto append = [&reply](const std::optional<Reaction>& reaction) {
        if (reaction) {
            reply.insert(reply.end(), reaction->reply.begin(), reaction->reply.end());
        }
    };
    for (const std::uint8_t byte : command) {
        append(responder_.Take(byte));
    }
    if (responder_.Patience()) {
        append(responder_.LineSilent());
    }
    return reply;
}

/// A byte of the input tells how many replies are whole, and in which way the one behind them is not.
void SpoiltRadio::Spoil(std::vector<std::uint8_t> reply) {
    if (next_ == NotTold && !input_.IsEmpty()) {
        const std::uint8_t told = input_.TakeByte();
        wholeReplies_ = told / WayCount;
        next_ = told % WayCount;
    }
    if (next_ == NotTold || wholeReplies_-- > 0) {
        return Deliver(ReplyDelay, std::move(reply));
    }
    const int way = std::exchange(next_, NotTold);
    isUnspoilt_ = isUnspoilt_ && way == Whole;
    switch (way) {
    case Late:
        return Deliver(ReplyDelay + LateUnit * input_.TakeByte(), std::move(reply));
    case Cut:
        reply.resize(input_.TakeByte() % reply.size());
        return Deliver(ReplyDelay, std::move(reply));
    case Changed: {
        const std::size_t place = input_.TakeByte() % reply.size();
        reply[place] = input_.TakeByte();
        return Deliver(ReplyDelay, std::move(reply));
    }
    case Foreign:
        return Deliver(ReplyDelay, input_.TakeBytes(input_.TakeByte() % LongestForeign));
    case Silent:
        return;
    case Vanished:
        return clock_.At(input_.TakeByte(), [this] {
            if (FakeSerialPort* port = ports_.Port(PortName)) {
                port->Vanish();
            }
        });
    case InPieces: {
        const auto middle = reply.begin() + static_cast<std::ptrdiff_t>(input_.TakeByte() % reply.size());
        Deliver(ReplyDelay + LateUnit * input_.TakeByte(), {middle, reply.end()});
        return Deliver(ReplyDelay, {reply.begin(), middle});
    }
    default:
        return Deliver(ReplyDelay, std::move(reply));
    }
}

void SpoiltRadio::Deliver(int milliseconds, std::vector<std::uint8_t> bytes) {
    clock_.At(milliseconds, [this, bytes = std::move(bytes)] {
        if (FakeSerialPort* port = ports_.Port(PortName)) {
            port->Deliver(bytes);
        }
    });
}

/// Time goes by while the box is up: what is under way arrives, and cables are plugged in.
MessageAnswer FuzzedUser::Show(const Message& message) {
    Require(!isUp_, "one box is up at a time");
    isUp_ = true;
    const std::int64_t begin = clock_.TickCount();
    const bool knows = !input_.IsEmpty();
    const std::uint8_t told = input_.TakeByte();
    clock_.Advance(told);
    if ((told & 2) != 0) {
        radio_.PlugIn();
    }
    if ((told & 0xF0) == 0x90 && WhileUp) {
        WhileUp();
    }
    isUp_ = false;
    timeInBoxes_ += clock_.TickCount() - begin;
    const bool agrees = knows && (told & 1) != 0;
    const bool isAsked = message.buttons != MessageButtons::Ok;
    hasGivenUp_ = hasGivenUp_ || (isAsked && !agrees);
    switch (message.buttons) {
    case MessageButtons::RetryCancel:
        retries_ += agrees ? 1 : 0;
        return agrees ? MessageAnswer::Retry : MessageAnswer::Cancel;
    case MessageButtons::OkCancel:
        hasAgreed_ = hasAgreed_ || agrees;
        return agrees ? MessageAnswer::Ok : MessageAnswer::Cancel;
    default:
        return DefaultOf(message);
    }
}

} // namespace zelvor::fuzz
