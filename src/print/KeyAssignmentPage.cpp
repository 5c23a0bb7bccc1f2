#include "data/KeyFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

std::vector<CellText> KeyAssignmentPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::KeyAssignment);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    rows.Add(key_assignment::Fields);
    return page.Texts();
}

} // namespace zelvor
