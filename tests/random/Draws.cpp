#include "random/Draws.h"

#include <numeric>

namespace zelvor::random {

namespace {

struct Share {
    Act act;
    std::string_view name;
    std::uint32_t weight;
};
constexpr std::array<Share, 17> Shares{{
    {Act::ClickControl, "click", 280},
    {Act::ClickAnywhere, "click anywhere", 40},
    {Act::DoubleClick, "double click", 30},
    {Act::RightClick, "right click", 25},
    {Act::Drag, "drag", 30},
    {Act::Wheel, "wheel", 25},
    {Act::ChooseEntry, "menu", 100},
    {Act::Shortcut, "shortcut", 60},
    {Act::EditKey, "key", 170},
    {Act::Type, "type", 90},
    {Act::AnswerBox, "answer", 60},
    {Act::EnterPath, "path", 25},
    {Act::MapGesture, "memory map", 8},
    {Act::CloseWindow, "close", 15},
    {Act::ArrangeWindow, "arrange", 15},
    {Act::PlugRadio, "radio", 25},
    {Act::AskRadioThenTurnAway, "ask the radio", 30},
}};

constexpr std::uint32_t WholeWeight =
    std::accumulate(Shares.begin(), Shares.end(), std::uint32_t{0}, [](auto sum, auto& s) { return sum + s.weight; });

Act ActAt(std::uint32_t weight) {
    for (const Share& share : Shares) {
        if (weight < share.weight) {
            return share.act;
        }
        weight -= share.weight;
    }
    return Act::EditKey;
}

/// Mostly at once, as a race wants it; sometimes long enough for an exchange with the radio to come to its end.
int PauseOf(std::uint32_t number) {
    const std::uint32_t percent = number % 100;
    const auto spread = static_cast<int>(number / 100 % 100);
    if (percent < 55) {
        return spread / 10;
    }
    if (percent < 88) {
        return 20 + spread;
    }
    return percent < 98 ? 200 + 3 * spread : 1500 + 10 * spread;
}

} // namespace

std::string_view NameOf(Act act) {
    for (const Share& share : Shares) {
        if (share.act == act) {
            return share.name;
        }
    }
    return "?";
}

Draw Draws::Next() {
    Draw draw{ActAt(Below(WholeWeight)), {}, 0};
    for (std::uint32_t& number : draw.numbers) {
        number = static_cast<std::uint32_t>(random_());
    }
    draw.pauseMilliseconds = PauseOf(static_cast<std::uint32_t>(random_()));
    return draw;
}

} // namespace zelvor::random
