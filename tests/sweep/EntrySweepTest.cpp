// Radio information and the way into test mode, with every reply spoilt in every way.

#include "EntryFuzz.h"
#include "sweep/Sweep.h"

namespace zelvor::sweep {
namespace {

using fuzz::EntryFuzz;

struct InformationRules {
    using Session = EntryFuzz;
    static constexpr int Timeout = 100;

    /// Information; a blank document, and a radio that is not.
    [[nodiscard]] Bytes Course() const { return {1, 0, 0, 1, 0}; }
    [[nodiscard]] std::unique_ptr<EntryFuzz> Make(const fuzz::ExchangeInputs& inputs) const {
        return std::make_unique<EntryFuzz>(inputs);
    }

    /// Records are counted, and not looked into.
    [[nodiscard]] std::optional<bool> IsNoticed(const fuzz::SpoiltRadio::Reply& reply, Spoiling spoiling) const {
        const bool isRecord = reply.command == Bytes{'N', 'R', 'K'} || reply.command == Bytes{'P'};
        return isRecord && spoiling == Spoiling::Wrong ? false : IsUsuallyNoticed(spoiling);
    }

    void ExpectDone(const EntryFuzz& run, const EntryFuzz& undisturbed, const Case& spoilt,
                    const fuzz::SpoiltRadio::Reply& reply) const {
        EXPECT_TRUE(run.IsCompleted());
        ASSERT_EQ(run.Information().size(), 34U);
        const bool isChanged = spoilt.spoiling == Spoiling::Wrong && reply.command.size() == 3;
        const std::size_t same = isChanged ? 1 : 0;
        EXPECT_EQ(run.Information().substr(same), undisturbed.Information().substr(same));
    }
    void ExpectGivenUp(const EntryFuzz& run, const EntryFuzz& /*undisturbed*/, const Case& /*spoilt*/) const {
        EXPECT_FALSE(run.IsCompleted());
    }
};

struct TestModeEntryRules {
    using Session = EntryFuzz;
    static constexpr int Timeout = 100;

    /// Test mode; a programmed document, and a radio with the same memory but for two tuning values.
    [[nodiscard]] Bytes Course() const { return {0, 1, 0, 8 + 1, 0x85, 1, 77, 0x88, 1, 78, 0}; }
    [[nodiscard]] std::unique_ptr<EntryFuzz> Make(const fuzz::ExchangeInputs& inputs) const {
        return std::make_unique<EntryFuzz>(inputs);
    }

    /// The tuning record is not looked into; a channel's is, and is no matter of the connection.
    [[nodiscard]] std::optional<bool> IsNoticed(const fuzz::SpoiltRadio::Reply& reply, Spoiling spoiling) const {
        const bool isRecord = IsTuningRecord(reply) || IsChannel(reply);
        return isRecord && spoiling == Spoiling::Wrong ? false : IsUsuallyNoticed(spoiling);
    }

    void ExpectDone(const EntryFuzz& run, const EntryFuzz& undisturbed, const Case& spoilt,
                    const fuzz::SpoiltRadio::Reply& reply) const {
        if (spoilt.spoiling == Spoiling::Wrong && IsChannel(reply)) {
            EXPECT_TRUE(run.WasRefused());
            EXPECT_FALSE(run.IsCompleted());
            return;
        }
        if (spoilt.spoiling == Spoiling::Overdue && run.WasRefused()) {
            return; // it has come for a channel's record, which no answer has a mark of
        }
        EXPECT_TRUE(run.IsCompleted());
        EXPECT_EQ(run.Image(), undisturbed.Image());
        EXPECT_EQ(run.Service().TestFrequencyText, undisturbed.Service().TestFrequencyText);
        TuneValues values = undisturbed.Service().Values;
        if (spoilt.spoiling == Spoiling::Wrong && IsTuningRecord(reply)) {
            values.TestPointSquelchOpen = static_cast<std::int16_t>(~reply.bytes.front() & 0xFF);
        }
        EXPECT_EQ(run.Service().Values, values);
    }
    void ExpectGivenUp(const EntryFuzz& run, const EntryFuzz& /*undisturbed*/, const Case& /*spoilt*/) const {
        EXPECT_FALSE(run.IsCompleted());
    }

private:
    static bool IsTuningRecord(const fuzz::SpoiltRadio::Reply& reply) { return reply.command == Bytes{0x05}; }
    static bool IsChannel(const fuzz::SpoiltRadio::Reply& reply) { return reply.command.front() == 0x10; }
};

TEST(EntrySweep, Information) {
    Count count("radio information");
    SweepAll(InformationRules(), count);
}

TEST(EntrySweep, TestMode) {
    Count count("test mode entry");
    SweepAll(TestModeEntryRules(), count);
}

} // namespace
} // namespace zelvor::sweep
