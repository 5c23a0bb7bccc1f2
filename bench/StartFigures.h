#pragma once

namespace zelvor::bench {

class Report;

/// Time from starting the process to the painted main window with its grid, and the memory it then holds, beside those
/// of two bare windows: with an empty QMdiArea, and with a captioned child window in it. Started by turns. Without a
/// display on the offscreen platform alone.
void AddStartFigures(Report& report);

} // namespace zelvor::bench
