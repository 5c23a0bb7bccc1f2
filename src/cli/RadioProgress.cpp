#include "cli/RadioProgress.h"

#include <algorithm>
#include <string>

namespace zelvor::cli {

namespace {

constexpr int BarWidth = 40;
constexpr int Percent = 100;
constexpr std::string_view EraseLine = "\r\x1B[K";

} // namespace

void RadioProgressBar::Show(std::string_view what, int value, int maximum) {
    const int whole = std::max(maximum, 1);
    const int done = std::clamp(value, 0, whole);
    const auto filled = static_cast<std::size_t>(BarWidth * done / whole);
    const std::string bar = std::string(filled, '#') + std::string(BarWidth - filled, '-');
    terminal_ << EraseLine << what << " [" << bar << "] " << Percent * done / whole << " %" << std::flush;
    isShown_ = true;
}

void RadioProgressBar::Clear() {
    if (isShown_) {
        terminal_ << EraseLine << std::flush;
        isShown_ = false;
    }
}

} // namespace zelvor::cli
