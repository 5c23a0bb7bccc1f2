#include "cli/Sections.h"

#include <algorithm>

#include "data/Field.h"
#include "text/StringTable.h"

namespace zelvor::cli {

namespace {

/// The image's sections are in the order of the report's; those behind have no pages.
std::optional<ReportSection> ReportSectionOf(std::string_view name) {
    const std::span<const ImageSection> sections = ImageSections();
    const auto place = std::ranges::find(sections, name, &ImageSection::name) - sections.begin();
    return place < ReportSectionCount ? std::optional(static_cast<ReportSection>(place)) : std::nullopt;
}

} // namespace

std::vector<std::string> SectionNames() {
    std::vector<std::string> names;
    for (const ImageSection& section : ImageSections()) {
        names.emplace_back(section.name);
    }
    return names;
}

std::vector<std::string> ReportSectionNames() {
    std::vector<std::string> names = SectionNames();
    std::erase_if(names, [](const std::string& name) { return !ReportSectionOf(name); });
    return names;
}

std::vector<ImageSection> SectionsOf(std::span<const std::string> names) {
    std::vector<ImageSection> sections;
    for (const ImageSection& section : ImageSections()) {
        if (names.empty() || std::ranges::find(names, section.name) != names.end()) {
            sections.push_back(section);
        }
    }
    return sections;
}

ReportSelection ReportSelectionOf(std::span<const std::string> names) {
    ReportSelection selection;
    for (const ImageSection& section : SectionsOf(names)) {
        if (const auto printed = ReportSectionOf(section.name)) {
            selection.set(static_cast<std::size_t>(*printed));
        }
    }
    return selection;
}

std::string TitleOf(const ImageSection& section, Language language) {
    const auto printed = ReportSectionOf(section.name);
    return std::string(
        Trimmed(printed ? SectionTitle(*printed, language) : TableText(language, Text::ModelInformation)));
}

} // namespace zelvor::cli
