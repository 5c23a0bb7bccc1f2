// A session in test mode, with every reply spoilt in every way.

#include "TestModeFuzz.h"
#include "sweep/Sweep.h"

namespace zelvor::sweep {
namespace {

using fuzz::TestModeFuzz;

struct TestModeRules {
    using Session = TestModeFuzz;
    static constexpr int Timeout = 200;

    /// A programmed document. Keys and unkeys, chooses channel 2, signalling 3, narrow and wide, keys and changes to
    /// channel 3, narrow while keyed, tunes item 1 while keyed, keys, and closes.
    [[nodiscard]] Bytes Course() const {
        constexpr std::uint8_t channel = 0;
        constexpr std::uint8_t signalling = 1;
        constexpr std::uint8_t width = 2;
        constexpr std::uint8_t ptt = 3;
        constexpr std::uint8_t tune = 4;
        constexpr std::uint8_t wait = 6;
        const std::vector<Bytes> acts{{},    {ptt},        {ptt}, {channel, 1}, {signalling, 2}, {width, 0}, {width, 1},
                                      {ptt}, {channel, 2}, {ptt}, {width, 0},   {ptt},           {tune, 0},  {ptt}};
        Bytes course{1, 0};
        for (const Bytes& act : acts) {
            course.insert(course.end(), act.begin(), act.end());
            course.insert(course.end(), {wait, 255, wait, 255, wait, 255, wait, 255});
            course[1] = static_cast<std::uint8_t>(course[1] + 4 + (act.empty() ? 0 : 1));
        }
        course.push_back(0); // the acts end before the bytes do
        return course;
    }
    [[nodiscard]] std::unique_ptr<TestModeFuzz> Make(const fuzz::ExchangeInputs& inputs) const {
        return std::make_unique<TestModeFuzz>(inputs);
    }

    /// Any byte counts as an acknowledgement behind a channel or a tuning record, any eight or one as a channel, and
    /// any 62 as a record; nothing waits for an answer to the End.
    [[nodiscard]] std::optional<bool> IsNoticed(const fuzz::SpoiltRadio::Reply& reply, Spoiling spoiling) const {
        const bool isChannel = reply.command.front() == 0x10;
        const bool isUntested = isChannel || IsTuningRecord(reply) || reply.command == Bytes{0x06};
        if (reply.command == Bytes{'E'} || (isUntested && spoiling == Spoiling::Wrong) ||
            (isChannel && spoiling == Spoiling::CutToOne)) {
            return false;
        }
        return IsUsuallyNoticed(spoiling);
    }

    void ExpectDone(const TestModeFuzz& run, const TestModeFuzz& undisturbed, const Case& spoilt,
                    const fuzz::SpoiltRadio::Reply& reply) const {
        EXPECT_FALSE(run.Service().TestAborted);
        EXPECT_EQ(run.Tunings(), 1);
        EXPECT_EQ(LastTold(run), LastTold(undisturbed));
        if (spoilt.spoiling != Spoiling::Wrong || !IsTuningRecord(reply)) {
            EXPECT_EQ(run.Image(), undisturbed.Image());
            EXPECT_EQ(run.Service().Values, undisturbed.Service().Values);
        }
    }
    void ExpectGivenUp(const TestModeFuzz& run, const TestModeFuzz& /*undisturbed*/, const Case& /*spoilt*/) const {
        EXPECT_TRUE(run.Service().TestAborted);
        EXPECT_NE(run.Radio().Commands().back(), Bytes{'E'});
    }

private:
    static bool IsTuningRecord(const fuzz::SpoiltRadio::Reply& reply) { return reply.command == Bytes{0x05}; }

    /// The channel, signalling, width and PTT that the radio was told last, and whether it was told the End.
    static std::map<std::uint8_t, Bytes> LastTold(const TestModeFuzz& run) {
        std::map<std::uint8_t, Bytes> told;
        for (const Bytes& command : run.Radio().Commands()) {
            told[command.front() == 'G' ? std::uint8_t{'F'} : command.front()] = command;
        }
        return told;
    }
};

TEST(TestModeSweep, Session) {
    Count count("test mode");
    SweepAll(TestModeRules(), count);
}

} // namespace
} // namespace zelvor::sweep
