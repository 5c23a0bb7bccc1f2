#include "shell/ToolbarGrip.h"

#include <QPainter>
#include <QToolBar>

namespace zelvor {

namespace {

constexpr int Thickness = 10;
constexpr int DotSize = 2;
constexpr int DotDistance = 5;

} // namespace

ToolbarGrip::ToolbarGrip(QToolBar& bar) : bar_(bar) {
    setObjectName("ToolbarGrip");
    setCursor(Qt::SizeAllCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    connect(&bar, &QToolBar::orientationChanged, this, &QWidget::updateGeometry);
}

QSize ToolbarGrip::sizeHint() const {
    const QSize icon = bar_.iconSize();
    return bar_.orientation() == Qt::Horizontal ? QSize(Thickness, icon.height()) : QSize(icon.width(), Thickness);
}

void ToolbarGrip::paintEvent(QPaintEvent* /*event*/) {
    const bool isHorizontal = bar_.orientation() == Qt::Horizontal;
    const int length = isHorizontal ? height() : width();
    const int middle = (isHorizontal ? width() : height()) / 2 - DotSize / 2;
    QPainter painter(this);
    for (int along = DotDistance; along + DotDistance <= length; along += DotDistance) {
        const QPoint dot = isHorizontal ? QPoint(middle, along) : QPoint(along, middle);
        painter.fillRect(QRect(dot, QSize(DotSize, DotSize)), palette().color(QPalette::Mid));
    }
}

} // namespace zelvor
