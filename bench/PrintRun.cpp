#include "PrintRun.h"

#include "data/MemoryMap.h"
#include "platform/QtPageDevice.h"
#include "platform/Toolkit.h"
#include "print/DataReport.h"
#include "simulator/SampleRadio.h"

namespace zelvor::bench {

namespace {

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

void PrintOn(PageDevice& device, const DataImage& image, Language language) {
    PrintDataReport(device, BuildDataReport(image, ReportSelection().set(), "Zelvor.dat", language, {}));
}

} // namespace

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

void PrintReport(const QString& file, const DataImage& image, Language language) {
    QtPageDevice device(file);
    PrintOn(device, image, language);
}

bool PrintPages(const QString& file, const std::string& text) {
    QtPageDevice device(file);
    bool isWorking = device.BeginDocument("Empty");
    if (isWorking && !text.empty()) {
        device.DrawText(0, 0, text);
    }
    for (int page = 2; page <= PagesOfReport && isWorking; ++page) {
        isWorking = device.NewPage();
    }
    device.EndDocument();
    return isWorking;
}

std::string CharactersOfReport(const QString& file, const DataImage& image, Language language) {
    CharacterCollector collector(file);
    PrintOn(collector, image, language);
    return FromQString(collector.characters);
}

} // namespace zelvor::bench
