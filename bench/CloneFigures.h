#pragma once

namespace zelvor::bench {

class Report;

/// How close clone sessions come to the time that their bytes take on the line.
void AddCloneFigures(Report& report);

} // namespace zelvor::bench
