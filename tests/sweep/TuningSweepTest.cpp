// All tuning dialogs in both widths, ended by OK and by Cancel, with every reply spoilt in every way.

#include "TuningFuzz.h"
#include "data/TuneItems.h"
#include "sweep/Sweep.h"

namespace zelvor::sweep {
namespace {

using fuzz::TuningFuzz;

struct TuningRules {
    using Session = TuningFuzz;
    static constexpr int Timeout = 100;

    int item = 1;
    bool isNarrow = false;
    bool isOk = false;

    /// A programmed image, with the test frequency at 144 MHz. Changes the value of every page, keys and goes to
    /// another page, keys and ends it; or measures for a while and ends it.
    [[nodiscard]] Bytes Course() const {
        constexpr std::uint8_t page = 0;
        constexpr std::uint8_t value = 1;
        constexpr std::uint8_t ptt = 2;
        constexpr std::uint8_t measure = 3;
        constexpr std::uint8_t wait = 5;
        const TuningDialog dialog = TuningDialogOf(item, isNarrow);
        std::vector<Bytes> acts;
        if (dialog.kind == TuningKind::Measured) {
            acts = {{measure}, {measure}};
        } else {
            acts = {{value, 120}};
            for (std::size_t i = 1; i < dialog.points.size(); ++i) {
                acts.push_back({page, static_cast<std::uint8_t>(i)});
                acts.push_back({value, static_cast<std::uint8_t>(100 + 9 * i)});
            }
            acts.insert(acts.end(), {{ptt}, {value, 99}, {ptt}, {ptt}, {page, 0}, {ptt}});
        }
        Bytes course{isNarrow, static_cast<std::uint8_t>(item - 1), 1, 48, 110, 0};
        std::size_t count = 0;
        for (const Bytes& act : acts) {
            course.insert(course.end(), act.begin(), act.end());
            course.insert(course.end(), {wait, 255});
            count += 2;
        }
        course[5] = static_cast<std::uint8_t>(count);
        course.push_back(isOk ? 1 : 0);
        return course;
    }
    [[nodiscard]] std::unique_ptr<TuningFuzz> Make(const fuzz::ExchangeInputs& inputs) const {
        return std::make_unique<TuningFuzz>(inputs);
    }

    /// Of a point only the count of its bytes is looked at, and any byte is a measured value.
    [[nodiscard]] std::optional<bool> IsNoticed(const fuzz::SpoiltRadio::Reply& reply, Spoiling spoiling) const {
        const bool isUntested = reply.command == Bytes{0x07} || reply.command.back() == 0x0A;
        return isUntested && spoiling == Spoiling::Wrong ? false : IsUsuallyNoticed(spoiling);
    }

    /// A value that is measured again is another one.
    void ExpectDone(const TuningFuzz& run, const TuningFuzz& undisturbed, const Case& /*spoilt*/,
                    const fuzz::SpoiltRadio::Reply& /*reply*/) const {
        EXPECT_FALSE(run.IsAborted());
        DataImage expected = undisturbed.Radio().Memory;
        const TuneCell& cell = TuneItemOf(item).Cell(TunePoint::Test);
        if (item >= FirstMeasuredItem && isOk) {
            expected.Set(cell.address, LastSet(run));
        }
        EXPECT_EQ(run.Radio().Memory, expected);
    }

    /// The radio's memory changes with a Store alone.
    void ExpectGivenUp(const TuningFuzz& run, const TuningFuzz& /*undisturbed*/, const Case& /*spoilt*/) const {
        EXPECT_TRUE(run.IsAborted());
        const bool isStored = std::ranges::any_of(run.Radio().Commands(), [](const Bytes& command) {
            return command.size() == 2 && command[0] != 0x08 && command[1] == 0x0E;
        });
        EXPECT_TRUE(isStored || run.Radio().Memory == run.MemoryBefore());
    }

private:
    static std::uint8_t LastSet(const TuningFuzz& run) {
        std::uint8_t value = 0;
        for (const Bytes& command : run.Radio().Commands()) {
            value = command.size() == 3 ? command.back() : value;
        }
        return value;
    }
};

TEST(TuningSweep, AllDialogs) {
    Count count("tuning dialogs");
    for (int item = 1; item <= TuneItemCount; ++item) {
        for (const bool isNarrow : {false, true}) {
            for (const bool isOk : {false, true}) {
                SCOPED_TRACE("item " + std::to_string(item) + (isNarrow ? " narrow" : " wide") +
                             (isOk ? " OK" : " Cancel"));
                TuningRules rules;
                rules.item = item;
                rules.isNarrow = isNarrow;
                rules.isOk = isOk;
                SweepAll(rules, count);
            }
        }
    }
}

} // namespace
} // namespace zelvor::sweep
