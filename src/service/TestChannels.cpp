#include "service/TestChannels.h"

#include <algorithm>

#include "text/Decimal.h"

namespace zelvor {

namespace {

constexpr std::uint8_t Unused = 0xFF; // first byte of an unused channel
constexpr int FirstTooHigh = 600;     // MHz

} // namespace

TestFrequencyTexts TestFrequencyTextOf(TestChannelRecord record) {
    DataImage holder;
    for (std::size_t i = 0; i < record.size(); ++i) {
        holder.Set(address::TestFrequencies + static_cast<int>(i), record[i]);
    }
    if (IsTestChannelEmpty(holder, 1)) {
        return {"0", "0"};
    }
    return ReadTestChannel(holder, 1);
}

bool AgreesWithImage(TestChannelRecord record, const DataImage& image, int channel) {
    const int start = address::TestFrequencies + (channel - 1) * address::TestFrequencyPairSize;
    if (record.front() == Unused || IsTestChannelEmpty(image, channel)) {
        return record.front() == Unused && IsTestChannelEmpty(image, channel);
    }
    int place = start;
    return std::all_of(record.begin(), record.end(), [&](std::uint8_t byte) { return byte == image.At(place++); });
}

bool IsTestChannelOffered(const TestFrequencyTexts& texts) {
    const Decimal receive = Decimal::Leading(texts.receive);
    return receive > Decimal() && receive < Decimal::Of(FirstTooHigh);
}

} // namespace zelvor
