#include "data/ChannelFields.h"

#include <algorithm>
#include <optional>

#include "data/ChannelBits.h"
#include "data/ChannelCodec.h"
#include "data/ChannelRecord.h"
#include "data/FrequencyCodec.h"
#include "data/LegalFrequency.h"
#include "data/ToneCodec.h"
#include "text/Decimal.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

using namespace record;

constexpr Language Languages[] = {Language::English, Language::Chinese};

// --- Columns ---------------------------------------------------------------------------------------------------------

struct Place {
    int address;
    int size;
};

Place PlaceOf(const ChannelField& field) {
    const int begin = address::Channel(field.channel);
    switch (field.column) {
    case ChannelColumn::Receive:
        return {begin + RxFrequency, 4};
    case ChannelColumn::Transmit:
        return {begin + TxFrequency, 4};
    case ChannelColumn::Decode:
        return {begin + DecodeTone, 2};
    case ChannelColumn::Encode:
        return {begin + EncodeTone, 2};
    case ChannelColumn::Power:
    case ChannelColumn::Width:
    case ChannelColumn::BeatShift:
        return {begin + Transmitter, 1};
    case ChannelColumn::OptionSignalling:
    case ChannelColumn::SpUnmute:
    case ChannelColumn::BusyLockout:
    case ChannelColumn::Compander:
        return {begin + Signalling, 1};
    case ChannelColumn::PttId:
        return {begin + PttId, 1};
    case ChannelColumn::Autodial:
        return {begin + AutoDial, 1};
    case ChannelColumn::ScanAdd:
        break;
    }
    return {ScanAddAddress(field.channel), 1}; // outside the record
}

bool IsFrequency(ChannelColumn column) {
    return column == ChannelColumn::Receive || column == ChannelColumn::Transmit;
}

bool IsTone(ChannelColumn column) {
    return column == ChannelColumn::Decode || column == ChannelColumn::Encode;
}

// --- Reading ---------------------------------------------------------------------------------------------------------

FrequencyBytes FrequencyAt(const DataImage& image, int at) {
    FrequencyBytes bytes{};
    for (std::uint8_t& byte : bytes) {
        byte = image.At(at++);
    }
    return bytes;
}

/// Empty where there is none.
std::string ShowFrequency(const DataImage& image, int at) {
    const FrequencyBytes bytes = FrequencyAt(image, at);
    return IsNoFrequency(bytes[FrequencyTopByte]) ? std::string() : FrequencyText(bytes);
}

std::optional<std::string> ToneAt(const DataImage& image, int at, Language language) {
    return ToneText({image.At(at), image.At(at + 1)}, language);
}

// --- Storing ---------------------------------------------------------------------------------------------------------

void StoreFrequency(DataImage& image, int at, std::string_view text) {
    for (const std::uint8_t byte : EncodeFrequency(text)) {
        image.Set(at++, byte);
    }
}

bool IsCode(std::string_view digits) {
    return std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '7'; });
}

/// The text that a typed tone has when it is shown, where that is the same tone.
std::optional<std::string> TypedTone(std::string_view text, Language language) {
    const std::string tone = NormaliseTone(text, language);
    const bool isSame = !text.empty() && text == tone;
    if (IsPlainNumber(text)) {
        return Decimal::Leading(text) == Decimal::Leading(tone) ? std::optional(tone) : std::nullopt;
    }
    const bool isDqt = text.starts_with('D');
    constexpr std::size_t DqtLength = 5;
    if (!isSame || (isDqt && (text.size() != DqtLength || !IsCode(text.substr(1, 3))))) {
        return std::nullopt;
    }
    return tone;
}

bool StoreTone(DataImage& image, int at, std::string_view text, Language language) {
    const std::optional<std::string> tone = TypedTone(text, language);
    if (tone && tone != ToneAt(image, at, language)) {
        const ToneWord word = ToneEncoder().Encode(*tone, language);
        image.Set(at, word.lo);
        image.Set(at + 1, word.hi);
    }
    return tone.has_value();
}

bool StoreMark(DataImage& image, int channel, std::string_view text, Language language) {
    for (const bool isMarked : {true, false}) {
        if (text == MarkWord(isMarked, language)) {
            SetScanAdd(image, channel, isMarked);
            return true;
        }
    }
    return false;
}

bool StoreBits(DataImage& image, int at, const ChannelBits& bits, std::string_view text, Language language) {
    const auto shows = [&](std::uint8_t byte) { return bits.word(image, byte, language) == text; };
    const auto code = std::ranges::find_if(bits.codes, shows);
    if (text.empty() || code == bits.codes.end()) {
        return false;
    }
    if (!shows(image.At(at))) {
        image.SetBits(at, bits.mask, *code);
    }
    return true;
}

/// The words of a mark, which no other column has, may begin with a capital, as they do in the table of channels.
std::string_view AsMark(std::string_view text) {
    for (const bool isMarked : {true, false}) {
        if (text == TableText(Language::English, isMarked ? Text::Yes : Text::No)) {
            return isMarked ? "yes" : "no";
        }
    }
    return text;
}

bool StoreWord(const ChannelField& field, std::string_view text, DataImage& image, Language language) {
    const int at = AddressOf(field);
    if (IsTone(field.column)) {
        return StoreTone(image, at, text, language);
    }
    const std::optional<ChannelBits> bits = BitsOf(field.column);
    return bits ? StoreBits(image, at, *bits, text, language) : StoreMark(image, field.channel, text, language);
}

void BlankChannel(DataImage& image, int channel) {
    for (int j = 0; j < address::ChannelSize; ++j) {
        image.Set(address::Channel(channel) + j, ErasedByte);
    }
}

void BeginChannel(DataImage& image, int channel, std::string_view receive) {
    constexpr Language English = Language::English;
    BlankChannel(image, channel);
    image.Set(address::Channel(channel) + Signalling, 0);
    image.Set(address::Channel(channel) + PttId, PttIdOff);
    ChannelCodec codec;
    codec.CompleteChannelDefaults(image, English, channel, receive);
    const ChannelTexts& texts = codec.Texts;
    StoreFrequency(image, address::Channel(channel) + RxFrequency, texts.RxText);
    const auto store = [&](ChannelColumn column, std::string_view text) {
        [[maybe_unused]] const bool isWord = StoreWord({channel, column}, text, image, English);
    };
    store(ChannelColumn::Decode, texts.DecText);
    store(ChannelColumn::Encode, texts.EncText);
    store(ChannelColumn::Power, texts.PowerText);
    store(ChannelColumn::Width, texts.WidthText);
    store(ChannelColumn::OptionSignalling, texts.OptSignalText);
    store(ChannelColumn::PttId, texts.PttIdText);
    store(ChannelColumn::SpUnmute, texts.SpMuteText);
    store(ChannelColumn::BusyLockout, texts.BusyLockText);
    store(ChannelColumn::Autodial, texts.AutoDialText);
    SetScanAdd(image, channel, texts.ScanAddText == TableText(English, Text::Yes));
}

/// A legal frequency can be stored again also where the model has narrower limits for a new one.
bool ParseFrequency(const ChannelField& field, std::string_view text, DataImage& image) {
    if (HoldsLegalValue(field, image) && IsNumberOnShow(text, ShowValue(field, image, Language::English))) {
        return true;
    }
    const TypedFrequency typed = text.empty() ? TypedFrequency{} : ReadTypedFrequency(text, SetBandLimits(image));
    if (typed.fault != FrequencyFault::None) {
        return false;
    }
    if (typed.text == ShowValue(field, image, Language::English)) {
        return true;
    }
    const bool isReceive = field.column == ChannelColumn::Receive;
    if (isReceive && typed.text.empty()) {
        BlankChannel(image, field.channel);
    } else if (isReceive && IsChannelBlank(image, field.channel)) {
        BeginChannel(image, field.channel, typed.text);
    } else {
        StoreFrequency(image, AddressOf(field), typed.text);
    }
    return true;
}

} // namespace

// --- What the header tells -------------------------------------------------------------------------------------------

std::string_view NameOf(ChannelColumn column) {
    constexpr std::array<std::string_view, ChannelColumnCount> names{
        "rx_mhz", "tx_mhz",    "decode",       "encode",   "power",      "width",    "scan_add", "option_signalling",
        "ptt_id", "sp_unmute", "busy_lockout", "autodial", "beat_shift", "compander"};
    return names[static_cast<std::size_t>(column)];
}

std::string_view HeadingOf(ChannelColumn column, Language language) {
    constexpr std::array<FieldWord, ChannelColumnCount> headings{Text::ReceiveFrequency,
                                                                 Text::TransmitFrequency,
                                                                 Text::QtDqtDecode,
                                                                 Text::QtDqtEncode,
                                                                 Text::TxPower,
                                                                 Text::WideNarrow,
                                                                 Text::ScanAdd,
                                                                 Text::OptionSignallingLabel,
                                                                 "PTT ID",
                                                                 Text::SpUnmute,
                                                                 Text::BusyChannelLockout,
                                                                 Text::AutodialMemoryOfChannel,
                                                                 Text::BeatShift,
                                                                 Text::Compander};
    return headings[static_cast<std::size_t>(column)].In(language);
}

bool IsChannelBlank(const DataImage& image, int channel) {
    return IsNoFrequency(image.At(address::Channel(channel) + RxFrequency + FrequencyTopByte));
}

std::string KeyOf(const ChannelField& field) {
    return "channels." + std::to_string(field.channel) + '.' + std::string(NameOf(field.column));
}

int AddressOf(const ChannelField& field) {
    return PlaceOf(field).address;
}

int SizeOf(const ChannelField& field) {
    return PlaceOf(field).size;
}

std::string LabelOf(const ChannelField& field, Language language) {
    return std::string(TableText(language, Text::Channel)) + ' ' + std::to_string(field.channel) + ' ' +
           std::string(HeadingOf(field.column, language));
}

std::string ShowValue(const ChannelField& field, const DataImage& image, Language language) {
    if (IsChannelBlank(image, field.channel)) {
        return {};
    }
    const int at = AddressOf(field);
    if (IsFrequency(field.column)) {
        return ShowFrequency(image, at);
    }
    if (IsTone(field.column)) {
        return ToneAt(image, at, language).value_or(std::string());
    }
    const std::optional<ChannelBits> bits = BitsOf(field.column);
    return bits ? bits->word(image, image.At(at), language) : MarkWord(IsScanAdded(image, field.channel), language);
}

LegalValues LegalValuesOf(const ChannelField& field, Language language) {
    if (IsFrequency(field.column)) {
        return LegalFrequencies();
    }
    if (IsTone(field.column)) {
        return {.words = {std::string(TableText(language, Text::None))},
                .range = LegalValues::Range{"67.0", "254.1", "0.1"},
                .codes = LegalValues::Range{"D000N", "D777I", "1"}};
    }
    const std::optional<ChannelBits> bits = BitsOf(field.column);
    if (!bits) {
        return {.words = {MarkWord(true, language), MarkWord(false, language)}};
    }
    LegalValues legal;
    for (const std::uint8_t type : {TypeDtmf, TypeCorvane}) {
        DataImage image;
        image.Set(address::PttIdType, type);
        for (const std::uint8_t code : bits->codes) {
            const std::string word = bits->word(image, code, language);
            if (std::ranges::find(legal.words, word) == legal.words.end()) {
                legal.words.push_back(word);
            }
        }
    }
    return legal;
}

bool ParseValue(const ChannelField& field, std::string_view text, DataImage& image) {
    const std::string_view typed = AsMark(Trimmed(text));
    if (field.column == ChannelColumn::Receive) {
        return ParseFrequency(field, typed, image);
    }
    if (IsChannelBlank(image, field.channel)) {
        return typed.empty();
    }
    if (field.column == ChannelColumn::Transmit) {
        return ParseFrequency(field, typed, image);
    }
    return std::ranges::any_of(Languages, [&](Language language) { return StoreWord(field, typed, image, language); });
}

bool HoldsLegalValue(const ChannelField& field, const DataImage& image) {
    if (IsChannelBlank(image, field.channel)) {
        return true;
    }
    const int at = AddressOf(field);
    if (IsFrequency(field.column)) {
        const FrequencyBytes bytes = FrequencyAt(image, at);
        if (IsNoFrequency(bytes[FrequencyTopByte])) {
            return field.column == ChannelColumn::Transmit;
        }
        const std::optional<std::int32_t> frequency = UnpackFrequency(bytes);
        return frequency && IsInRange(*frequency) && IsOnRaster(*frequency);
    }
    if (IsTone(field.column)) {
        return IsLegalTone({image.At(at), image.At(at + 1)});
    }
    const std::optional<ChannelBits> bits = BitsOf(field.column);
    return !bits || !bits->word(image, image.At(at), Language::English).empty();
}

void StoreBlankValue(const ChannelField& /*field*/, DataImage& /*image*/) {}

} // namespace zelvor
