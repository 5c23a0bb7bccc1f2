#include "print/ReportValue.h"

#include <algorithm>
#include <array>

#include "data/CorvaneFields.h"
#include "data/DtmfFields.h"
#include "data/OptionalFields.h"
#include "data/ScanFields.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr std::string_view NoCode = "------";
constexpr std::string_view NoChannelText = "---";
constexpr std::string_view NoFleet = "---";
constexpr std::string_view NoId = "----";

/// Stands for 0. Intended: Chinese whatever the language is, as PrintedOff.
constexpr std::string_view PrintedDCode = "D 码";

/// What rows print where they show nothing.
struct Instead {
    const void* row;
    std::string_view text;
};
constexpr std::array InsteadOfNothing = std::to_array<Instead>({{optional_features::PttCodes.data(), NoCode},
                                                                {&optional_features::PttCodes[1], NoCode},
                                                                {&scan::PriorityChannel, NoChannelText},
                                                                {&corvane::OwnFleet, NoFleet},
                                                                {&corvane::OwnId, NoId}});

constexpr std::array PrintingOff = std::to_array<const void*>(
    {&optional_features::VoxGainLevel, &dtmf::GroupCode, &dtmf::Transpond, &corvane::MessageModeTimer});

/// Whether a number shows the value 0, or a list has the byte 0.
bool IsZero(const Field& field, const DataImage& image, Language language) {
    const auto* number = field.As<NumberField>();
    if (number == nullptr) {
        return image.At(field.Address()) == 0;
    }
    const NumberOnShow shown = LoadNumber(image, *number, language);
    return shown.value == 0 && !shown.text.empty();
}

bool PrintsOff(const Field& field) {
    return std::ranges::any_of(PrintingOff, [&field](const void* row) { return field.Is(row); });
}

std::string_view TextInsteadOfNothing(const Field& field) {
    const auto found =
        std::ranges::find_if(InsteadOfNothing, [&field](const Instead& instead) { return field.Is(instead.row); });
    return found == InsteadOfNothing.end() ? std::string_view() : found->text;
}

/// Intended: the report of a radio that sends both codes names the language setup.
bool NamesLanguageSetup(const Field& field, const DataImage& image) {
    using namespace optional_features;
    return field.Is(&PttId) && image.At(PttId.address) == static_cast<std::uint8_t>(PttIdChoice::Both);
}

} // namespace

std::string ReportValue(const Field& field, const DataImage& image, Language language) {
    if (const auto* check = field.As<CheckField>()) {
        return std::string(EnabledWord(IsOn(*check, image.At(check->address)), language));
    }
    if (NamesLanguageSetup(field, image)) {
        return std::string(TableText(language, Text::LanguageFileSetup));
    }
    if (PrintsOff(field) && IsZero(field, image, language)) {
        return std::string(PrintedOff);
    }
    if (field.Is(&dtmf::DCodeAssignment) && IsZero(field, image, language)) {
        return std::string(PrintedDCode);
    }
    const std::string shown = field.Show(image, language);
    return shown.empty() ? std::string(TextInsteadOfNothing(field)) : shown;
}

std::string_view EnabledWord(bool enabled, Language language) {
    return TableText(language, enabled ? Text::Enabled : Text::Disabled);
}

} // namespace zelvor
