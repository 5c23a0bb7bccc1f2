#include "channels/CellValues.h"

#include <algorithm>

#include "text/StringTable.h"

namespace zelvor {

namespace {

std::vector<std::string> Words(Language language, std::initializer_list<Text> names) {
    std::vector<std::string> texts;
    for (const Text name : names) {
        texts.emplace_back(TableText(language, name));
    }
    return texts;
}

} // namespace

std::vector<std::string> CellChoices(int column, const DataImage& image, Language language) {
    switch (column) {
    case column::Power:
        return Words(language, {Text::High, Text::Low});
    case column::Width:
        return Words(language, {Text::Narrow, Text::Wide});
    case column::ScanAdd:
        return Words(language, {Text::Yes, Text::No});
    case column::OptSignal:
        return Words(language, {Text::None, Text::Dtmf, Text::Corvane});
    case column::PttId:
        return PttIdTexts(image, language);
    default:
        return {};
    }
}

std::string StepCellValue(int column, std::string_view text, int direction, const DataImage& image, Language language,
                          const std::vector<std::string>& toneList) {
    // Lists and cycles have the same order: Up goes towards the first entry.
    const std::vector<std::string> values = IsToneColumn(column) ? toneList : CellChoices(column, image, language);
    const auto found = std::find(values.begin(), values.end(), text);
    if (found == values.end()) {
        return IsToneColumn(column) ? values.front() : std::string(text);
    }
    const auto last = static_cast<std::ptrdiff_t>(values.size()) - 1;
    const auto next = std::clamp<std::ptrdiff_t>(found - values.begin() + direction, 0, last);
    return values[static_cast<std::size_t>(next)];
}

} // namespace zelvor
