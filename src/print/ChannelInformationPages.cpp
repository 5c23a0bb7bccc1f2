#include <cstddef>
#include <string>

#include "data/ChannelCodec.h"
#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "data/ScanFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

namespace {

constexpr std::uint8_t Unused = 0xFF;

constexpr int BlocksPerPage = 4;
constexpr double FirstBlockRow = 13;
constexpr double BlockRows = 11;
constexpr double LeftValueColumn = 35;
constexpr double RightLabelColumn = 70;
constexpr double RightValueColumn = 105;

/// Labels, as numbers of the string table.
namespace label {
constexpr int Channel = 60;
constexpr int RxFrequency = 251;
constexpr int TxFrequency = 252;
constexpr int Decode = 63;
constexpr int Encode = 64;
constexpr int OptionSignalling = 65;
constexpr int SpUnmute = 66;
constexpr int TxPower = 67;
constexpr int WideNarrow = 68;
constexpr int BusyChannelLockout = 69;
constexpr int PttId = 108;
constexpr int AutodialMemory = 70;
constexpr int BeatShift = 71;
constexpr int ScanAdd = 72;
constexpr int PriorityChannel = 73;
constexpr int Compander = 74;
} // namespace label

std::vector<int> ChannelsInUse(const DataImage& image) {
    std::vector<int> channels;
    for (int channel = 1; channel <= address::ChannelCount; ++channel) {
        if (image.At(address::Channel(channel)) != Unused) {
            channels.push_back(channel);
        }
    }
    return channels;
}

/// Adds the block of a channel, which begins in that row, to a page.
void AddChannelBlock(SectionPage& page, int channel, const ChannelTexts& texts, double row) {
    page.Add(0, row, NumberedWord(label::Channel, channel, page.TextLanguage()));

    PageRows left(page, pagecells::LabelColumn, LeftValueColumn, row + 1);
    left.Add(label::RxFrequency, texts.RxText);
    left.Add(label::TxFrequency, texts.TxText);
    left.Add(label::Decode, texts.DecText);
    left.Add(label::Encode, texts.EncText);
    left.Add(label::OptionSignalling, texts.OptSignalText);
    left.Add(label::SpUnmute, texts.SpMuteText);
    left.Add(label::TxPower, texts.PowerText);
    left.Add(label::WideNarrow, texts.WidthText);

    const bool isPriority = page.Image().At(scan::PriorityChannel.address) == channel;
    PageRows right(page, RightLabelColumn, RightValueColumn, row + 1);
    right.Add(label::BusyChannelLockout, texts.BusyLockText);
    right.Add(label::PttId, texts.PttIdText);
    right.Add(label::AutodialMemory, texts.AutoDialText);
    right.Add(label::BeatShift, page.EnabledWord(texts.BeatShiftFlag));
    right.Add(label::ScanAdd, texts.ScanAddText);
    right.Add(label::PriorityChannel, page.EnabledWord(isPriority));
    right.Add(label::Compander, page.EnabledWord(texts.CompanderFlag));
}

} // namespace

ChannelTexts PrintCurChData(const DataImage& image, int channel, Language language) {
    // All of them: what a record leaves open shows the text of the channel before it, as the grid does.
    return ChannelCodec().DecodeAll(image, language)[static_cast<std::size_t>(channel - 1)];
}

std::vector<std::vector<CellText>> ChannelInformationPages(const DataImage& image, Language language) {
    const std::vector<int> channels = ChannelsInUse(image);
    std::vector<std::vector<CellText>> pages;
    auto next = channels.begin();
    do {
        SectionPage page(image, language, ReportSection::ChannelInformation);
        for (int block = 0; block < BlocksPerPage && next != channels.end(); ++block, ++next) {
            AddChannelBlock(page, *next, PrintCurChData(image, *next, language), FirstBlockRow + BlockRows * block);
        }
        pages.push_back(page.Texts());
    } while (next != channels.end());
    return pages;
}

} // namespace zelvor
