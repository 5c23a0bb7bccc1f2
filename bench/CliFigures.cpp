#include "CliFigures.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <optional>
#include <vector>

#include "Instructions.h"
#include "Report.h"
#include "data/DataFile.h"
#include "simulator/SampleRadio.h"

namespace zelvor::bench {

namespace {

constexpr int Runs = 5;
constexpr double LargestRatio = 2;
constexpr double LargestGrowth = 1.02;
constexpr double Thousand = 1000;
constexpr double MillisecondsPerSecond = 1000;
constexpr auto CheckName = "Check of 10,000 files / sha256sum of them";
constexpr auto PerFileName = "  instructions a file, of 10,000 / of 1,000";
constexpr auto DiffName = "Diff of 1,000 pairs / sha256sum of them";
constexpr auto PerSamePairName = "  instructions a pair, of 1,000 / of 100";
constexpr auto PerOtherPairName = "  the same of pairs that differ";

/// How many things a program is given in three runs, so that what the second run does more can be compared with what
/// the third does more.
struct Counts {
    int fewest;
    int few;
    int all;
};
constexpr Counts Files{100, 1000, 10'000};
constexpr Counts Pairs{10, 100, 1000};

/// The image again and again; no write of the files waits for the disk.
QStringList MakeFiles(const QString& folder, int count, const DataImage& image) {
    const DataFileBytes bytes = EncodeDataFile(image);
    const QByteArray content(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(folder + QString("/%1.dat").arg(i, 5, 10, QChar('0')));
        QFile file(names.last());
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            return {};
        }
    }
    return names;
}

/// Seconds; negative where the program does not end well.
double Time(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    const bool isDone =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? static_cast<double>(timer.elapsed()) / MillisecondsPerSecond : -1;
}

/// The command beside sha256sum on the same files, by turns, after a first run of each that brings them into memory.
void AddTimes(const char* name, const QStringList& command, const QStringList& files, Report& report) {
    std::vector<double> commands;
    std::vector<double> sums;
    for (int run = 0; run <= Runs; ++run) {
        const double time = Time(ZELVOR_CLI_PROGRAM, command);
        const double sum = Time("sha256sum", files);
        if (time < 0 || sum < 0) {
            report.AddFailure(name, "does not run");
            return;
        }
        if (run > 0) {
            commands.push_back(time);
            sums.push_back(sum);
        }
    }
    report.Add(name, MedianOf(commands) / MedianOf(sums), LargestRatio, 2,
               Spread(commands, 3) + " s and " + Spread(sums, 3) + " s");
}

/// Whether a thing costs the same among many others as among few. Told what a run with so many of them executes.
void AddGrowth(const char* name, const Counts& counts,
               const std::function<std::optional<double>(int count)>& instructionsOf, Report& report) {
    if (!CountsInstructions()) {
        return;
    }
    const std::optional<double> fewest = instructionsOf(counts.fewest);
    const std::optional<double> few = instructionsOf(counts.few);
    const std::optional<double> all = instructionsOf(counts.all);
    if (!fewest || !few || !all) {
        report.AddFailure(name, "not counted");
        return;
    }
    const double amongFew = (*few - *fewest) / (counts.few - counts.fewest);
    const double amongAll = (*all - *few) / (counts.all - counts.few);
    report.Add(name, amongAll / amongFew, LargestGrowth, 3,
               "in thousands " + Formatted(amongAll / Thousand, 1) + " / " + Formatted(amongFew / Thousand, 1));
}

void AddCheck(Report& report) {
    const QTemporaryDir folder;
    const QStringList files = MakeFiles(folder.path(), Files.all, SampleRadioMemory());
    if (files.isEmpty()) {
        report.AddFailure(CheckName, "no files");
        return;
    }
    AddTimes(CheckName, QStringList{"check"} + files, files, report);
    const auto instructions = [&files](int count) {
        return InstructionsOf(ZELVOR_CLI_PROGRAM, QStringList{"check"} + files.first(count));
    };
    AddGrowth(PerFileName, Files, instructions, report);
}

DataImage WithoutBeep(DataImage image) {
    constexpr int Beep = 0x136;
    image.Set(Beep, 0);
    return image;
}

void AddDiff(Report& report) {
    const QTemporaryDir a;
    const QTemporaryDir b;
    const QStringList command{"diff", a.path(), b.path()};
    const QStringList files =
        MakeFiles(a.path(), Pairs.all, SampleRadioMemory()) + MakeFiles(b.path(), Pairs.all, SampleRadioMemory());
    if (files.size() != 2 * Pairs.all) {
        report.AddFailure(DiffName, "no files");
        return;
    }
    AddTimes(DiffName, command, files, report);
    const auto growth = [&report](const char* name, const DataImage& image, int status) {
        const auto instructions = [&image, status](int count) {
            const QTemporaryDir left;
            const QTemporaryDir right;
            MakeFiles(left.path(), count, SampleRadioMemory());
            MakeFiles(right.path(), count, image);
            return InstructionsOf(ZELVOR_CLI_PROGRAM, {"diff", left.path(), right.path()}, {}, status);
        };
        AddGrowth(name, Pairs, instructions, report);
    };
    growth(PerSamePairName, SampleRadioMemory(), 0);
    growth(PerOtherPairName, WithoutBeep(SampleRadioMemory()), 1);
}

} // namespace

void AddCliFigures(Report& report) {
    AddCheck(report);
    AddDiff(report);
}

} // namespace zelvor::bench
