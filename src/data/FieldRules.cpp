#include "data/FieldRules.h"

#include <algorithm>
#include <string>

#include "data/ChannelFields.h"
#include "data/CorvaneFields.h"
#include "data/MemoryMap.h"
#include "data/ScanFields.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr Language English = Language::English;
using Rules = std::vector<BrokenRule>;

const ChannelField& FieldOf(int channel, ChannelColumn column) {
    return ChannelFieldRows[static_cast<std::size_t>(channel) - 1][static_cast<std::size_t>(column)];
}

void CheckPriorityChannel(const DataImage& image, Rules& broken) {
    const int channel = image.At(scan::PriorityChannel.address);
    if (channel >= 1 && channel <= address::ChannelCount && IsChannelBlank(image, channel)) {
        const bool isUsed = image.At(scan::PriorityMode.address) == static_cast<std::uint8_t>(scan::Mode::Fixed);
        broken.push_back({isUsed ? ImageFault::BlankPriorityChannel : ImageFault::BlankIdlePriorityChannel,
                          {scan::PriorityChannel, FieldOf(channel, ChannelColumn::Receive)}});
    }
}

void CheckRevertChannel(const DataImage& image, Rules& broken) {
    const int mode = EntryOf(scan::PriorityMode, image.At(scan::PriorityMode.address));
    const int revert = EntryOf(scan::RevertChannel, image.At(scan::RevertChannel.address));
    if (mode == ListField::NoEntry || revert == ListField::NoEntry) {
        return;
    }
    const auto offered = scan::RevertChannelsOf(static_cast<scan::Mode>(mode));
    if (std::ranges::find(offered, revert) == offered.end()) {
        broken.push_back({ImageFault::RevertNotOffered, {scan::RevertChannel, scan::PriorityMode}});
    }
}

/// The field that has no value is the wrong one.
void CheckPair(ImageFault fault, const Field& first, bool hasFirst, const Field& second, bool hasSecond,
               Rules& broken) {
    if (hasFirst != hasSecond) {
        broken.push_back({fault, {hasFirst ? second : first, hasFirst ? first : second}});
    }
}

void CheckOwnNumber(const DataImage& image, Rules& broken) {
    const bool hasFleet = LoadNumber(image, corvane::OwnFleet, English).value != 0;
    const bool hasId = LoadNumber(image, corvane::OwnId, English).value != 0;
    CheckPair(ImageFault::HalfOwnNumber, corvane::OwnFleet, hasFleet, corvane::OwnId, hasId, broken);
}

void CheckFleetList(const DataImage& image, Rules& broken) {
    for (std::size_t place = 0; place < corvane::FleetList.size(); place += 2) {
        const Field fleet = corvane::FleetList[place];
        const Field id = corvane::FleetList[place + 1];
        CheckPair(ImageFault::HalfFleetListEntry, fleet, !fleet.Show(image, English).empty(), id,
                  !id.Show(image, English).empty(), broken);
    }
}

void CheckEncode(const DataImage& image, int channel, Rules& broken) {
    const ChannelField& encode = FieldOf(channel, ChannelColumn::Encode);
    const ChannelField& transmit = FieldOf(channel, ChannelColumn::Transmit);
    const std::string tone = ShowValue(encode, image, English);
    const bool hasTone = !tone.empty() && tone != TableText(English, Text::None);
    if (hasTone && ShowValue(transmit, image, English).empty()) {
        broken.push_back({ImageFault::EncodeWithoutTransmit, {encode, transmit}});
    }
}

} // namespace

std::vector<BrokenRule> BrokenRules(const DataImage& image) {
    Rules broken;
    CheckPriorityChannel(image, broken);
    CheckRevertChannel(image, broken);
    CheckOwnNumber(image, broken);
    CheckFleetList(image, broken);
    for (int channel = 1; channel <= address::ChannelCount; ++channel) {
        CheckEncode(image, channel, broken);
    }
    return broken;
}

} // namespace zelvor
