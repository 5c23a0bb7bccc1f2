#pragma once

#include <span>
#include <string_view>

#include "data/Field.h"

namespace zelvor {

/// A part of the image under its name, which begins the keys of its fields.
struct ImageSection {
    std::string_view name;
    std::span<const Field> fields;
};

inline constexpr std::string_view ChannelsSection = "channels";
inline constexpr std::string_view IdentitySection = "identity";

/// All that an image holds, as fields: the sections of the field registry, the channels and the identity, in the order
/// of the report.
[[nodiscard]] std::span<const ImageSection> ImageSections();

/// Null where there is none of that name.
[[nodiscard]] const ImageSection* FindSection(std::string_view name);
/// The field of that key in any section; null where there is none.
[[nodiscard]] const Field* FindImageField(std::string_view key);

} // namespace zelvor
