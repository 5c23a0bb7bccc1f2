#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "data/Field.h"

namespace zelvor {

/// Where fields belong together: a window and a part of the report each. The channels are not fields of this kind but
/// records (ChannelCodec.h), and the identity is chosen as a whole (ModelCatalogue.h).
enum class FieldSection : std::uint8_t { Optional, Keys, Scan, Dtmf, Corvane, Test, Message };
inline constexpr std::array FieldSections{FieldSection::Optional, FieldSection::Keys,    FieldSection::Scan,
                                          FieldSection::Dtmf,     FieldSection::Corvane, FieldSection::Test,
                                          FieldSection::Message};

/// The first part of its fields' keys.
[[nodiscard]] std::string_view NameOf(FieldSection section);
[[nodiscard]] std::span<const Field> FieldsOf(FieldSection section);

/// The fields of all sections, in order.
[[nodiscard]] std::vector<Field> AllFields();
/// The field of that key; null where there is none.
[[nodiscard]] const Field* FindField(std::string_view key);

} // namespace zelvor
