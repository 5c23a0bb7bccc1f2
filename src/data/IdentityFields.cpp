#include "data/IdentityFields.h"

#include <algorithm>

#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr TextPair MarketLabel{"Market", "市场"};

const ModelVariant* VariantOf(const DataImage& image) {
    return FindVariant(image.At(address::Family), image.At(address::Market));
}

std::string TextOf(IdentityPart part, const ModelVariant& variant) {
    switch (part) {
    case IdentityPart::Model:
        return variant.infoModel;
    case IdentityPart::Market:
        break;
    }
    return variant.reportMarket;
}

} // namespace

std::string KeyOf(const IdentityField& field) {
    return field.part == IdentityPart::Model ? "identity.model" : "identity.market";
}

int AddressOf(const IdentityField& field) {
    return field.part == IdentityPart::Model ? address::Identity : address::Market;
}

int SizeOf(const IdentityField& field) {
    return field.part == IdentityPart::Model ? address::IdentitySize : 1;
}

std::string LabelOf(const IdentityField& field, Language language) {
    return std::string(field.part == IdentityPart::Model ? TableText(language, Text::ModelType)
                                                         : MarketLabel.In(language));
}

std::string ShowValue(const IdentityField& field, const DataImage& image, Language /*language*/) {
    const ModelVariant* variant = VariantOf(image);
    return variant != nullptr ? TextOf(field.part, *variant) : std::string();
}

LegalValues LegalValuesOf(const IdentityField& field, Language /*language*/) {
    LegalValues legal;
    for (const ModelVariant& variant : ModelCatalogue()) {
        const std::string text = TextOf(field.part, variant);
        if (std::ranges::find(legal.words, text) == legal.words.end()) {
            legal.words.push_back(text);
        }
    }
    return legal;
}

bool ParseValue(const IdentityField& field, std::string_view text, DataImage& image) {
    return HoldsLegalValue(field, image) && ShowValue(field, image, Language::English) == Trimmed(text);
}

bool HoldsLegalValue(const IdentityField& /*field*/, const DataImage& image) {
    return VariantOf(image) != nullptr;
}

void StoreBlankValue(const IdentityField& /*field*/, DataImage& /*image*/) {}

} // namespace zelvor
