// A data file of any bytes: read, shown, checked, and every channel decoded and encoded.

#include <algorithm>

#include "FuzzInput.h"
#include "Require.h"
#include "data/BlankImage.h"
#include "data/ChannelTable.h"
#include "data/DataFile.h"
#include "data/Document.h"
#include "data/FieldRegistry.h"
#include "data/ImageChecks.h"
#include "data/ImageSections.h"
#include "data/ModelCatalogue.h"
#include "data/TestFrequencies.h"
#include "link/PreWriteChecks.h"
#include "text/Utf8.h"

namespace zelvor::fuzz {
namespace {

constexpr Language Languages[] = {Language::English, Language::Chinese};

bool IsUtf8(std::string_view text) {
    return Utf8Of(Utf16Of(text)) == text;
}

// --- The file --------------------------------------------------------------------------------------------------------

void CheckFile(std::span<const std::uint8_t> bytes, const DataImage& image) {
    Require(bytes.size() == 1040, "a data file has 1040 bytes");
    const DataFileBytes again = EncodeDataFile(image);
    Require(std::equal(again.begin(), again.begin() + 6, bytes.begin()), "the magic comes back");
    Require(std::all_of(again.begin() + 6, again.begin() + 16, [](std::uint8_t byte) { return byte == 0xFF; }),
            "the reserved bytes are FF");
    Require(std::equal(again.begin() + 16, again.end(), bytes.begin() + 16), "the memory comes back");
    const DataImage::Bytes memory = image.ToAddressOrder();
    Require(std::equal(memory.begin(), memory.end(), bytes.begin() + 16), "the image has the memory's bytes");
}

// --- Fields ----------------------------------------------------------------------------------------------------------

/// The bytes that a field stores in. A test channel's frequencies are stored together.
int FirstOf(const Field& field) {
    const auto* frequency = field.As<TestFrequencyField>();
    return frequency != nullptr && frequency->isTransmit ? field.Address() - field.Size() : field.Address();
}

int BehindLastOf(const Field& field) {
    const bool isPaired = field.As<TestFrequencyField>() != nullptr;
    return isPaired ? FirstOf(field) + address::TestFrequencyPairSize : field.Address() + field.Size();
}

void CheckField(const Field& field, const DataImage& image, Language language) {
    const std::string shown = field.Show(image, language);
    Require(IsUtf8(shown), "a value is shown in UTF-8");
    if (!field.HoldsLegal(image)) {
        return;
    }
    DataImage stored = image;
    Require(field.Parse(shown, stored), "a legal value can be stored as it is shown");
    Require(field.Show(stored, language) == shown, "a stored value is shown as it was");
    Require(field.HoldsLegal(stored), "a stored value is legal");
    for (int address = FirstOf(field); address < BehindLastOf(field); ++address) {
        stored.Set(address, image.At(address));
    }
    Require(stored == image, "a field stores in its own bytes only");
}

void CheckFields(const DataImage& image) {
    for (const ImageSection& section : ImageSections()) {
        for (const Field& field : section.fields) {
            for (const Language language : Languages) {
                CheckField(field, image, language);
            }
        }
    }
    for (const ImageFinding& finding : CheckImage(image)) {
        for (const Language language : Languages) {
            Require(!TextOf(finding.fault, language).empty(), "every finding has a text");
        }
    }
}

// --- Channels --------------------------------------------------------------------------------------------------------

bool IsPackedDecimal(const DataImage& image, int at) {
    for (int i = 0; i < 4; ++i) {
        if ((image.At(at + i) >> 4) > 9 || (image.At(at + i) & 0x0F) > 9) {
            return false;
        }
    }
    return true;
}

/// The bytes that an encoder writes for the frequency that they show.
bool IsEncodedFrequency(const DataImage& image, int at) {
    const int top = image.At(at + 3);
    const bool isNone = image.At(at) == 0xFF && image.At(at + 1) == 0xFF && image.At(at + 2) == 0xFF && top == 0xFF;
    return isNone || (top != 0x00 && IsPackedDecimal(image, at));
}

bool IsEncodedTone(const DataImage& image, int at) {
    const int low = image.At(at);
    const int high = image.At(at + 1);
    if (low == 0xFF && high == 0xFF) {
        return true;
    }
    const int tenths = high * 256 + low;
    const bool isDqt = (high & ~0x81) == 0x28;
    return isDqt || (high != 0 && (high & 0x20) == 0 && tenths >= 256 && tenths <= 9999);
}

/// What is encoded of the texts that were decoded, and nothing else: bits 5 to 7 of byte 12 are carried over from the
/// last decoded channel, the fixed bits of byte 13 are set, and byte 14 has its words by the PTT ID Type.
void CheckEncoded(const DataImage& before, const DataImage& after, int k) {
    const int at = address::Channel(k);
    const auto isSame = [&](int first, int count) {
        for (int i = first; i < first + count; ++i) {
            if (before.At(at + i) != after.At(at + i)) {
                return false;
            }
        }
        return true;
    };
    Require(isSame(0, 4) || !IsEncodedFrequency(before, at), "an unchanged receive frequency keeps its bytes");
    Require(isSame(4, 4) || !IsEncodedFrequency(before, at + 4), "an unchanged transmit frequency keeps its bytes");
    Require(isSame(8, 2) || !IsEncodedTone(before, at + 8), "an unchanged decode tone keeps its bytes");
    Require(isSame(10, 2) || !IsEncodedTone(before, at + 10), "an unchanged encode tone keeps its bytes");
    const std::uint8_t byte12 = before.At(at + 12);
    const bool hasSignallingWord = byte12 != 0xFF && (byte12 & 0x06) != 0x06;
    const int mask12 = hasSignallingWord ? 0x1F : 0x19;
    Require((byte12 & mask12) == (after.At(at + 12) & mask12), "compander, signalling and busy lockout stay");
    Require((before.At(at + 13) & 0x70) == (after.At(at + 13) & 0x70), "width, power and beat shift stay");
    Require((after.At(at + 13) & 0x8F) == 0x8F, "the fixed bits of byte 13 are set");
    Require((before.At(at + 15) & 7) == (after.At(at + 15) & 7), "the autodial memory stays");
    Require(after.At(at + 15) >= 248, "an encoded autodial memory is F8 to FF");
    Require(IsScanAdded(before, k) == IsScanAdded(after, k), "Scan Add stays");
    const std::uint8_t type = before.At(address::PttIdType);
    const std::uint8_t pttId = before.At(at + 14);
    const bool hasWord =
        (type == 0 && (pttId == 0xB0 || pttId == 0xB1)) || (type == 1 && pttId >= 0xB0 && pttId <= 0xB9);
    Require(!hasWord || after.At(at + 14) == pttId, "a PTT ID with a word keeps its byte");
}

void CheckChannels(const DataImage& image, Language language) {
    ChannelTable table;
    table.DecodeImageToGrid(image, language);
    int used = 0;
    for (int k = 1; k <= address::ChannelCount; ++k) {
        for (int column = 1; column <= column::Count; ++column) {
            Require(IsUtf8(table.CellText(k, column)), "a cell is UTF-8");
        }
        used += table.IsProgrammed(k) ? 1 : 0;
    }
    Require(used >= 0 && used <= address::ChannelCount, "there are 16 channels");
    for (int k = 1; k <= address::ChannelCount; ++k) {
        if (!table.IsProgrammed(k)) {
            continue;
        }
        DataImage encoded = image;
        bool txCodeError = false;
        table.LoadRowIntoFields(image, language, k);
        table.EncodeChannelRow(encoded, language, k, txCodeError);
        CheckEncoded(image, encoded, k);
        for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
            const bool isOwn = address / 16 == k || address == ScanAddAddress(k);
            Require(isOwn || encoded.At(address) == image.At(address), "a channel is encoded into its own record");
        }
        table.DecodeImageToGrid(image, language); // the encoder's working bytes as a decode leaves them
    }
}

/// Another language changes words only, and what the PTT ID Type says only the last column.
void CheckTexts(const DataImage& image, Language language) {
    ChannelTable table;
    table.DecodeImageToGrid(image, language);
    const ChannelTable decoded = table;
    const auto isSame = [&](int column) {
        for (int k = 1; k <= address::ChannelCount; ++k) {
            if (table.CellText(k, column) != decoded.CellText(k, column)) {
                return false;
            }
        }
        return true;
    };
    table.ShowPttIdsOfType(image, language);
    table.RefreshPttIds(image, language);
    for (int column = 1; column < column::PttId; ++column) {
        Require(isSame(column), "a PTT ID Type changes the PTT IDs only");
    }
    table.Translate(image, language == Language::English ? Language::Chinese : Language::English);
    Require(isSame(column::Rx) && isSame(column::Tx), "frequencies have no language");
    Require(table.FreeBytes() == decoded.FreeBytes(), "another language leaves the free area");
}

/// A new document of the same model, and what names it.
void CheckNewDocument(const DataImage& image) {
    DataImage blank = image;
    InitAllFrameData(blank);
    Require(blank.At(address::Market) == image.At(address::Market) &&
                blank.At(address::Family) == image.At(address::Family),
            "a new document is of the same model");
    for (const FieldSection section : FieldSections) {
        for (const Field& field : FieldsOf(section)) {
            const bool isTestFrequency = field.As<TestFrequencyField>() != nullptr; // of a market without a band 0
            Require(isTestFrequency || field.HoldsLegal(blank), "a new document holds legal values");
        }
    }
    DataImage again = blank;
    InitAllFrameData(again);
    Require(again == blank, "a new document once more is the same");
    for (const Language language : Languages) {
        Require(IsUtf8(BuildMainTitle(image, "a.dat", language)), "a title is UTF-8");
    }
}

void CheckDocument(const DataImage& image) {
    for (const Language language : Languages) {
        CheckChannels(image, language);
        CheckTexts(image, language);
        Document document;
        document.Image = image;
        document.Priority.SetError(true);
        document.Flags.TxCodeError = true;
        const auto message = CheckBeforeWrite(document, language);
        Require(!message || IsUtf8(message->text), "a message is UTF-8");
        Require(document.Image == image, "a check changes nothing");
    }
}

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace zelvor;
    using namespace zelvor::fuzz;
    const std::span file(bytes, count);
    if (const auto image = DecodeDataFile(file)) {
        CheckFile(file, *image);
        CheckFields(*image);
        CheckDocument(*image);
        CheckNewDocument(*image);
    } else {
        const std::string_view magic(reinterpret_cast<const char*>(bytes), std::min<std::size_t>(count, 6));
        Require(count != 1040 || magic != "RQ6152", "what has the size and the magic is a data file");
    }
    return 0;
}
