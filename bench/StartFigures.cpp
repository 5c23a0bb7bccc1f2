#include "StartFigures.h"

#include <QProcess>
#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Instructions.h"
#include "Report.h"

namespace zelvor::bench {

namespace {

constexpr int Runs = 15;
constexpr double LargestRatio = 1.25;
constexpr double MostExtraMib = 12;
constexpr double KibPerMib = 1024;
constexpr double NanosecondsPerMillisecond = 1e6;
constexpr double Million = 1e6;

struct Program {
    QString path;
    QStringList arguments;
};

/// What one program's starts took: medians are compared.
struct Starts {
    std::vector<double> milliseconds;
    std::vector<double> processorMilliseconds;
    std::vector<double> residentMib;
};

/// The clock that the programs tell, too.
double NowNanoseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<double>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

/// False where the program does not paint.
bool StartOnce(const Program& program, const char* platform, Starts& starts) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", platform);
    process.setProcessEnvironment(environment);
    const double begin = NowNanoseconds();
    process.start(program.path, program.arguments);
    process.waitForFinished();
    const QList<QByteArray> words = process.readAllStandardOutput().trimmed().split(' ');
    if (words.size() != 6 || words[0] != "painted") {
        return false;
    }
    starts.milliseconds.push_back((words[1].toDouble() - begin) / NanosecondsPerMillisecond);
    starts.processorMilliseconds.push_back(words[3].toDouble() / NanosecondsPerMillisecond);
    starts.residentMib.push_back(words[5].toDouble() / KibPerMib);
    return true;
}

double Ratio(const std::vector<double>& values, const std::vector<double>& bare) {
    return MedianOf(values) / MedianOf(bare);
}

void AddComparison(Report& report, const std::string& name, const Starts& zelvor, const Starts& bare) {
    report.Add("Start / " + name, Ratio(zelvor.milliseconds, bare.milliseconds), LargestRatio, 2,
               "ms: " + Spread(zelvor.milliseconds, 1) + " / " + Spread(bare.milliseconds, 1));
    report.Add("  in processor time", Formatted(Ratio(zelvor.processorMilliseconds, bare.processorMilliseconds), 2),
               "ms: " + Spread(zelvor.processorMilliseconds, 1) + " / " + Spread(bare.processorMilliseconds, 1));
    report.Add("  memory above it, in MiB", MedianOf(zelvor.residentMib) - MedianOf(bare.residentMib), MostExtraMib, 1,
               "MiB: " + Spread(zelvor.residentMib, 1) + " - " + Spread(bare.residentMib, 1));
}

/// Until the first painting.
void AddInstructions(Report& report, const char* platform, const Program& zelvor, const Program& bare) {
    const auto instructions = [platform](const Program& program) {
        return InstructionsOf(program.path, program.arguments,
                              {QString("QT_QPA_PLATFORM=") + platform, "ZELVOR_ENDS_PAINTED=1"});
    };
    const std::string figure = "  in instructions";
    if (!CountsInstructions()) {
        return;
    }
    const std::optional<double> own = instructions(zelvor);
    const std::optional<double> bares = instructions(bare);
    if (!own || !bares) {
        report.AddFailure(figure, "not counted");
        return;
    }
    report.Add(figure, *own / *bares, LargestRatio, 2,
               "in millions " + Formatted(*own / Million, 1) + " / " + Formatted(*bares / Million, 1));
}

void AddPlatform(Report& report, const char* platform) {
    const std::array<Program, 3> programs{
        {{ZELVOR_STARTUP_PROGRAM, {}}, {ZELVOR_BARE_PROGRAM, {}}, {ZELVOR_BARE_PROGRAM, {"caption"}}}};
    std::array<Starts, 3> starts;
    for (int run = 0; run <= Runs; ++run) {
        for (std::size_t i = 0; i < programs.size(); ++i) {
            Starts warmUp; // the first start fills the machine's caches
            if (!StartOnce(programs[i], platform, run == 0 ? warmUp : starts[i])) {
                report.AddFailure(std::string("Start, ") + platform, "not painted");
                return;
            }
        }
    }
    AddComparison(report, std::string("empty window's, ") + platform, starts[0], starts[1]);
    AddComparison(report, std::string("captioned window's, ") + platform, starts[0], starts[2]);
    AddInstructions(report, platform, programs[0], programs[2]);
}

} // namespace

void AddStartFigures(Report& report) {
    AddPlatform(report, "offscreen");
    if (qEnvironmentVariableIsSet("DISPLAY")) {
        AddPlatform(report, "xcb");
    }
}

} // namespace zelvor::bench
