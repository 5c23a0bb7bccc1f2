#include <string>

#include "data/CorvaneFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

namespace {

using namespace corvane;

constexpr double ListTitleRow = 19;
constexpr double ListHeadRow = 20;
constexpr double FleetColumn = 30;
constexpr double IdColumn = 50;

void AddOwn(SectionPage& page) {
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    rows.Add(OwnFields);
}

void AddFleetList(SectionPage& page) {
    page.AddWord(pagecells::LabelColumn, ListTitleRow, Text::FleetList);
    page.Add(FleetColumn, ListHeadRow, ListFleet.heading.In(page.TextLanguage()));
    page.Add(IdColumn, ListHeadRow, ListId.heading.In(page.TextLanguage()));
    for (int n = 1; n <= FleetListSize; ++n) {
        const double row = ListHeadRow + n;
        page.Add(pagecells::LabelColumn, row, std::to_string(n));
        page.Add(FleetColumn, row, LoadListNumber(page.Image(), n, ListFleet, page.TextLanguage()));
        page.Add(IdColumn, row, LoadListNumber(page.Image(), n, ListId, page.TextLanguage()));
    }
}

} // namespace

std::vector<CellText> CorvanePage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::Corvane);
    AddOwn(page);
    AddFleetList(page);
    return page.Texts();
}

} // namespace zelvor
