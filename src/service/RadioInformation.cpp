#include "service/RadioInformation.h"

#include "data/ModelCatalogue.h"
#include "data/Windows1252.h"
#include "text/Utf8.h"

namespace zelvor {

namespace {

// Places in the manufacturing record.
constexpr std::size_t SerialPrefix = 13;
constexpr std::size_t SerialFirst = 17;
constexpr std::size_t SerialLength = 8;

} // namespace

InformationModel InformationModelOf(std::uint8_t family, std::uint8_t market) {
    const ModelVariant* variant = FindVariant(family, market);
    if (variant == nullptr && IsFamilyByte(family)) {
        return {};
    }
    const ModelVariant& shown = variant != nullptr ? *variant : VariantOfUnknownFamily();
    return {shown.infoModel, shown.infoBand};
}

std::string SerialNumberOf(std::span<const std::uint8_t> record) {
    std::u16string text(u" ");
    text += Windows1252Character(record[SerialPrefix]);
    text += u' ';
    for (const std::uint8_t byte : record.subspan(SerialFirst, SerialLength)) {
        text += Windows1252Character(byte);
    }
    return Utf8Of(text);
}

} // namespace zelvor
