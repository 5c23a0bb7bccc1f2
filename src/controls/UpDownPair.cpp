#include "controls/UpDownPair.h"

#include <QHBoxLayout>

namespace zelvor {

namespace {

constexpr int Overlap = 5; // logical pixels

} // namespace

void UpDownPair::Hold(QWidget& box, QWidget& upDown) {
    box_ = &box;
    upDown_ = &upDown;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, upDown.width() - Overlap, 0);
    row->addWidget(&box);
    upDown.setParent(this);
    upDown.lower();
}

void UpDownPair::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (box_ != nullptr) {
        layout()->activate();
        upDown_->setGeometry(width() - upDown_->width(), box_->y(), upDown_->width(), box_->height());
    }
}

} // namespace zelvor
