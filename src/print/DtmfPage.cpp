#include <span>
#include <string>

#include "data/DtmfFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

namespace {

using namespace dtmf;

constexpr double FieldsRow = 14;
constexpr double DecodeColumn = 70;
constexpr double DecodeValueColumn = 100;

constexpr double AutodialRow = 23;
constexpr double DigitsColumn = 8;

/// A title, and the fields some rows below.
void AddFields(SectionPage& page, double column, double valueColumn, Text title, std::span<const Field> fields) {
    page.AddWord(column, pagecells::FirstRow, title);
    PageRows rows(page, column, valueColumn, FieldsRow);
    rows.Add(fields);
}

void AddAutodial(SectionPage& page) {
    page.AddWord(pagecells::LabelColumn, AutodialRow, Text::AutodialMemory);
    for (int n = 1; n <= AutodialCount; ++n) {
        page.Add(pagecells::LabelColumn, AutodialRow + n, std::to_string(n));
        page.Add(DigitsColumn, AutodialRow + n, LoadCode(page.Image(), Autodials[static_cast<std::size_t>(n - 1)]));
    }
}

} // namespace

std::vector<CellText> DtmfPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::Dtmf);
    AddFields(page, pagecells::LabelColumn, pagecells::ValueColumn, Text::Encode, EncodeFields);
    AddFields(page, DecodeColumn, DecodeValueColumn, Text::Decode, DecodeFields);
    AddAutodial(page);
    return page.Texts();
}

} // namespace zelvor
