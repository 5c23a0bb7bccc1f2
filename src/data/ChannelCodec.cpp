#include "data/ChannelCodec.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "data/ChannelRecord.h"
#include "data/ChannelWords.h"
#include "data/FrequencyCodec.h"
#include "data/MemoryMap.h"
#include "text/Decimal.h"
#include "text/StringTable.h"

namespace zelvor {
namespace {

using namespace record;
using RecordBytes = std::array<std::int16_t, address::ChannelSize>;

std::uint8_t ByteOf(const RecordBytes& bytes, int j) {
    return static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(j)]);
}

FrequencyBytes FrequencyOf(const RecordBytes& bytes, int at) {
    return {ByteOf(bytes, at), ByteOf(bytes, at + 1), ByteOf(bytes, at + 2), ByteOf(bytes, at + 3)};
}

void ClearMissingFrequency(RecordBytes& bytes, int at) {
    if (IsNoFrequency(ByteOf(bytes, at + FrequencyTopByte))) {
        std::fill_n(bytes.begin() + at, 4, std::int16_t{0});
    }
}

/// A word that is no tone leaves the text of the channel decoded before.
void TakeTone(std::string& text, const RecordBytes& bytes, int at, Language language) {
    if (std::optional<std::string> tone = ToneText({ByteOf(bytes, at), ByteOf(bytes, at + 1)}, language)) {
        text = *std::move(tone);
    }
}

void SetBits(std::uint8_t& byte, std::uint8_t mask, int value) {
    byte = static_cast<std::uint8_t>((byte & ~mask) | (value & mask));
}

std::uint8_t ScanAddBit(int k) {
    return static_cast<std::uint8_t>(1 << ((k - 1) % 8));
}

void StoreFrequency(DataImage& image, int at, std::string_view text) {
    for (const std::uint8_t byte : EncodeFrequency(text)) {
        image.Set(at++, byte);
    }
}

void StoreTone(DataImage& image, int at, ToneWord word) {
    image.Set(at, word.lo);
    image.Set(at + 1, word.hi);
}

int ValueOf(std::string_view text) {
    return static_cast<int>(Decimal::Leading(text).Rounded());
}

void CompleteWith(std::string& text, std::string_view word) {
    if (text.empty()) {
        text = word;
    }
}

} // namespace

int ScanAddAddress(int k) {
    return address::ScanAdd + (k - 1) / 8;
}

bool IsScanAdded(const DataImage& image, int k) {
    return (image.At(ScanAddAddress(k)) & ScanAddBit(k)) != 0;
}

void SetScanAdd(DataImage& image, int k, bool added) {
    image.SetBits(ScanAddAddress(k), ScanAddBit(k), added ? 0xFF : 0x00);
}

void ChannelCodec::RefreshChannelBytes(const DataImage& image) {
    for (int k = 1; k <= address::ChannelCount; ++k) {
        RecordBytes& bytes = ChannelBytes[static_cast<std::size_t>(k - 1)];
        for (int j = 0; j < address::ChannelSize; ++j) {
            bytes[static_cast<std::size_t>(j)] = image.At(address::Channel(k) + j);
        }
    }
}

std::vector<ChannelTexts> ChannelCodec::DecodeAll(const DataImage& image, Language language) {
    RefreshChannelBytes(image);
    std::vector<ChannelTexts> all;
    all.reserve(address::ChannelCount);
    for (int k = 1; k <= address::ChannelCount; ++k) {
        DecodeChannel(image, language, k);
        all.push_back(Texts);
    }
    return all;
}

void ChannelCodec::DecodeChannel(const DataImage& image, Language language, int k) {
    RecordBytes& bytes = ChannelBytes[static_cast<std::size_t>(k - 1)];
    ClearMissingFrequency(bytes, RxFrequency);
    ClearMissingFrequency(bytes, TxFrequency);
    const FrequencyBytes transmit = FrequencyOf(bytes, TxFrequency);
    Texts.RxText = FrequencyText(FrequencyOf(bytes, RxFrequency));
    Texts.TxText = IsZeroFrequency(transmit) ? std::string() : FrequencyText(transmit);
    TakeTone(Texts.DecText, bytes, DecodeTone, language);
    TakeTone(Texts.EncText, bytes, EncodeTone, language);

    workingByte12_ = ByteOf(bytes, Signalling);
    workingByte13_ = ByteOf(bytes, Transmitter);
    workingByte14_ = ByteOf(bytes, PttId);
    Texts.OptSignalText = OptSignalWord(workingByte12_, language);
    Texts.PowerText = PowerWord(workingByte13_, language);
    Texts.WidthText = WidthWord(workingByte13_, language);
    Texts.PttIdText = PttIdWord(image.At(address::PttIdType), workingByte14_, language);
    Texts.ScanAddText = TableText(language, IsScanAdded(image, k) ? Text::Yes : Text::No);
    LoadHiddenFields(image, language, k);
}

void ChannelCodec::LoadHiddenFields(const DataImage& image, Language language, int k) {
    const int at = address::Channel(k);
    const std::uint8_t byte12 = image.At(at + Signalling);
    Texts.SpMuteText = SpMuteWord(byte12, language);
    Texts.BusyLockText = BusyLockWord(byte12, language);
    Texts.CompanderFlag = (byte12 & CompanderBit) != 0;
    Texts.BeatShiftFlag = (image.At(at + Transmitter) & BeatShiftBit) != 0;
    Texts.AutoDialText = AutoDialWord(image.At(at + AutoDial));
}

void ChannelCodec::EncodeChannel(DataImage& image, Language language, int k, bool& txCodeError) {
    const int at = address::Channel(k);
    StoreFrequency(image, at + RxFrequency, Texts.RxText);
    StoreFrequency(image, at + TxFrequency, Texts.TxText);
    StoreTone(image, at + DecodeTone, toneEncoder_.Encode(Texts.DecText, language));
    StoreTone(image, at + EncodeTone, toneEncoder_.Encode(Texts.EncText, language));
    EncodeSignalling(image, language, k);
    EncodeTransmitter(language);
    EncodePttId(image.At(address::PttIdType), language, txCodeError);
    image.Set(at + Signalling, workingByte12_);
    image.Set(at + Transmitter, workingByte13_);
    image.Set(at + PttId, workingByte14_);
    image.Set(at + AutoDial, Texts.AutoDialText.empty()
                                 ? AutoDialFirst
                                 : static_cast<std::uint8_t>(ValueOf(Texts.AutoDialText) + AutoDialBase));
    if (Texts.ScanAddText == TableText(language, Text::Yes)) {
        SetScanAdd(image, k, true);
    } else if (Texts.ScanAddText == TableText(language, Text::No)) {
        SetScanAdd(image, k, false);
    }
}

void ChannelCodec::EncodeSignalling(const DataImage& image, Language language, int k) {
    if (Texts.OptSignalText == TableText(language, Text::None)) {
        SetBits(workingByte12_, OptSignalMask, 0);
    } else if (Texts.OptSignalText == TableText(language, Text::Dtmf)) {
        SetBits(workingByte12_, OptSignalMask, OptSignalDtmf);
    } else if (Texts.OptSignalText == TableText(language, Text::Corvane)) {
        SetBits(workingByte12_, OptSignalMask, OptSignalCorvane);
    }
    SetBits(workingByte12_, CompanderBit, Texts.CompanderFlag ? CompanderBit : 0);
    SetBits(workingByte12_, BusyLockMask, image.At(address::Channel(k) + Signalling));

    // Intended: SP Unmute is read from one fixed byte, and with a mask that hides its very bits, so that only the value
    // zero is seen. As every clone write leaves 0xFF there, documents in the field depend on the carried-over bits
    // staying.
    if ((image.At(address::EncoderMuteByte) & ~SpMuteMask) == 0) {
        SetBits(workingByte12_, SpMuteMask, 0);
    }
}

void ChannelCodec::EncodeTransmitter(Language language) {
    if (Texts.PowerText == TableText(language, Text::High)) {
        SetBits(workingByte13_, HighPowerBit, HighPowerBit);
    } else if (Texts.PowerText == TableText(language, Text::Low)) {
        SetBits(workingByte13_, HighPowerBit, 0);
    }
    if (Texts.WidthText == TableText(language, Text::Wide)) {
        SetBits(workingByte13_, WideBit, WideBit);
    } else if (Texts.WidthText == TableText(language, Text::Narrow)) {
        SetBits(workingByte13_, WideBit, 0);
    }
    SetBits(workingByte13_, BeatShiftBit, Texts.BeatShiftFlag ? BeatShiftBit : 0);
    SetBits(workingByte13_, TransmitterFixedBits, TransmitterFixedBits);
}

void ChannelCodec::EncodePttId(std::uint8_t pttIdType, Language language, bool& txCodeError) {
    const std::string& text = Texts.PttIdText;
    const bool isOff = text == TableText(language, Text::Off);
    if (pttIdType != TypeDtmf && pttIdType != TypeCorvane) {
        return;
    }
    if (isOff) {
        workingByte14_ = PttIdOff;
    } else if (pttIdType == TypeDtmf) {
        if (text != TableText(language, Text::On)) {
            return;
        }
        workingByte14_ = PttIdOn;
        txCodeError = true;
    } else if (text == TableText(language, Text::Own)) {
        workingByte14_ = PttIdOwn;
    } else if (text.find(TableText(language, Text::FleetList)) != std::string::npos) {
        const int number = ValueOf(std::string_view(text).substr(text.size() - 1));
        workingByte14_ = static_cast<std::uint8_t>(PttIdFleetBase + number);
    }
}

void ChannelCodec::CompleteChannelDefaults(DataImage& image, Language language, int k, std::string_view rxText) {
    Texts.RxText = Decimal::Leading(rxText).Format(3, 5);
    CompleteTexts(image, language, true);
    ClearHiddenFields(image, language, k);
}

void ChannelCodec::CompleteTexts(const DataImage& image, Language language, bool signalling) {
    if (Texts.TxText.empty()) {
        Texts.EncText.clear();
    }
    CompleteWith(Texts.DecText, TableText(language, Text::None));
    CompleteWith(Texts.EncText, TableText(language, Text::None));
    CompleteWith(Texts.PowerText, TableText(language, Text::High));
    CompleteWith(Texts.WidthText, TableText(language, Text::Wide));
    CompleteWith(Texts.ScanAddText, TableText(language, Text::Yes));
    if (signalling) {
        CompleteWith(Texts.OptSignalText, TableText(language, Text::None));
    }
    const std::uint8_t pttIdType = image.At(address::PttIdType);
    if (pttIdType == TypeDtmf || pttIdType == TypeCorvane) {
        CompleteWith(Texts.PttIdText, TableText(language, Text::Off));
    } else {
        Texts.PttIdText.clear();
    }
    CompleteWith(Texts.AutoDialText, AutoDialWord(AutoDialFirst));
}

void ChannelCodec::ClearHiddenFields(DataImage& image, Language language, int k) {
    CompleteWith(Texts.SpMuteText, TableText(language, Text::Carrier));
    CompleteWith(Texts.BusyLockText, TableText(language, Text::Off));
    const int at = address::Channel(k);
    image.SetBits(at + Signalling, CompanderBit, 0);
    image.SetBits(at + Transmitter, BeatShiftBit, 0);
    image.SetBits(at + AutoDial, AutoDialMask, 0);
    Texts.CompanderFlag = false;
    Texts.BeatShiftFlag = false;
    Texts.AutoDialText = AutoDialWord(AutoDialFirst);
}

} // namespace zelvor
