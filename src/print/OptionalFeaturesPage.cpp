#include "data/OptionalFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

std::vector<CellText> OptionalFeaturesPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::OptionalFeatures);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    rows.Add(optional_features::Fields);
    return page.Texts();
}

} // namespace zelvor
