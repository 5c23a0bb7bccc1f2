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

/// Stands for 0. Intended: Chinese whatever the language is, as PrintedOff.
constexpr std::string_view PrintedDCode = "D 码";

void AddEncode(SectionPage& page) {
    page.AddWord(pagecells::LabelColumn, pagecells::FirstRow, Text::Encode);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, FieldsRow);
    rows.Add(Speed);
    rows.Add(FirstDigitTime);
    rows.Add(FirstDigitDelay);
    rows.Add(Tone);
    rows.Add(DCodeAssignment.label,
             page.IsZero(DCodeAssignment) ? std::string(PrintedDCode) : page.ValueOf(DCodeAssignment));
    rows.Add(SideTone);
}

void AddDecode(SectionPage& page) {
    page.AddWord(DecodeColumn, pagecells::FirstRow, Text::Decode);
    PageRows rows(page, DecodeColumn, DecodeValueColumn, FieldsRow);
    rows.Add(IdCode.label, page.ValueOf(Field(IdCode)));
    rows.Add(GroupCode.label, page.ValueOrOff(GroupCode));
    rows.Add(AutoResetTimer);
    rows.Add(CallAlert);
    rows.Add(Transpond.label, page.ValueOrOff(Transpond));
    rows.Add(ClearToTranspond);
    rows.Add(StunCode.label, page.ValueOf(Field(StunCode)));
    rows.Add(StunType);
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
    AddEncode(page);
    AddDecode(page);
    AddAutodial(page);
    return page.Texts();
}

} // namespace zelvor
