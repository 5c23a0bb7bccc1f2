#include "Report.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace zelvor::bench {

double MedianOf(std::vector<double> values) {
    std::ranges::sort(values);
    const std::size_t half = values.size() / 2;
    if (values.empty()) {
        return 0;
    }
    return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

std::string Formatted(double value, int decimals) {
    char text[64];
    const int length = std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return {text, static_cast<std::size_t>(std::max(length, 0))};
}

std::string Spread(const std::vector<double>& values, int decimals) {
    if (values.empty()) {
        return "-";
    }
    const auto [least, most] = std::ranges::minmax(values);
    return Formatted(MedianOf(values), decimals) + " (" + Formatted(least, decimals) + " .. " +
           Formatted(most, decimals) + ", " + std::to_string(values.size()) + " runs)";
}

void Report::Add(std::string figure, double measured, double limit, int decimals, std::string details) {
    rows_.push_back({std::move(figure), "<= " + Formatted(limit, decimals), Formatted(measured, decimals),
                     measured <= limit ? "met" : "MISSED", std::move(details)});
}

void Report::Add(std::string figure, std::string measured, std::string details) {
    rows_.push_back({std::move(figure), "", std::move(measured), "", std::move(details)});
}

void Report::AddFailure(std::string figure, std::string reason) {
    rows_.push_back({std::move(figure), "", "-", "FAILED", std::move(reason)});
    isComplete_ = false;
}

void Report::Print() const {
    constexpr auto Line = "%-48s %-10s %-12s %-7s %s\n";
    std::printf(Line, "Figure", "Goal", "Measured", "", "Details: median (least .. most)");
    for (const Row& row : rows_) {
        std::printf(Line, row.figure.c_str(), row.goal.c_str(), row.measured.c_str(), row.verdict.c_str(),
                    row.details.c_str());
    }
}

} // namespace zelvor::bench
