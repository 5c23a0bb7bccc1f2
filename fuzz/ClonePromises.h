#pragma once

#include "CloneFuzz.h"

namespace zelvor::fuzz {

/// Looks at what a read has to keep to, whatever the radio has answered; before and memory are the document's image and
/// the radio's memory at its beginning.
void CheckRead(const CloneFuzz& transfer, const DataImage& before, const DataImage& memory);

/// The same for a write.
void CheckWrite(const CloneFuzz& transfer, const DataImage& before, const DataImage& memory);

} // namespace zelvor::fuzz
