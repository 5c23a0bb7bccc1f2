// Tables of channels of any bytes, imported into images of any bytes.

#include "FuzzImages.h"
#include "Require.h"
#include "cli/ChannelSheet.h"
#include "cli/CsvText.h"
#include "data/ChannelCodec.h"
#include "data/ChannelFields.h"
#include "data/MemoryMap.h"

namespace zelvor::fuzz {
namespace {

bool IsOfChannels(int address) {
    return (address >= address::FirstChannel && address < address::Channel(address::ChannelCount + 1)) ||
           address == address::ScanAdd || address == address::ScanAdd + 1;
}

bool HoldsLegalChannels(const DataImage& image) {
    for (const ChannelRow& row : ChannelFieldRows) {
        for (const ChannelField& field : row) {
            if (!HoldsLegalValue(field, image)) {
                return false;
            }
        }
    }
    return true;
}

/// What an image shows of its channels is a table that leaves it as it is.
void CheckOwnTable(const DataImage& image, Language language) {
    const std::string table = cli::ExportChannels(image);
    const cli::SheetImport import = cli::ImportChannels(table, image, language);
    if (HoldsLegalChannels(image)) {
        Require(import.faults.empty(), "a table of legal values is taken");
    }
    if (import.faults.empty()) {
        Require(import.image == image, "an image's own table leaves its bytes");
    }
}

void CheckImport(const std::string& table, const DataImage& image, Language language) {
    const cli::SheetImport import = cli::ImportChannels(table, image, language);
    if (!import.faults.empty()) {
        for (const cli::SheetFault& fault : import.faults) {
            Require(fault.line >= 1 && !fault.reason.empty(), "a fault has a line and a reason");
        }
        return;
    }
    for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
        Require(IsOfChannels(address) || import.image.At(address) == image.At(address),
                "an import changes the channels only");
    }
    const cli::SheetImport again = cli::ImportChannels(table, import.image, language);
    Require(again.faults.empty() && again.image == import.image, "the same table once more changes nothing");
    CheckOwnTable(import.image, language);
}

/// Whatever stands in fields, a line of them is read back.
void CheckLine(const std::string& text) {
    const std::vector<std::string> fields{text, "channel", text.substr(text.size() / 2)};
    const std::vector<cli::CsvRecord> records = cli::ReadCsv("x\n" + cli::CsvLine(fields));
    Require(records.size() == 2 && records[1].fault == cli::CsvFault::None && records[1].fields == fields,
            "a line of any fields is read back");
}

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace zelvor;
    using namespace zelvor::fuzz;
    FuzzInput input(bytes, count);
    const Language language = input.TakeBool() ? Language::Chinese : Language::English;
    const DataImage image = TakeImage(input);
    const std::string table = input.TakeRestAsText();
    CheckOwnTable(image, language);
    CheckImport(table, image, language);
    CheckLine(table);
    return 0;
}
