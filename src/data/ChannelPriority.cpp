#include "data/ChannelPriority.h"

#include "data/MemoryMap.h"
#include "data/ScanFields.h"

namespace zelvor {

void ChannelPriority::SetMode(bool fixed, const DataImage& image) {
    const int stored = image.At(scan::PriorityChannel.address);
    fixed_ = fixed;
    error_ = fixed && (stored < 1 || stored > address::ChannelCount);
    if (!fixed) {
        number_ = 0;
    }
    observers_.Tell(&ChannelPriorityObserver::OnPriorityMode);
}

void ChannelPriority::Mark(int n) {
    number_ = n;
    if (n != 0) {
        error_ = false;
    }
    observers_.Tell(&ChannelPriorityObserver::OnPriorityChannel, n);
}

void ChannelPriority::Enter(int n) {
    number_ = n;
    error_ = n == 0 && fixed_;
    observers_.Tell(&ChannelPriorityObserver::OnPriorityChannel, n);
}

} // namespace zelvor
