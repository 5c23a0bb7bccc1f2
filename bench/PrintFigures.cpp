#include "PrintFigures.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <optional>
#include <string>
#include <vector>

#include "Instructions.h"
#include "PrintRun.h"
#include "Report.h"

namespace zelvor::bench {

namespace {

constexpr int Runs = 41;
constexpr double LargestRatio = 1.25;
constexpr double NanosecondsPerMillisecond = 1e6;
constexpr double Million = 1e6;

template<typename Work>
double MillisecondsOf(Work work) {
    QElapsedTimer time;
    time.start();
    work();
    return static_cast<double>(time.nsecsElapsed()) / NanosecondsPerMillisecond;
}

/// What one more printing takes, beside those that load programs and fonts.
std::optional<double> InstructionsOfOne(const QString& what, const QString& language, const QString& file) {
    constexpr int More = 4;
    const auto instructions = [&](int times) {
        return InstructionsOf(ZELVOR_PRINTING_PROGRAM, {what, language, QString::number(times), file});
    };
    const std::optional<double> few = instructions(1);
    const std::optional<double> many = instructions(1 + More);
    return few && many ? std::optional((*many - *few) / More) : std::nullopt;
}

void AddInstructions(Report& report, const QString& language, const QString& file) {
    const std::string figure = "  in instructions";
    if (!CountsInstructions()) {
        return;
    }
    const std::optional<double> full = InstructionsOfOne("report", language, file);
    const std::optional<double> floor = InstructionsOfOne("characters", language, file);
    if (!full || !floor) {
        report.AddFailure(figure, "not counted");
        return;
    }
    report.Add(figure, *full / *floor, LargestRatio, 2,
               "in millions " + Formatted(*full / Million, 2) + " / " + Formatted(*floor / Million, 2));
}

void AddReport(Report& report, const std::string& figure, Language language) {
    const QTemporaryDir directory;
    const QString file = directory.filePath("Bench.pdf");
    const DataImage image = FullDocument();
    const std::string characters = CharactersOfReport(file, image, language); // which loads the font, too
    if (!PrintPages(file)) {
        report.AddFailure(figure, "no file");
        return;
    }
    std::vector<double> empty;
    std::vector<double> full;
    std::vector<double> fontAlone;
    for (int run = 0; run < Runs; ++run) {
        empty.push_back(MillisecondsOf([&] { static_cast<void>(PrintPages(file)); }));
        full.push_back(MillisecondsOf([&] { PrintReport(file, image, language); }));
        fontAlone.push_back(MillisecondsOf([&] { static_cast<void>(PrintPages(file, characters)); }));
    }
    report.Add(figure, MedianOf(full) / MedianOf(fontAlone), LargestRatio, 2,
               "in ms " + Spread(full, 2) + " / " + Spread(fontAlone, 2));
    AddInstructions(report, language == Language::Chinese ? "chinese" : "english", file);
    report.Add("  times 12 empty pages", Formatted(MedianOf(full) / MedianOf(empty), 2), "in ms " + Spread(empty, 2));
}

} // namespace

void AddPrintFigures(Report& report) {
    AddReport(report, "Print all sections to PDF / its characters once", Language::English);
    AddReport(report, "The same in Chinese", Language::Chinese);
}

} // namespace zelvor::bench
