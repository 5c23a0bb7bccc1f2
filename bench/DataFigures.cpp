#include "DataFigures.h"

#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "Report.h"
#include "data/ChannelCodec.h"
#include "platform/DataFiles.h"
#include "platform/QtFileStore.h"
#include "simulator/SampleRadio.h"
#include "support/AllocationCount.h"

namespace zelvor::bench {

namespace {

constexpr int Repetitions = 5;
constexpr double SecondsEach = 0.1;
constexpr double Microseconds = 1e6;
constexpr double AFewMicroseconds = 1000; // less than a millisecond
constexpr auto WriteName = "Write the data file";
constexpr double ADiskAtWork = 100'000; // a write is done when the disk has it

void DecodeAllChannels(benchmark::State& state) {
    const DataImage image = SampleRadioMemory();
    ChannelCodec codec;
    for (auto _ : state) {
        benchmark::DoNotOptimize(codec.DecodeAll(image, Language::English));
    }
}

void EncodeOneChannel(benchmark::State& state) {
    DataImage image = SampleRadioMemory();
    ChannelCodec codec;
    codec.Texts = codec.DecodeAll(image, Language::English).front();
    bool txCodeError = false;
    for (auto _ : state) {
        codec.EncodeChannel(image, Language::English, 1, txCodeError);
        benchmark::DoNotOptimize(image);
    }
}

/// On a file in the temporary directory.
void ReadFile(benchmark::State& state) {
    const QTemporaryDir directory;
    const std::string path = directory.filePath("Bench.dat").toStdString();
    QtFileStore store;
    if (!WriteDataFile(store, path, SampleRadioMemory())) {
        state.SkipWithError("no file");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadDataFile(store, path));
    }
}

void WriteFile(benchmark::State& state) {
    const QTemporaryDir directory;
    const std::string path = directory.filePath("Bench.dat").toStdString();
    QtFileStore store;
    const DataImage image = SampleRadioMemory();
    for (auto _ : state) {
        if (!WriteDataFile(store, path, image)) {
            state.SkipWithError("no file");
        }
    }
}

/// Puts the median of each benchmark into the report.
class Collector : public benchmark::BenchmarkReporter {
public:
    explicit Collector(Report& report) : report_(report) {}

    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        std::vector<double> times;
        for (const Run& run : runs) {
            if (run.error_occurred) {
                report_.AddFailure(run.benchmark_name(), run.error_message);
                return;
            }
            if (run.run_type == Run::RT_Iteration) {
                times.push_back(run.real_accumulated_time / static_cast<double>(run.iterations) * Microseconds);
            }
        }
        if (!times.empty()) {
            const std::string& name = runs.front().run_name.function_name;
            report_.Add(name + ", in us", MedianOf(times), name == WriteName ? ADiskAtWork : AFewMicroseconds, 2,
                        Spread(times, 2));
        }
    }

private:
    Report& report_;
};

void RunBenchmarks(Report& report) {
    struct Benchmark {
        const char* name;
        void (*run)(benchmark::State&);
    };
    for (const auto& [name, run] :
         {Benchmark{"Decode all 16 channels", DecodeAllChannels}, Benchmark{"Encode one channel", EncodeOneChannel},
          Benchmark{"Read the data file", ReadFile}, Benchmark{WriteName, WriteFile}}) {
        benchmark::RegisterBenchmark(name, run)->MinTime(SecondsEach)->Repetitions(Repetitions);
    }
    Collector collector(report);
    benchmark::RunSpecifiedBenchmarks(&collector);
}

/// Every channel of the sample radio, in both languages.
std::size_t AllocationsOfEncoding() {
    DataImage image = SampleRadioMemory();
    std::size_t most = 0;
    for (const Language language : {Language::English, Language::Chinese}) {
        ChannelCodec codec;
        const std::vector<ChannelTexts> all = codec.DecodeAll(image, language);
        for (int k = 1; k <= static_cast<int>(all.size()); ++k) {
            codec.Texts = all[static_cast<std::size_t>(k - 1)];
            bool txCodeError = false;
            const std::size_t before = testing::AllocationCount();
            codec.EncodeChannel(image, language, k, txCodeError);
            most = std::max(most, testing::AllocationCount() - before);
        }
    }
    return most;
}

} // namespace

void AddDataFigures(Report& report) {
    RunBenchmarks(report);
    report.Add("Encode one channel: heap allocations", static_cast<double>(AllocationsOfEncoding()), 0, 0,
               "the most of 32 channels");
}

} // namespace zelvor::bench
