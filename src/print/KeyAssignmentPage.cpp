#include "data/KeyFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

std::vector<CellText> KeyAssignmentPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::KeyAssignment);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    for (const ListField& key : key_assignment::Keys) {
        rows.Add(key);
    }
    return page.Texts();
}

} // namespace zelvor
