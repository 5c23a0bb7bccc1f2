#include "PrintFigures.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "Report.h"
#include "data/MemoryMap.h"
#include "platform/QtPageDevice.h"
#include "platform/Toolkit.h"
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

/// Empty pages but for a text on the first one.
bool PrintPages(const QString& file, const std::string& text) {
    QtPageDevice device(file);
    bool isWorking = device.BeginDocument("Empty");
    if (isWorking && !text.empty()) {
        device.DrawText(0, 0, text);
    }
    for (int page = 2; page <= EmptyPages && isWorking; ++page) {
        isWorking = device.NewPage();
    }
    device.EndDocument();
    return isWorking;
}

/// Keeps the characters of what is printed, each once.
class CharacterCollector : public QtPageDevice {
public:
    using QtPageDevice::QtPageDevice;
    void DrawText(double x, double y, std::string_view text) override {
        QtPageDevice::DrawText(x, y, text);
        for (const QChar character : ToQString(text)) {
            if (!characters.contains(character)) {
                characters += character;
            }
        }
    }
    QString characters;
};

bool PrintEmptyPages(const QString& file) {
    return PrintPages(file, {});
}

void PrintReport(PageDevice& device, const DataImage& image, Language language) {
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
    CharacterCollector collector(file); // and loads the font
    PrintReport(collector, image, language);
    const std::string characters = FromQString(collector.characters);
    if (!PrintEmptyPages(file)) {
        report.AddFailure(figure, "no file");
        return;
    }
    std::vector<double> empty;
    std::vector<double> full;
    std::vector<double> fontAlone;
    for (int run = 0; run < Runs; ++run) {
        empty.push_back(MillisecondsOf([&] { static_cast<void>(PrintEmptyPages(file)); }));
        full.push_back(MillisecondsOf([&] {
            QtPageDevice device(file);
            PrintReport(device, image, language);
        }));
        fontAlone.push_back(MillisecondsOf([&] { static_cast<void>(PrintPages(file, characters)); }));
    }
    report.Add(figure, MedianOf(full) / MedianOf(empty), TimesOfEmptyPages, 2,
               "in ms " + Spread(full, 2) + " / " + Spread(empty, 2));
    report.Add("  its characters alone, once each", Formatted(MedianOf(fontAlone) / MedianOf(empty), 2),
               "in ms " + Spread(fontAlone, 2));
}

} // namespace

void AddPrintFigures(Report& report) {
    AddReport(report, "Print all sections to PDF, times 12 empty pages", Language::English);
    AddReport(report, "The same in Chinese", Language::Chinese);
}

} // namespace zelvor::bench
