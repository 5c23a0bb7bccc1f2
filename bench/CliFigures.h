#pragma once

namespace zelvor::bench {

class Report;

/// zelvor-cli on many files in one process: beside sha256sum, which does nothing but read them, and what each of them
/// takes beside what it takes among fewer. `check` on files, `diff` on two folders.
void AddCliFigures(Report& report);

} // namespace zelvor::bench
