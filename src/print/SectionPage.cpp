#include "print/SectionPage.h"

#include <cstddef>

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

std::string SectionPage::ValueOf(const ListField& field) const {
    const int entry = EntryOf(field, image_.At(field.address));
    return entry == ListField::NoEntry ? std::string()
                                       : std::string(field.words[static_cast<std::size_t>(entry)].In(language_));
}

std::string SectionPage::ValueOf(const NumberField& field) const {
    return LoadNumber(image_, field, language_).text;
}

std::string SectionPage::ValueOf(const Field& field) const {
    const auto* check = field.As<CheckField>();
    return check != nullptr ? std::string(ValueOf(*check)) : field.Show(image_, language_);
}

std::string_view SectionPage::EnabledWord(bool enabled) const {
    return TableText(language_, enabled ? Text::Enabled : Text::Disabled);
}

std::string SectionPage::ValueOrOff(const ListField& field) const {
    return image_.At(field.address) == 0 ? std::string(PrintedOff) : ValueOf(field);
}

std::string SectionPage::ValueOrOff(const NumberField& field) const {
    return IsZero(field) ? std::string(PrintedOff) : ValueOf(field);
}

bool SectionPage::IsZero(const NumberField& field) const {
    const NumberOnShow shown = LoadNumber(image_, field, language_);
    return shown.value == 0 && !shown.text.empty();
}

void PageRows::Add(std::string_view label, std::string_view value) {
    page_.Add(labelColumn_, row_, label);
    page_.Add(valueColumn_, row_, value);
    ++row_;
}

void PageRows::Add(const FieldWord& label, std::string_view value) {
    Add(label.In(page_.TextLanguage()), value);
}

void PageRows::Add(const ListField& field) {
    Add(field.label, page_.ValueOf(field));
}

void PageRows::Add(std::span<const Field> fields, const Instead& instead) {
    for (const Field& field : fields) {
        const auto text = instead ? instead(field) : std::nullopt;
        Add(field.Label(page_.TextLanguage()), text ? *text : page_.ValueOf(field));
    }
}

std::string NumberedWord(Text word, int number, Language language) {
    return std::string(TableText(language, word)) + ' ' + std::to_string(number);
}

std::string OrElse(const std::string& text, std::string_view instead) {
    return text.empty() ? std::string(instead) : text;
}

} // namespace zelvor
