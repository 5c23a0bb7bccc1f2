#pragma once

#include <QString>
#include <string>

#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor::bench {

inline constexpr int PagesOfReport = 12;

/// The sample radio with all 16 channels in use: the programmed ones, over and over.
[[nodiscard]] DataImage FullDocument();

/// The report of all sections as a PDF file.
void PrintReport(const QString& file, const DataImage& image, Language language);

/// As many empty pages but for a text on the first one. False where the file cannot be written.
bool PrintPages(const QString& file, const std::string& text = {});

/// The characters of what the report prints, each once: the least that a device has to do for it.
[[nodiscard]] std::string CharactersOfReport(const QString& file, const DataImage& image, Language language);

} // namespace zelvor::bench
