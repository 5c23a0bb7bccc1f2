#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string_view>

namespace zelvor::random {

/// What the user at random does next.
enum class Act {
    ClickControl,
    ClickAnywhere,
    DoubleClick,
    RightClick,
    Drag,
    Wheel,
    ChooseEntry,
    Shortcut,
    EditKey,
    Type,
    AnswerBox,
    EnterPath,
    MapGesture,
    CloseWindow,
    ArrangeWindow,
    PlugRadio,
    AskRadioThenTurnAway,
};

[[nodiscard]] std::string_view NameOf(Act act);

/// One draw: as many numbers for every act, so that a seed gives the same draws whatever the windows look like.
struct Draw {
    Act act;
    std::array<std::uint32_t, 4> numbers; // for the act to choose by
    int pauseMilliseconds;                // afterwards
};

/// The draws of a seed.
class Draws {
public:
    explicit Draws(std::uint32_t seed) : random_(seed) {}

    [[nodiscard]] Draw Next();
    /// One of 0 to count - 1, beside the draws of the acts.
    [[nodiscard]] std::uint32_t Below(std::uint32_t count) { return static_cast<std::uint32_t>(random_()) % count; }

private:
    std::mt19937 random_;
};

} // namespace zelvor::random
