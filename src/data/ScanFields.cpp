#include "data/ScanFields.h"

#include <algorithm>

#include "text/Decimal.h"

namespace zelvor::scan {

namespace {

// Hundredths of a second.
constexpr int LookBackStep = 5;
constexpr int LookBackBase = 45;
constexpr int LookBackDecimals = 2;

/// Of a number of seconds, in units of 10^-decimals; cut off behind them.
std::int64_t CutUnits(std::string_view text, int decimals) {
    std::int64_t units = Decimal::Leading(text).Rounded(Decimal::Places);
    for (int place = Decimal::Places; place > decimals; --place) {
        units /= 10;
    }
    return units;
}

int KeptToRange(std::int64_t value, const NumberField& field) {
    return static_cast<int>(std::clamp<std::int64_t>(value, field.first, field.last));
}

} // namespace

int ReadChannel(std::string_view text) {
    return KeptToRange(CutUnits(text, 0), PriorityChannel);
}

std::string ShowLookBackTime(int steps, Language /*language*/) {
    return steps == 0 ? std::string()
                      : Decimal::Of(steps * LookBackStep + LookBackBase, LookBackDecimals).Format(1, LookBackDecimals);
}

int ReadLookBackTime(std::string_view text) {
    return KeptToRange((CutUnits(text, LookBackDecimals) - LookBackBase) / LookBackStep, LookBackTimeA);
}

int ReadDelay(std::string_view text) {
    return KeptToRange(CutUnits(text, 0), DropoutDelayTime);
}

} // namespace zelvor::scan
