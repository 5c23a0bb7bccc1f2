#include "CloneFigures.h"

#include <algorithm>
#include <array>
#include <string>

#include "CloneRun.h"
#include "Report.h"

namespace zelvor::bench {

namespace {

constexpr double Milliseconds = 1000;

struct CloneFigure {
    const char* name;
    TransferDirection direction;
    std::optional<SessionTimes> (*run)(TransferDirection);
    int runs;
    int bytes; // that a session exchanges
    double limit;
};

constexpr std::array<CloneFigure, 4> Figures{{
    {"Clone read, main window", TransferDirection::Read, RunFromMainWindow, 5, 1278, 1.06},
    {"Clone write, main window", TransferDirection::Write, RunFromMainWindow, 5, 1041, 1.08},
    {"Clone read, engine alone", TransferDirection::Read, RunEngineAlone, 3, 1278, 1.06},
    {"Clone write, engine alone", TransferDirection::Write, RunEngineAlone, 3, 1041, 1.08},
}};

void AddFigure(Report& report, const CloneFigure& figure) {
    std::vector<double> ratios;
    std::vector<double> durations;
    std::vector<double> turnarounds;
    for (int i = 0; i < figure.runs; ++i) {
        const std::optional<SessionTimes> times = figure.run(figure.direction);
        if (!times || times->bytes != figure.bytes) {
            report.AddFailure(figure.name, times ? std::to_string(times->bytes) + " bytes" : "no whole session");
            return;
        }
        ratios.push_back(times->duration / WireTime(figure.bytes));
        durations.push_back(times->duration * Milliseconds);
        for (const double turnaround : times->turnarounds) {
            turnarounds.push_back(turnaround * Milliseconds);
        }
    }
    report.Add(std::string(figure.name) + ": time / wire time", MedianOf(ratios), figure.limit, 3, Spread(ratios, 3));
    report.Add("  time, in ms", Formatted(MedianOf(durations), 1),
               Spread(durations, 1) + "; wire " + Formatted(WireTime(figure.bytes) * Milliseconds, 1));
    report.Add("  reply to next command, in ms", Formatted(MedianOf(turnarounds), 2),
               "longest " + Formatted(std::ranges::max(turnarounds), 2) + " of " + std::to_string(turnarounds.size()));
}

} // namespace

void AddCloneFigures(Report& report) {
    for (const CloneFigure& figure : Figures) {
        AddFigure(report, figure);
    }
}

} // namespace zelvor::bench
