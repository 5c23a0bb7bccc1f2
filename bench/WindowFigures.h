#pragma once

namespace zelvor::bench {

class Report;

/// What opening each child window and each dialog takes until it is painted, and what a key takes in each of them with
/// all child windows open. At the scale that the program runs at: QT_SCALE_FACTOR.
void AddWindowFigures(Report& report);

} // namespace zelvor::bench
