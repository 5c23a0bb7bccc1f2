#include "fakes/FakeFolder.h"

namespace zelvor {

std::shared_ptr<void> FakeFolder::Hold() {
    if (OnHold) {
        OnHold();
    }
    if (isRefused_ || IsHeld()) {
        return nullptr;
    }
    std::shared_ptr<void> holder = std::make_shared<int>(0);
    holder_ = holder;
    return holder;
}

} // namespace zelvor
