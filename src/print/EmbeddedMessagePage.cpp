#include "data/EmbeddedMessage.h"
#include "print/ReportSections.h"
#include "print/SectionPage.h"

namespace zelvor {

std::vector<CellText> EmbeddedMessagePage(const DataImage& image, Language language) {
    SectionPage page(image, language, ReportSection::EmbeddedMessage);
    for (int line = 0; line < embedded_message::LineCount; ++line) {
        page.Add(pagecells::LabelColumn, pagecells::FirstRow + line, embedded_message::Load(image, line));
    }
    return page.Texts();
}

} // namespace zelvor
