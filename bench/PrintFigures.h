#pragma once

namespace zelvor::bench {

class Report;

/// The whole data report as a PDF file, against as many empty pages.
void AddPrintFigures(Report& report);

} // namespace zelvor::bench
