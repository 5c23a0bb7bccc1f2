#pragma once

namespace zelvor::bench {

class Report;

/// zelvor-cli on many files beside sha256sum, which does nothing but read them: `check` on all of them in one process,
/// `diff` on pairs of them in a process each.
void AddCliFigures(Report& report);

} // namespace zelvor::bench
