#include "data/FieldRegistry.h"

#include <utility>

#include "data/CorvaneFields.h"
#include "data/DtmfFields.h"
#include "data/EmbeddedMessage.h"
#include "data/KeyFields.h"
#include "data/OptionalFields.h"
#include "data/ScanFields.h"
#include "data/TestFrequencies.h"

namespace zelvor {

namespace {

template<std::size_t... Places>
constexpr std::array<Field, sizeof...(Places)> FieldsAt(std::index_sequence<Places...> /*places*/) {
    return {TestFrequencyFields[Places]...};
}
constexpr std::array TestFields = FieldsAt(std::make_index_sequence<TestFrequencyFields.size()>());

} // namespace

std::string_view NameOf(FieldSection section) {
    switch (section) {
    case FieldSection::Optional:
        return "optional";
    case FieldSection::Keys:
        return "keys";
    case FieldSection::Scan:
        return "scan";
    case FieldSection::Dtmf:
        return "dtmf";
    case FieldSection::Corvane:
        return "corvane";
    case FieldSection::Test:
        return "test";
    case FieldSection::Message:
        break;
    }
    return "message";
}

std::span<const Field> FieldsOf(FieldSection section) {
    switch (section) {
    case FieldSection::Optional:
        return optional_features::Fields;
    case FieldSection::Keys:
        return key_assignment::Fields;
    case FieldSection::Scan:
        return scan::Fields;
    case FieldSection::Dtmf:
        return dtmf::Fields;
    case FieldSection::Corvane:
        return corvane::Fields;
    case FieldSection::Test:
        return TestFields;
    case FieldSection::Message:
        break;
    }
    return embedded_message::Fields;
}

std::vector<Field> AllFields() {
    std::vector<Field> all;
    for (const FieldSection section : FieldSections) {
        const std::span<const Field> fields = FieldsOf(section);
        all.insert(all.end(), fields.begin(), fields.end());
    }
    return all;
}

const Field* FindField(std::string_view key) {
    for (const FieldSection section : FieldSections) {
        for (const Field& field : FieldsOf(section)) {
            if (field.Key() == key) {
                return &field;
            }
        }
    }
    return nullptr;
}

} // namespace zelvor
