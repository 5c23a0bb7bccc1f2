#include <string>

#include "data/ScanFields.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr std::string_view NoChannelText = "---";

class ScanRows {
public:
    explicit ScanRows(SectionPage& page)
        : page_(page), rows_(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow) {}

    void Add(const scan::ListField& field) {
        const auto entry = scan::EntryOf(field, page_.Image().At(field.address));
        rows_.Add(field.label, entry ? TableText(page_.TextLanguage(), field.words[*entry]) : std::string_view());
    }
    void Add(const scan::ChannelField& field) {
        const std::uint8_t channel = page_.Image().At(field.address);
        rows_.Add(field.label, channel == scan::NoChannel ? std::string(NoChannelText) : std::to_string(channel));
    }
    void Add(const scan::TimeField& field) {
        const auto value = scan::Load(page_.Image(), field);
        rows_.Add(field.label, value ? scan::Show(field, *value) : std::string());
    }

private:
    SectionPage& page_;
    PageRows rows_;
};

} // namespace

std::vector<CellText> ScanInformationPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::ScanInformation);
    ScanRows rows(page);
    rows.Add(scan::PriorityMode);
    rows.Add(scan::PriorityChannel);
    rows.Add(scan::LookBackTimeA);
    rows.Add(scan::LookBackTimeB);
    rows.Add(scan::RevertChannel);
    rows.Add(scan::DropoutDelayTime);
    rows.Add(scan::TxDwellTime);
    return page.Texts();
}

} // namespace zelvor
