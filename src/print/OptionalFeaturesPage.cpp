#include <string>

#include "data/OptionalFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

using namespace optional_features;

constexpr std::string_view NoCode = "------";

/// Intended: the report of a radio that sends both codes names the language setup.
std::string PttIdValue(const SectionPage& page) {
    const bool sendsBoth = page.Image().At(PttId.address) == static_cast<std::uint8_t>(PttIdChoice::Both);
    return sendsBoth ? std::string(TableText(page.TextLanguage(), Text::LanguageFileSetup)) : page.ValueOf(PttId);
}

/// What is not printed as it is shown.
std::optional<std::string> PrintedInstead(const SectionPage& page, const Field& field) {
    if (field.Is(&PttId)) {
        return PttIdValue(page);
    }
    if (field.Is(&VoxGainLevel)) {
        return page.ValueOrOff(VoxGainLevel);
    }
    if (field.Is(&PttCodes[0]) || field.Is(&PttCodes[1])) {
        return OrElse(page.ValueOf(field), NoCode);
    }
    return std::nullopt;
}

} // namespace

std::vector<CellText> OptionalFeaturesPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::OptionalFeatures);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    rows.Add(Fields, [&page](const Field& field) { return PrintedInstead(page, field); });
    return page.Texts();
}

} // namespace zelvor
