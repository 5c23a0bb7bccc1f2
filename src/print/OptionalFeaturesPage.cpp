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

void AddPttId(PageRows& rows, const SectionPage& page) {
    rows.Add(PttIdType);
    rows.Add(PttId.label, PttIdValue(page));
    for (const PttCode& code : PttCodes) {
        rows.Add(code.label, OrElse(Utf8Of(LoadCode(page.Image(), code)), NoCode));
    }
}

} // namespace

std::vector<CellText> OptionalFeaturesPage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::OptionalFeatures);
    PageRows rows(page, pagecells::LabelColumn, pagecells::ValueColumn, pagecells::FirstRow);
    rows.Add(TimeOutTimer);
    rows.Add(TimeOutPreAlert);
    rows.Add(SquelchLevel);
    rows.Add(MicSensitivity);
    rows.Add(BatterySave);
    rows.Add(Beep);
    rows.Add(VoiceAnnunciation);
    rows.Add(ScramblerActivation);
    rows.Add(ScramblerBackup);
    AddPttId(rows, page);
    rows.Add(VoxFunction);
    rows.Add(VoxGainLevel.label, page.ValueOrOff(VoxGainLevel));
    rows.Add(VoxDelayTime);
    rows.Add(CancelOperation);
    rows.Add(VoxProceedTone);
    rows.Add(VoxInhibit);
    rows.Add(CloneMode);
    return page.Texts();
}

} // namespace zelvor
