#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/DataImage.h"
#include "platform/Clock.h"
#include "print/PageGrid.h"
#include "print/ReportSection.h"
#include "text/Language.h"

namespace zelvor {

class PageDevice;

/// The chosen sections of a document, as pages to be printed.
struct DataReport {
    Language language = Language::English;
    std::string dateAndTime;
    std::vector<CellText> head;               // of every page, besides title, date and ruled lines
    std::vector<std::vector<CellText>> pages; // what each page has between head and foot
};

[[nodiscard]] DataReport BuildDataReport(const DataImage& image, ReportSelection selection, std::string_view fileName,
                                         Language language, const LocalTime& now);

/// Prints all pages as one document; a report without pages is none. A failing printer ends it without a word.
void PrintDataReport(PageDevice& device, const DataReport& report);

/// "2024-05-31  14:07:09", in both languages.
[[nodiscard]] std::string DateAndTimeText(const LocalTime& now);

} // namespace zelvor
