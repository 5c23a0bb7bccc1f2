#include "controls/WindowBlock.h"

namespace zelvor {

void WindowBlock::Begin() {
    if (window_.isEnabled()) {
        focus_ = window_.focusWidget();
        window_.setEnabled(false);
    }
}

void WindowBlock::End() {
    window_.setEnabled(true);
    if (focus_) {
        focus_->setFocus(Qt::OtherFocusReason);
    }
    window_.activateWindow();
}

} // namespace zelvor
