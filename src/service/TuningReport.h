#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "data/DataImage.h"
#include "data/TuneItems.h"
#include "print/PageGrid.h"
#include "text/Language.h"

namespace zelvor {

class Document;
struct Services;

/// The texts of the tuning report below its title: head and table, at their cells.
[[nodiscard]] std::vector<CellText> BuildTuningReport(const DataImage& image, const TuneValues& values,
                                                      std::string_view fileName, Language language);

/// Prints one page with all tuning data, after a question. A failing printer ends it without a word. The event loop
/// runs for a moment before the question, and again, behind this call, while the printing system is asked:
/// isStillWanted tells whether it is to go on then. It is kept as long as the printing is under way.
void PrintTuningReport(const Document& document, const TuneValues& values, Language language, Services& services,
                       const std::function<bool()>& isStillWanted);

} // namespace zelvor
