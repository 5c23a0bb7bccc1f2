#pragma once

namespace zelvor::fuzz {

class CloneFuzz;

/// Looks at what a read has to keep to when it has ended, whatever the radio has answered.
void CheckRead(const CloneFuzz& transfer);

/// The same for a write.
void CheckWrite(const CloneFuzz& transfer);

} // namespace zelvor::fuzz
