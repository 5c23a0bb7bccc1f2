// The simulated radio on its line, with any bytes at any time, and any faults.

#include <algorithm>

#include "FuzzImages.h"
#include "Require.h"
#include "simulator/RadioLine.h"
#include "simulator/RadioResponder.h"

namespace zelvor::fuzz {
namespace {

using std::chrono::milliseconds;

constexpr std::uint8_t Entry[]{'P', 'R', 'O', 'G', 'R', 'A', 'M'};
constexpr LineTime LongSilence = std::chrono::seconds(2);
constexpr std::size_t LongestReply = 4 + 255; // a read of as many bytes as its count can ask for

class SimulatorFuzz : private RadioLineListener {
public:
    explicit SimulatorFuzz(FuzzInput& input) : input_(input), memory_(TakeImage(input)) {
        for (int faults = input.TakeByte() % 4; faults > 0; --faults) {
            const auto kind = static_cast<FaultKind>(input.TakeByte() % 6);
            const int value = 1 + input.TakeByte();
            faults_.Add({kind, value, 1 + input.TakeByte() % LastFaultyReply});
        }
    }

    void Run() {
        const DataImage before = memory_;
        while (!input_.IsEmpty()) {
            const int pause = 4 * input_.TakeByte();
            Send(input_.TakeBytes(1 + input_.TakeByte()));
            Pass(now_ + milliseconds(pause));
        }
        Pass(now_ + std::chrono::seconds(60)); // all is on the line by then, and all delays are over
        Require(taken_ + skipped_ == sent_ || wasUnplugged_, "every byte is taken or skipped");
        Require(maySet_ || memory_ == before, "nothing but a write and a store changes the memory");
        CheckEntry();
    }

private:
    void Send(const std::vector<std::uint8_t>& bytes) {
        sent_ += bytes.size();
        maySet_ = maySet_ || std::ranges::find(bytes, 'W') != bytes.end() ||
                  std::ranges::find(bytes, std::uint8_t{0x0E}) != bytes.end();
        line_.HostSent(bytes, now_);
    }

    void Pass(LineTime until) {
        while (const auto next = line_.NextDeadline()) {
            if (*next > until) {
                break;
            }
            now_ = std::max(now_, *next);
            line_.Advance(now_);
            const auto later = line_.NextDeadline();
            Require(!later || *later > *next || *later >= now_, "time goes on");
            Require(!later || *later > now_, "what is due is done");
        }
        now_ = until;
    }

    /// Whatever was sent before, a session can begin after a silence.
    void CheckEntry() {
        Pass(now_ + LongSilence);
        while (!faults_.Waiting().empty() && faults_.ReplyCount() < LastFaultyReply) {
            Send({Entry, Entry + sizeof Entry});
            Pass(now_ + LongSilence);
        }
        delivered_.clear();
        Send({Entry, Entry + sizeof Entry});
        Pass(now_ + LongSilence);
        Require(delivered_ == std::vector<std::uint8_t>{0x06}, "a session begins in every state");
    }

    void Deliver(std::uint8_t byte) override { delivered_.push_back(byte); }
    void Unplugged(LineTime /*time*/) override { wasUnplugged_ = true; }
    void CommandTaken(LineTime time, std::span<const std::uint8_t> command, std::string_view /*text*/) override {
        Require(time <= now_ && !command.empty(), "a command has come before it is taken");
        taken_ += command.size();
    }
    void BytesSkipped(LineTime time, std::span<const std::uint8_t> bytes) override {
        Require(time <= now_ && !bytes.empty(), "bytes have come before they are skipped");
        skipped_ += bytes.size();
    }
    void ReplySent(LineTime time, std::span<const std::uint8_t> reply) override {
        Require(time <= now_ && !reply.empty() && reply.size() <= LongestReply, "a reply has its length");
    }
    void FaultFired(LineTime /*time*/, const Fault& /*fault*/) override {}
    void SessionStarted() override {}
    void SessionEnded() override {}

    static constexpr int LastFaultyReply = 16;

    FuzzInput& input_;
    DataImage memory_;
    RadioResponder responder_{memory_};
    FaultPlan faults_;
    RadioLine line_{responder_, faults_, *this};
    LineTime now_ = LineTime(0);
    std::vector<std::uint8_t> delivered_;
    std::size_t sent_ = 0;
    std::size_t taken_ = 0;
    std::size_t skipped_ = 0;
    bool wasUnplugged_ = false;
    bool maySet_ = false;
};

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    zelvor::fuzz::FuzzInput input(bytes, count);
    zelvor::fuzz::SimulatorFuzz(input).Run();
    return 0;
}
