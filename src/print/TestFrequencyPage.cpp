#include <string>

#include "data/TestFrequencies.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

namespace {

constexpr double ReceiveColumn = 35;
constexpr double TransmitColumn = 65;

} // namespace

std::vector<CellText> TestFrequencyPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::TestFrequency);
    page.AddWord(ReceiveColumn, pagecells::FirstRow, Text::RxFrequency);
    page.AddWord(TransmitColumn, pagecells::FirstRow, Text::TxFrequency);
    for (int channel = 1; channel <= TestChannelCount; ++channel) {
        const double row = pagecells::FirstRow + channel;
        const TestFrequencyTexts texts = ReadTestChannel(image, channel);
        page.Add(pagecells::LabelColumn, row, NumberedWord(Text::Channel, channel, language));
        page.Add(ReceiveColumn, row, texts.receive);
        page.Add(TransmitColumn, row, texts.transmit);
    }
    return page.Texts();
}

} // namespace zelvor
