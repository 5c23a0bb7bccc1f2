#include "data/ImageChecks.h"

#include <algorithm>

#include "data/ChannelFields.h"
#include "data/ChannelRecord.h"
#include "data/FieldRegistry.h"
#include "data/FieldRules.h"
#include "data/FrequencyCodec.h"
#include "data/IdentityFields.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "data/OptionalFields.h"
#include "data/ScanFields.h"
#include "data/TestFrequencies.h"

namespace zelvor {

namespace {

using Findings = std::vector<ImageFinding>;

bool SendsCode(const DataImage& image, int channel) {
    constexpr std::uint8_t LowNibble = 0x0F;
    constexpr std::uint8_t CodeBit = 0x01;
    const std::uint8_t byte = image.At(address::Channel(channel) + record::PttId);
    return (byte & LowNibble) != LowNibble && (byte & CodeBit) != 0;
}

void CheckCodes(const DataImage& image, Findings& findings) {
    using namespace optional_features;
    const int choice = EntryOf(PttId, image.At(PttId.address));
    if (image.At(PttIdType.address) != record::TypeDtmf || choice == ListField::NoEntry ||
        !AnyChannelSendsCode(image)) {
        return;
    }
    const CodeErrorKind missing = MissingCodes(static_cast<PttIdChoice>(choice), image);
    if ((missing & 1) != 0) {
        findings.push_back({ImageFault::MissingBeginCode, PttCodes[0]});
    }
    if ((missing & 2) != 0) {
        findings.push_back({ImageFault::MissingEndCode, PttCodes[1]});
    }
}

void CheckPriority(const DataImage& image, Findings& findings) {
    if (image.At(scan::PriorityMode.address) != static_cast<std::uint8_t>(scan::Mode::Fixed)) {
        return;
    }
    const int channel = image.At(scan::PriorityChannel.address);
    if (channel < 1 || channel > address::ChannelCount) {
        findings.push_back({ImageFault::NoPriorityChannel, scan::PriorityChannel});
    }
}

void CheckModel(const DataImage& image, Findings& findings) {
    if (FindVariant(image.At(address::Family), image.At(address::Market)) == nullptr) {
        findings.push_back({ImageFault::UnknownModel, IdentityFieldRows[0]});
    }
}

void CheckRules(const DataImage& image, Findings& findings) {
    for (const BrokenRule& broken : BrokenRules(image)) {
        findings.push_back({broken.fault, broken.fields.front()});
    }
}

// --- Frequencies -----------------------------------------------------------------------------------------------------

/// Nothing for a legal one.
std::optional<ImageFault> FaultOf(std::optional<std::int32_t> frequency) {
    if (!frequency) {
        return ImageFault::IllegalValue;
    }
    if (!IsInRange(*frequency)) {
        return ImageFault::OutOfRange;
    }
    return IsOnRaster(*frequency) ? std::nullopt : std::optional(ImageFault::OffRaster);
}

std::optional<std::int32_t> FrequencyAt(const DataImage& image, int at) {
    const FrequencyBytes bytes{image.At(at), image.At(at + 1), image.At(at + 2), image.At(at + 3)};
    return UnpackFrequency(bytes);
}

/// That of a field which is known to hold no legal frequency.
ImageFault FaultOfFrequency(const DataImage& image, const Field& field) {
    return FaultOf(FrequencyAt(image, field.Address())).value_or(ImageFault::IllegalValue);
}

bool IsOutOfMarket(const DataImage& image, const Field& field, const ModelVariant& variant) {
    const std::optional<std::int32_t> frequency = FrequencyAt(image, field.Address());
    return frequency && (*frequency < variant.band.low || *frequency > variant.band.high);
}

// --- Values ----------------------------------------------------------------------------------------------------------

ImageFault FaultOfField(const DataImage& image, const Field& field) {
    return field.As<TestFrequencyField>() != nullptr ? FaultOfFrequency(image, field) : ImageFault::IllegalValue;
}

bool IsTestOutOfMarket(const DataImage& image, const Field& field, const ModelVariant* variant) {
    const auto* test = field.As<TestFrequencyField>();
    return test != nullptr && variant != nullptr && !IsTestChannelEmpty(image, test->channel) &&
           IsOutOfMarket(image, field, *variant);
}

void CheckFields(const DataImage& image, Findings& findings) {
    const ModelVariant* variant = FindVariant(image.At(address::Family), image.At(address::Market));
    for (const FieldSection section : FieldSections) {
        for (const Field& field : FieldsOf(section)) {
            if (!field.HoldsLegal(image)) {
                findings.push_back({FaultOfField(image, field), field});
            } else if (IsTestOutOfMarket(image, field, variant)) {
                findings.push_back({ImageFault::OutOfMarket, field});
            }
        }
    }
}

/// What is wrong with a value of a programmed channel; nothing where nothing is.
std::optional<ImageFault> FaultOfChannelValue(const DataImage& image, const ChannelField& field,
                                              const ModelVariant* variant) {
    const bool isFrequency = field.column == ChannelColumn::Receive || field.column == ChannelColumn::Transmit;
    if (!HoldsLegalValue(field, image)) {
        if (field.column == ChannelColumn::SpUnmute) {
            return ImageFault::NoSpUnmute;
        }
        return isFrequency ? FaultOfFrequency(image, field) : ImageFault::IllegalValue;
    }
    const bool hasFrequency =
        isFrequency && !record::IsNoFrequency(image.At(AddressOf(field) + record::FrequencyTopByte));
    return hasFrequency && variant != nullptr && IsOutOfMarket(image, field, *variant)
               ? std::optional(ImageFault::OutOfMarket)
               : std::nullopt;
}

void CheckChannels(const DataImage& image, Findings& findings) {
    const ModelVariant* variant = FindVariant(image.At(address::Family), image.At(address::Market));
    const bool hasPttIds = Field(optional_features::PttIdType).HoldsLegal(image);
    for (const ChannelRow& row : ChannelFieldRows) {
        if (IsChannelBlank(image, row[0].channel)) {
            continue;
        }
        for (const ChannelField& field : row) {
            if (field.column == ChannelColumn::PttId && !hasPttIds) {
                continue; // there is no word for any
            }
            if (const auto fault = FaultOfChannelValue(image, field, variant)) {
                findings.push_back({*fault, field});
            }
        }
    }
}

} // namespace

FaultWeight WeightOf(ImageFault fault) {
    switch (fault) {
    case ImageFault::MissingBeginCode:
    case ImageFault::MissingEndCode:
    case ImageFault::NoPriorityChannel:
        return FaultWeight::StopsWrite;
    case ImageFault::UnknownModel:
    case ImageFault::BlankPriorityChannel:
    case ImageFault::HalfOwnNumber:
    case ImageFault::IllegalValue:
    case ImageFault::OutOfRange:
    case ImageFault::OffRaster:
        return FaultWeight::Spoils;
    case ImageFault::OutOfMarket:
    case ImageFault::NoSpUnmute:
    case ImageFault::BlankIdlePriorityChannel:
    case ImageFault::RevertNotOffered:
    case ImageFault::HalfFleetListEntry:
    case ImageFault::EncodeWithoutTransmit:
        break;
    }
    return FaultWeight::Hint;
}

std::string TextOf(ImageFault fault, Language language) {
    const auto text = [fault]() -> TextPair {
        switch (fault) {
        case ImageFault::MissingBeginCode:
        case ImageFault::MissingEndCode:
            return {"the code is missing that a channel's PTT ID sends", "缺少信道 PTT ID 所发送的代码"};
        case ImageFault::NoPriorityChannel:
            return {"the priority mode is Fixed, and no channel is chosen", "优先模式为固定，但未选择信道"};
        case ImageFault::UnknownModel:
            return {"the model is unknown", "未知机型"};
        case ImageFault::BlankPriorityChannel:
        case ImageFault::BlankIdlePriorityChannel:
            return {"the priority channel is not programmed", "优先信道未编程"};
        case ImageFault::HalfOwnNumber:
            return {"of the own fleet and the own ID only one is set", "自身队列和自身 ID 只设置了一个"};
        case ImageFault::IllegalValue:
            return {"the value is not legal", "值不合法"};
        case ImageFault::OutOfRange:
            return {"the frequency is outside 100 to 550 MHz", "频率超出 100 至 550 MHz"};
        case ImageFault::OffRaster:
            return {"the frequency is no multiple of 5 kHz or 6.25 kHz", "频率不是 5 kHz 或 6.25 kHz 的倍数"};
        case ImageFault::OutOfMarket:
            return {"the frequency is outside the market's range", "频率超出该市场的范围"};
        case ImageFault::NoSpUnmute:
            return {"the channel has no legal SP Unmute", "信道没有合法的 SP 不发音设置"};
        case ImageFault::RevertNotOffered:
            return {"the priority mode does not offer this revert channel", "该优先模式下没有此返回信道"};
        case ImageFault::HalfFleetListEntry:
            return {"of the entry's fleet and ID only one is set", "此条目的队列和 ID 只设置了一个"};
        case ImageFault::EncodeWithoutTransmit:
            return {"the channel has an encode tone and no transmit frequency", "信道有编码音而没有发射频率"};
        }
        return {};
    };
    return std::string(text().In(language));
}

std::vector<ImageFinding> CheckImage(const DataImage& image) {
    Findings findings;
    CheckCodes(image, findings);
    CheckPriority(image, findings);
    CheckRules(image, findings);
    CheckModel(image, findings);
    CheckFields(image, findings);
    CheckChannels(image, findings);
    return findings;
}

bool AnyChannelSendsCode(const DataImage& image) {
    for (int channel = 1; channel <= address::ChannelCount; ++channel) {
        if (SendsCode(image, channel)) {
            return true;
        }
    }
    return false;
}

} // namespace zelvor
