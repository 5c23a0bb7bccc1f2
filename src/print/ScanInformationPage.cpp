#include "data/ScanFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

std::vector<CellText> ScanInformationPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::ScanInformation);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    rows.Add(scan::Fields);
    return page.Texts();
}

} // namespace zelvor
