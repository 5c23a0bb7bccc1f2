#include <optional>
#include <string>

#include "data/ScanFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

namespace {

constexpr std::string_view NoChannelText = "---";

} // namespace

std::vector<CellText> ScanInformationPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::ScanInformation);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    rows.Add(scan::Fields, [&page](const Field& field) {
        return field.Is(&scan::PriorityChannel) ? std::optional(OrElse(page.ValueOf(field), NoChannelText))
                                                : std::nullopt;
    });
    return page.Texts();
}

} // namespace zelvor
