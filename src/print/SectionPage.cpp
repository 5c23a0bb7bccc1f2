#include "print/SectionPage.h"

#include <cstddef>

#include "print/ReportValue.h"
#include "text/StringTable.h"
#include "text/Utf8.h"

namespace zelvor {

SectionPage::SectionPage(const DataImage& image, Language language, ReportSection section)
    : image_(image), language_(language) {
    Add(0, pagecells::TitleRow, SectionTitle(section, language));
}

void SectionPage::Add(double column, double row, std::string_view text) {
    if (!text.empty()) {
        texts_.push_back({column, row, std::string(text)});
    }
}

void SectionPage::Add(double column, double row, std::u16string_view text) {
    Add(column, row, Utf8Of(text));
}

void SectionPage::AddWord(double column, double row, Text name) {
    Add(column, row, TableText(language_, name));
}

void PageRows::Add(std::string_view label, std::string_view value) {
    page_.Add(labelColumn_, row_, label);
    page_.Add(valueColumn_, row_, value);
    ++row_;
}

void PageRows::Add(const FieldWord& label, std::string_view value) {
    Add(label.In(page_.TextLanguage()), value);
}

void PageRows::Add(std::span<const Field> fields) {
    for (const Field& field : fields) {
        Add(field.Label(page_.TextLanguage()), ReportValue(field, page_.Image(), page_.TextLanguage()));
    }
}

std::string NumberedWord(Text word, int number, Language language) {
    return std::string(TableText(language, word)) + ' ' + std::to_string(number);
}

} // namespace zelvor
