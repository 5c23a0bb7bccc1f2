#include "CliFigures.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <vector>

#include "Instructions.h"
#include "Report.h"
#include "data/DataFile.h"
#include "simulator/SampleRadio.h"

namespace zelvor::bench {

namespace {

constexpr int Files = 10'000;
constexpr int Pairs = 1'000;
constexpr int Runs = 5;
constexpr double LargestRatio = 2;
constexpr double LargestGrowth = 1.02;
constexpr double Thousand = 1000;
constexpr double MillisecondsPerSecond = 1000;
constexpr auto CheckName = "Check of 10,000 files / sha256sum of them";
constexpr auto PerFileName = "  instructions a file, of 10,000 / of 1,000";
constexpr auto DiffName = "Diff of 1,000 pairs / sha256sum of them";

/// The sample radio again and again; no write of them waits for the disk.
QStringList MakeFiles(const QTemporaryDir& directory) {
    const DataFileBytes bytes = EncodeDataFile(SampleRadioMemory());
    const QByteArray content(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    QStringList names;
    for (int i = 0; i < Files; ++i) {
        names.append(QString("%1.dat").arg(i, 5, 10, QChar('0')));
        QFile file(directory.filePath(names.last()));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            return {};
        }
    }
    return names;
}

/// Seconds; negative where the program does not end well.
double Time(const QTemporaryDir& directory, const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setWorkingDirectory(directory.path());
    process.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    const bool isDone =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? static_cast<double>(timer.elapsed()) / MillisecondsPerSecond : -1;
}

/// The two by turns, after a first run of each that brings the files into memory.
void AddCheck(const QTemporaryDir& directory, const QStringList& names, Report& report) {
    std::vector<double> checks;
    std::vector<double> sums;
    for (int run = 0; run <= Runs; ++run) {
        const double check = Time(directory, ZELVOR_CLI_PROGRAM, QStringList{"check"} + names);
        const double sum = Time(directory, "sha256sum", names);
        if (check < 0 || sum < 0) {
            report.AddFailure(CheckName, "does not run");
            return;
        }
        if (run > 0) {
            checks.push_back(check);
            sums.push_back(sum);
        }
    }
    report.Add(CheckName, MedianOf(checks) / MedianOf(sums), LargestRatio, 2,
               Spread(checks, 3) + " s and " + Spread(sums, 3) + " s");
}

/// Whether a file costs the same among many others as among few.
void AddCheckPerFile(const QTemporaryDir& directory, const QStringList& names, Report& report) {
    constexpr int Fewest = 100;
    constexpr int Few = 1000;
    if (!CountsInstructions()) {
        return;
    }
    const auto instructions = [&](int files) {
        QStringList arguments{"check"};
        for (const QString& name : names.first(files)) {
            arguments.append(directory.filePath(name));
        }
        return InstructionsOf(ZELVOR_CLI_PROGRAM, arguments);
    };
    const std::optional<double> fewest = instructions(Fewest);
    const std::optional<double> few = instructions(Few);
    const std::optional<double> all = instructions(Files);
    if (!fewest || !few || !all) {
        report.AddFailure(PerFileName, "not counted");
        return;
    }
    const double amongFew = (*few - *fewest) / (Few - Fewest);
    const double amongAll = (*all - *few) / (Files - Few);
    report.Add(PerFileName, amongAll / amongFew, LargestGrowth, 3,
               "in thousands " + Formatted(amongAll / Thousand, 1) + " / " + Formatted(amongFew / Thousand, 1));
}

void AddDiff(const QTemporaryDir& directory, const QStringList& names, Report& report) {
    double diffs = 0;
    double sums = 0;
    for (int i = 0; i < Pairs; ++i) {
        const QStringList pair = names.mid(2 * i, 2);
        const double diff = Time(directory, ZELVOR_CLI_PROGRAM, QStringList{"diff"} + pair);
        const double sum = Time(directory, "sha256sum", pair);
        if (diff < 0 || sum < 0) {
            report.AddFailure(DiffName, "does not run");
            return;
        }
        diffs += diff;
        sums += sum;
    }
    report.Add(DiffName, Formatted(diffs / sums, 2), Formatted(diffs, 2) + " s and " + Formatted(sums, 2) + " s");
}

} // namespace

void AddCliFigures(Report& report) {
    const QTemporaryDir directory;
    const QStringList names = MakeFiles(directory);
    if (names.isEmpty()) {
        report.AddFailure(CheckName, "no files");
        return;
    }
    AddCheck(directory, names, report);
    AddCheckPerFile(directory, names, report);
    AddDiff(directory, names, report);
}

} // namespace zelvor::bench
