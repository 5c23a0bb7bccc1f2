#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/Field.h"

/// The identity as fields, to be shown and compared. It is chosen as a whole (ModelCatalogue.h): these take no other
/// value than the one they have.
namespace zelvor {

enum class IdentityPart : std::uint8_t { Model, Market };

struct IdentityField {
    IdentityPart part;
};
inline constexpr std::array<IdentityField, 2> IdentityFieldRows{{{IdentityPart::Model}, {IdentityPart::Market}}};

/// "identity.model"
[[nodiscard]] std::string KeyOf(const IdentityField& field);
/// The model's bytes are all eight, the market's the one that names it.
[[nodiscard]] int AddressOf(const IdentityField& field);
[[nodiscard]] int SizeOf(const IdentityField& field);
[[nodiscard]] std::string LabelOf(const IdentityField& field, Language language);
/// "4618" and "M"; empty for a variant that the catalogue does not have.
[[nodiscard]] std::string ShowValue(const IdentityField& field, const DataImage& image, Language language);
[[nodiscard]] LegalValues LegalValuesOf(const IdentityField& field, Language language);
[[nodiscard]] bool ParseValue(const IdentityField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const IdentityField& field, const DataImage& image);
void StoreBlankValue(const IdentityField& field, DataImage& image);

} // namespace zelvor
