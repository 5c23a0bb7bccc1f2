#include "data/ToneCodec.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/Decimal.h"
#include "text/StringTable.h"

namespace zelvor {
namespace {

constexpr std::uint8_t DqtBit = 0x20;
constexpr std::uint8_t DqtMark = 0x28; // the bits that an encoded DQT carries
constexpr std::uint8_t InvertedBit = 0x80;
constexpr std::uint8_t CodeHighBit = 0x01;

constexpr int LowestQt = 670; // tenths of a hertz
constexpr int HighestQt = 2541;

constexpr std::array<std::string_view, 38> QtTones{
    "67.0",  "71.9",  "74.4",  "77.0",  "79.7",  "82.5",  "85.4",  "88.5",  "91.5",  "94.8",  "97.4",  "100.0", "103.5",
    "107.2", "110.9", "114.8", "118.8", "123.0", "127.3", "131.8", "136.5", "141.3", "146.2", "151.4", "156.7", "162.2",
    "167.9", "173.8", "179.9", "186.2", "192.8", "203.5", "210.7", "218.1", "225.7", "233.6", "241.8", "250.3"};

constexpr std::array<std::string_view, 83> DqtCodes{
    "023", "025", "026", "031", "032", "043", "047", "051", "054", "065", "071", "072", "073", "074",
    "114", "115", "116", "125", "131", "132", "134", "143", "152", "155", "156", "162", "165", "172",
    "174", "205", "223", "226", "243", "244", "245", "251", "261", "263", "265", "271", "306", "311",
    "315", "331", "343", "346", "351", "364", "365", "371", "411", "412", "413", "423", "431", "432",
    "445", "464", "465", "466", "503", "506", "516", "532", "546", "565", "606", "612", "624", "627",
    "631", "632", "654", "662", "664", "703", "712", "723", "731", "732", "734", "743", "754"};

static_assert(1 + QtTones.size() + 2 * DqtCodes.size() == ToneListSize);

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// letter is in lower case.
bool Holds(std::string_view text, char letter) {
    return std::any_of(text.begin(), text.end(), [letter](char c) { return Lower(c) == letter; });
}

int DigitAt(std::string_view text, std::size_t place) {
    return place < text.size() && text[place] >= '0' && text[place] <= '9' ? text[place] - '0' : 0;
}

std::string DqtText(ToneWord word) {
    const int code = word.lo + 256 * (word.hi & CodeHighBit);
    std::string text = "D";
    for (const int digit : {code / 64, code % 64 / 8, code % 8}) {
        text += static_cast<char>('0' + digit);
    }
    text += (word.hi & InvertedBit) != 0 ? 'I' : 'N';
    return text;
}

std::string NormaliseDqt(std::string_view text) {
    constexpr std::size_t Length = 5;
    if (text == "D") {
        return "D000N";
    }
    std::string result(text);
    if (result.size() < Length) {
        result.append(Length - result.size(), '0');
    }
    for (std::size_t i = 1; i < Length - 1; ++i) {
        if (result[i] == '.') {
            result[i] = '0';
        } else if (static_cast<unsigned char>(result[i]) > '7') {
            result[i] = '7';
        }
    }
    if (result[Length - 1] != 'I') {
        result[Length - 1] = 'N';
    }
    return result;
}

std::string NormaliseQt(std::string_view text) {
    const Decimal value = Decimal::Leading(text);
    if (value > Decimal::Of(HighestQt, 1)) {
        return "254.1";
    }
    if (value < Decimal::Of(LowestQt, 1)) {
        return "67.0";
    }
    // Half a tenth less, then rounded: further decimals are cut off.
    return (value - Decimal::Of(5, 2)).Format(1, 1);
}

} // namespace

std::optional<std::string> ToneText(ToneWord word, Language language) {
    if (word.hi == 0x00 || word.hi == 0xFF) {
        return std::string(TableText(language, Text::None));
    }
    if ((word.hi & DqtBit) != 0) {
        return DqtText(word);
    }
    const int tenths = word.hi * 256 + word.lo;
    if (tenths > 9999) {
        return std::nullopt;
    }
    return Decimal::Of(tenths, 1).Format(2, 1);
}

bool IsLegalTone(ToneWord word) {
    const int tenths = word.hi * 256 + word.lo;
    return word.hi == 0x00 || word.hi == 0xFF || (word.hi & DqtBit) != 0 || (tenths >= LowestQt && tenths <= HighestQt);
}

ToneWord ToneEncoder::Encode(std::string_view text, Language language) {
    if (text == TableText(language, Text::None)) {
        return {};
    }
    const bool isDqt = Holds(text, 'd');
    std::int64_t value = 0;
    if (isDqt) {
        value = 64 * DigitAt(text, 1) + 8 * DigitAt(text, 2) + DigitAt(text, 3);
        if (Holds(text, 'n')) {
            inverted_ = false;
        } else if (Holds(text, 'i')) {
            inverted_ = true;
        }
    } else {
        value = Decimal::Leading(text).Rounded(1);
    }
    ToneWord word{static_cast<std::uint8_t>(value % 256), static_cast<std::uint8_t>(value / 256)};
    if (isDqt) {
        word.hi = static_cast<std::uint8_t>(((word.hi | DqtMark) & ~InvertedBit) | (inverted_ ? InvertedBit : 0));
    }
    return word;
}

std::vector<std::string> BuildToneList(Language language) {
    std::vector<std::string> list;
    list.reserve(ToneListSize);
    list.emplace_back(TableText(language, Text::None));
    list.insert(list.end(), QtTones.begin(), QtTones.end());
    for (const char polarity : {'N', 'I'}) {
        for (const std::string_view code : DqtCodes) {
            list.emplace_back(1, 'D').append(code).push_back(polarity);
        }
    }
    return list;
}

std::string NormaliseTone(std::string_view text, Language language) {
    const std::string_view none = TableText(language, Text::None);
    if (text.empty() || text == none) {
        return std::string(none);
    }
    if (text.front() == 'D') {
        return NormaliseDqt(text);
    }
    if (text.front() == 'N' || text.front() == 'I') {
        return "67.0";
    }
    return NormaliseQt(text);
}

} // namespace zelvor
