#pragma once

#include "data/DataImage.h"
#include "data/ObserverList.h"

namespace zelvor {

class ChannelPriorityObserver {
public:
    virtual ~ChannelPriorityObserver() = default;
    /// The mode was chosen, also where it is the one that it was.
    virtual void OnPriorityMode() {}
    /// Channel n was marked or entered; 0 for none.
    virtual void OnPriorityChannel(int /*n*/) {}
};

/// The priority channel of the document as the scan window and the channel edit dialog share it. The image's own bytes
/// are the scan window's to write.
class ChannelPriority {
public:
    /// The scan window's priority mode is Fixed; only then can a channel be marked.
    [[nodiscard]] bool PriorityFixedMode() const { return fixed_; }
    /// 1 to 16, 0 none.
    [[nodiscard]] int PriorityChannelNo() const { return number_; }
    /// The mode is Fixed and no channel is entered: nothing may be written to the radio.
    [[nodiscard]] bool PriorityChannelError() const { return error_; }

    /// The mode was chosen. Another one than Fixed has no priority channel; Fixed needs one in the image.
    void SetMode(bool fixed, const DataImage& image);
    /// Marked (1 to 16) or no longer marked (0) in the channel edit dialog. Intended: only a mark ends the complaint,
    /// and losing it makes none.
    void Mark(int n);
    /// Entered in the scan window, or emptied there (0).
    void Enter(int n);
    void SetError(bool error) { error_ = error; }

    void Add(ChannelPriorityObserver& observer) { observers_.Add(observer); }
    void Remove(ChannelPriorityObserver& observer) { observers_.Remove(observer); }

private:
    bool fixed_ = false;
    bool error_ = false;
    int number_ = 0;
    ObserverList<ChannelPriorityObserver> observers_;
};

} // namespace zelvor
