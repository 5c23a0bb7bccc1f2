#pragma once

#include <string>
#include <vector>

namespace zelvor::bench {

/// Of an odd number of values the middle one, of an even number the mean of the two.
[[nodiscard]] double MedianOf(std::vector<double> values);

[[nodiscard]] std::string Formatted(double value, int decimals);
/// "1.031 (1.029 .. 1.034, 5 runs)": the median, with the range.
[[nodiscard]] std::string Spread(const std::vector<double>& values, int decimals);

/// The table of all figures.
class Report {
public:
    /// A figure that may be at most `limit`.
    void Add(std::string figure, double measured, double limit, int decimals, std::string details);
    /// A figure without a goal of its own.
    void Add(std::string figure, std::string measured, std::string details);
    /// A figure that could not be measured.
    void AddFailure(std::string figure, std::string reason);

    void Print() const;
    /// Whether every figure was measured. A goal that is missed is no failure: it depends on the machine.
    [[nodiscard]] bool IsComplete() const { return isComplete_; }

private:
    struct Row {
        std::string figure;
        std::string goal;
        std::string measured;
        std::string verdict;
        std::string details;
    };

    std::vector<Row> rows_;
    bool isComplete_ = true;
};

} // namespace zelvor::bench
