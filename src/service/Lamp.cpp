#include "service/Lamp.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>
#include <utility>

#include "controls/Picture.h"

namespace zelvor {

namespace {

constexpr QColor DarkGlass(0x5b, 0x63, 0x6b);
constexpr QColor Rim(0x3c, 0x44, 0x4c);

QColor ColorOf(int picture) {
    switch (picture) {
    case lamp::Transmit:
        return {0xe0, 0x3c, 0x31};
    case lamp::Chosen:
        return {0x2f, 0x8f, 0xe0};
    case lamp::Running:
        return {0xf2, 0xa9, 0x1e};
    default:
        return {0x2f, 0xb3, 0x58};
    }
}

} // namespace

Lamp::Lamp(const QString& objectName, LampWords words, QWidget* parent) : QWidget(parent), words_(std::move(words)) {
    setObjectName(objectName);
    TellAsPicture(*this);
    setAccessibleName(words_.name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    Describe();
}

void Lamp::Light(int picture) {
    picture_ = picture;
    lit_ = true;
    Describe();
    update();
}

void Lamp::Darken() {
    lit_ = false;
    Describe();
    update();
}

void Lamp::Describe() {
    setAccessibleDescription(!lit_ ? words_.off : picture_ == lamp::Idle ? words_.idle : words_.on);
}

void Lamp::paintEvent(QPaintEvent* /*event*/) {
    const QColor glass = lit_ ? ColorOf(picture_) : DarkGlass;
    const double diameter = std::min(width(), height()) - 4.0;
    const QRectF disc((width() - diameter) / 2, (height() - diameter) / 2, diameter, diameter);
    QRadialGradient shine(disc.center() - QPointF(diameter / 6, diameter / 6), diameter * 0.7);
    shine.setColorAt(0, glass.lighter(lit_ ? 165 : 125));
    shine.setColorAt(1, glass);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Rim, 1.4));
    painter.setBrush(shine);
    painter.drawEllipse(disc);
}

} // namespace zelvor
