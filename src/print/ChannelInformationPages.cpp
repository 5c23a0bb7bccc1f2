#include <cstddef>
#include <string>

#include "data/ChannelCodec.h"
#include "data/ChannelRecord.h"
#include "data/ChannelTable.h"
#include "data/MemoryMap.h"
#include "data/ScanFields.h"
#include "print/ReportSections.h"
#include "print/ReportValue.h"
#include "print/SectionPage.h"

namespace zelvor {

namespace {

constexpr int BlocksPerPage = 4;
constexpr double FirstBlockRow = 13;
constexpr double BlockRows = 11;
constexpr double LeftValueColumn = 35;
constexpr double RightLabelColumn = 70;
constexpr double RightValueColumn = 105;

std::vector<int> ChannelsInUse(const DataImage& image) {
    std::vector<int> channels;
    for (int channel = 1; channel <= address::ChannelCount; ++channel) {
        if (IsRecordInUse(image, channel)) {
            channels.push_back(channel);
        }
    }
    return channels;
}

/// Adds the block of a channel, which begins in that row, to a page.
void AddChannelBlock(SectionPage& page, int channel, const ChannelTexts& texts, double row) {
    page.Add(0, row, NumberedWord(Text::Channel, channel, page.TextLanguage()));

    PageRows left(page, pagecells::LabelColumn, LeftValueColumn, row + 1);
    left.Add(Text::RxFrequency, texts.RxText);
    left.Add(Text::TxFrequency, texts.TxText);
    left.Add(Text::QtDqtDecode, texts.DecText);
    left.Add(Text::QtDqtEncode, texts.EncText);
    left.Add(Text::OptionSignallingLabel, texts.OptSignalText);
    left.Add(Text::SpUnmute, texts.SpMuteText);
    left.Add(Text::TxPower, texts.PowerText);
    left.Add(Text::WideNarrow, texts.WidthText);

    const bool isPriority = page.Image().At(scan::PriorityChannel.address) == channel;
    PageRows right(page, RightLabelColumn, RightValueColumn, row + 1);
    right.Add(Text::BusyChannelLockout, texts.BusyLockText);
    right.Add(Text::PttIdType, texts.PttIdText);
    right.Add(Text::AutodialMemoryOfChannel, texts.AutoDialText);
    right.Add(Text::BeatShift, EnabledWord(texts.BeatShiftFlag, page.TextLanguage()));
    right.Add(Text::ScanAdd, texts.ScanAddText);
    right.Add(Text::IsPriorityChannel, EnabledWord(isPriority, page.TextLanguage()));
    right.Add(Text::Compander, EnabledWord(texts.CompanderFlag, page.TextLanguage()));
}

} // namespace

const ChannelTexts& PrintCurChData(const std::vector<ChannelTexts>& decoded, int channel) {
    return decoded[static_cast<std::size_t>(channel - 1)];
}

std::vector<std::vector<CellText>> ChannelInformationPages(const DataImage& image, Language language) {
    const std::vector<int> channels = ChannelsInUse(image);
    const std::vector<ChannelTexts> decoded = ChannelCodec().DecodeAll(image, language);
    std::vector<std::vector<CellText>> pages;
    auto next = channels.begin();
    do {
        SectionPage page(image, language, ReportSection::ChannelInformation);
        for (int block = 0; block < BlocksPerPage && next != channels.end(); ++block, ++next) {
            AddChannelBlock(page, *next, PrintCurChData(decoded, *next), FirstBlockRow + BlockRows * block);
        }
        pages.push_back(page.Texts());
    } while (next != channels.end());
    return pages;
}

} // namespace zelvor
