#include "simulator/RadioResponder.h"

namespace zelvor {

std::optional<Reaction> RadioResponder::Take(std::uint8_t byte) {
    if (mode_->ExpectsData()) {
        ForgetEntries();
        return mode_->Take(byte);
    }
    bool isClaimed = false; // 'G' is Narrow to the tuning mode, but not in "PROGRAM"
    for (Entry& entry : entries_) {
        isClaimed = isClaimed || entry.word.Claims(byte);
        if (entry.word.Take(byte)) {
            return Begin(entry);
        }
    }
    return isClaimed ? std::nullopt : mode_->Take(byte);
}

std::optional<Reaction> RadioResponder::LineSilent() {
    ForgetEntries();
    return mode_->LineSilent();
}

void RadioResponder::Restart() {
    ForgetEntries();
    clone_.Restart();
    service_.Restart();
    mode_ = &clone_;
}

Reaction RadioResponder::Begin(const Entry& entry) {
    ForgetEntries();
    clone_.Restart();
    service_.Restart();
    mode_ = entry.mode;
    Reaction reaction = mode_->Enter();
    reaction.commandLength = entry.word.Length();
    return reaction;
}

void RadioResponder::ForgetEntries() {
    for (Entry& entry : entries_) {
        entry.word.Forget();
    }
}

} // namespace zelvor
