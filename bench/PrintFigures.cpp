#include "PrintFigures.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "Report.h"
#include "data/MemoryMap.h"
#include "platform/QtPageDevice.h"
#include "print/DataReport.h"
#include "simulator/SampleRadio.h"

namespace zelvor::bench {

namespace {

constexpr int Runs = 41;
constexpr int EmptyPages = 12;
constexpr double TimesOfEmptyPages = 5;
constexpr double NanosecondsPerMillisecond = 1e6;

/// The sample radio with all 16 channels in use: the programmed ones, over and over.
DataImage FullDocument() {
    DataImage image = SampleRadioMemory();
    int source = 1;
    for (int k = 1; k <= address::ChannelCount; ++k) {
        if (image.At(address::Channel(k)) != 0xFF) {
            continue;
        }
        for (int j = 0; j < address::ChannelSize; ++j) {
            image.Set(address::Channel(k) + j, image.At(address::Channel(source) + j));
        }
        ++source;
    }
    return image;
}

bool PrintEmptyPages(const QString& file) {
    QtPageDevice device(file);
    bool isWorking = device.BeginDocument("Empty");
    for (int page = 2; page <= EmptyPages && isWorking; ++page) {
        isWorking = device.NewPage();
    }
    device.EndDocument();
    return isWorking;
}

void PrintReport(const QString& file, const DataImage& image, Language language) {
    QtPageDevice device(file);
    PrintDataReport(device, BuildDataReport(image, ReportSelection().set(), "Zelvor.dat", language, {}));
}

template<typename Work>
double MillisecondsOf(Work work) {
    QElapsedTimer time;
    time.start();
    work();
    return static_cast<double>(time.nsecsElapsed()) / NanosecondsPerMillisecond;
}

void AddReport(Report& report, const std::string& figure, Language language) {
    const QTemporaryDir directory;
    const QString file = directory.filePath("Bench.pdf");
    const DataImage image = FullDocument();
    PrintReport(file, image, language); // loads the font
    if (!PrintEmptyPages(file)) {
        report.AddFailure(figure, "no file");
        return;
    }
    std::vector<double> empty;
    std::vector<double> full;
    for (int run = 0; run < Runs; ++run) {
        empty.push_back(MillisecondsOf([&] { static_cast<void>(PrintEmptyPages(file)); }));
        full.push_back(MillisecondsOf([&] { PrintReport(file, image, language); }));
    }
    report.Add(figure, MedianOf(full) / MedianOf(empty), TimesOfEmptyPages, 2,
               "in ms " + Spread(full, 2) + " / " + Spread(empty, 2));
}

} // namespace

void AddPrintFigures(Report& report) {
    AddReport(report, "Print all sections to PDF, times 12 empty pages", Language::English);
    AddReport(report, "The same in Chinese", Language::Chinese);
}

} // namespace zelvor::bench
