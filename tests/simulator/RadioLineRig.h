#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Feed.h"
#include "simulator/RadioLine.h"
#include "simulator/RadioResponder.h"

namespace zelvor::test {

/// Eleven bits of 1/9600 s in units of 1/3000000000 s.
inline constexpr LineTime OneByte{3'437'500};

struct Arrival {
    LineTime time;
    std::uint8_t byte;
};

class Recorder : public RadioLineListener {
public:
    LineTime now{0}; // set by the test's clock

    std::vector<Arrival> delivered;
    std::vector<Bytes> commands;
    std::vector<LineTime> commandTimes;
    std::vector<std::string> descriptions; // of the commands that have one
    std::vector<Bytes> skipped;
    std::vector<Bytes> replies;
    std::vector<Fault> fired;
    int started = 0;
    int ended = 0;
    int unplugged = 0;

    void Deliver(std::uint8_t byte) override { delivered.push_back({now, byte}); }
    void Unplugged(LineTime /*time*/) override { ++unplugged; }
    void CommandTaken(LineTime time, std::span<const std::uint8_t> bytes, std::string_view description) override {
        Add(commands, bytes);
        commandTimes.push_back(time);
        if (!description.empty()) {
            descriptions.emplace_back(description);
        }
    }
    void BytesSkipped(LineTime /*time*/, std::span<const std::uint8_t> bytes) override { Add(skipped, bytes); }
    void ReplySent(LineTime /*time*/, std::span<const std::uint8_t> bytes) override { Add(replies, bytes); }
    void FaultFired(LineTime /*time*/, const Fault& fault) override { fired.push_back(fault); }
    void SessionStarted() override { ++started; }
    void SessionEnded() override { ++ended; }

private:
    static void Add(std::vector<Bytes>& list, std::span<const std::uint8_t> bytes) {
        list.emplace_back(bytes.begin(), bytes.end());
    }
};

class RadioLineTest : public ::testing::Test {
protected:
    void Send(const Bytes& bytes) { line.HostSent(bytes, heard.now); }

    /// Lets the virtual clock jump from deadline to deadline until the line has nothing to do before `limit` has
    /// passed.
    void Run(LineTime limit = std::chrono::milliseconds(400)) {
        const LineTime end = heard.now + limit;
        for (auto next = line.NextDeadline(); next && *next <= end; next = line.NextDeadline()) {
            heard.now = *next;
            line.Advance(heard.now);
        }
    }

    void Pass(LineTime time) {
        heard.now += time;
        line.Advance(heard.now);
    }

    /// Sends and runs; what came back for it.
    Bytes Ask(const Bytes& bytes) {
        const std::size_t before = heard.delivered.size();
        Send(bytes);
        Run();
        Bytes answer;
        for (std::size_t i = before; i < heard.delivered.size(); ++i) {
            answer.push_back(heard.delivered[i].byte);
        }
        return answer;
    }

    DataImage memory;
    RadioResponder radio{memory};
    FaultPlan faults;
    Recorder heard;
    RadioLine line{radio, faults, heard};
};

} // namespace zelvor::test
