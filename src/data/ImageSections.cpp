#include "data/ImageSections.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "data/ChannelFields.h"
#include "data/FieldRegistry.h"
#include "data/IdentityFields.h"

namespace zelvor {

namespace {

constexpr std::size_t ChannelFieldCount = ChannelFieldRows.size() * ChannelColumnCount;

template<std::size_t... Places>
constexpr std::array<Field, sizeof...(Places)> FieldsAt(std::index_sequence<Places...> /*places*/) {
    return {ChannelFieldRows[Places / ChannelColumnCount][Places % ChannelColumnCount]...};
}
constexpr std::array ChannelFields = FieldsAt(std::make_index_sequence<ChannelFieldCount>());
constexpr std::array IdentityFields = std::to_array<Field>({IdentityFieldRows[0], IdentityFieldRows[1]});

constexpr std::size_t SectionCount = FieldSections.size() + 2;

std::array<ImageSection, SectionCount> MakeSections() {
    std::array<ImageSection, SectionCount> sections;
    auto next = sections.begin();
    for (const FieldSection section : FieldSections) {
        *next++ = {NameOf(section), FieldsOf(section)};
    }
    *next++ = {ChannelsSection, ChannelFields};
    *next = {IdentitySection, IdentityFields};
    return sections;
}

} // namespace

std::span<const ImageSection> ImageSections() {
    static const std::array<ImageSection, SectionCount> sections = MakeSections();
    return sections;
}

const ImageSection* FindSection(std::string_view name) {
    const std::span<const ImageSection> sections = ImageSections();
    const auto found = std::ranges::find(sections, name, &ImageSection::name);
    return found == sections.end() ? nullptr : &*found;
}

const Field* FindImageField(std::string_view key) {
    const ImageSection* section = FindSection(key.substr(0, key.find('.')));
    if (section == nullptr) {
        return nullptr;
    }
    const auto found = std::ranges::find_if(section->fields, [key](const Field& field) { return field.Key() == key; });
    return found == section->fields.end() ? nullptr : &*found;
}

} // namespace zelvor
