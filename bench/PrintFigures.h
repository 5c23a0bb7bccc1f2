#pragma once

namespace zelvor::bench {

class Report;

/// The whole data report as a PDF file, beside the least that a device has to do for it: its pages with its characters
/// alone, each once.
void AddPrintFigures(Report& report);

} // namespace zelvor::bench
