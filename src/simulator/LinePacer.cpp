#include "simulator/LinePacer.h"

#include <algorithm>

namespace zelvor {

LineTime LinePacer::Carry(LineTime ready) {
    freeAt_ = std::max(ready, freeAt_) + ByteTime;
    return freeAt_;
}

} // namespace zelvor
