#pragma once

namespace zelvor::bench {

class Report;

/// Decoding and encoding of channels, the data file, and the heap allocations of encoding.
void AddDataFigures(Report& report);

} // namespace zelvor::bench
