#pragma once

#include "simulator/LineTime.h"

namespace zelvor {

/// One direction of the cable: tells when a byte has come through, given that the line carries one byte after the
/// other.
class LinePacer {
public:
    /// Puts one byte, handed over at `ready`, on the line; the moment at which its last stop bit has passed.
    LineTime Carry(LineTime ready);

    /// The moment from which the line carries nothing.
    [[nodiscard]] LineTime FreeAt() const { return freeAt_; }

    /// Forgets what is under way, as a pulled plug does.
    void Clear() { freeAt_ = LineTime::min(); }

private:
    LineTime freeAt_ = LineTime::min();
};

} // namespace zelvor
