#include "features/RadioShapes.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace zelvor {

namespace {

constexpr QColor Edge(0x23, 0x2b, 0x33);
constexpr QColor BodyLight(0x5d, 0x6a, 0x77);
constexpr QColor BodyDark(0x38, 0x43, 0x4e);
constexpr QColor Side(0x2e, 0x37, 0x41);
constexpr QColor Rubber(0x27, 0x2f, 0x38);
constexpr QColor Recess(0x2a, 0x32, 0x3b);
constexpr QColor Slot(0x12, 0x17, 0x1c);
constexpr QColor Silver(0xb9, 0xc3, 0xcd);
constexpr QColor Plate(0xdd, 0xe3, 0xe9);
constexpr QColor Lamp(0x55, 0xc8, 0x7d);
constexpr QColor Caption(0x4a, 0x5a, 0x6a);
constexpr QColor Paper(0xff, 0xff, 0xff);
constexpr QColor Mark(0xd9, 0x5f, 0x1e);
constexpr QColor MarkHalo(0xf7, 0xc9, 0x9b);

constexpr QRectF Front{106, 92, 84, 170};
constexpr double SideLeft = 84;
constexpr QRectF Ptt{86, 118, 15, 44};
constexpr QRectF Pf1{86, 174, 15, 18};
constexpr QRectF Pf2{86, 202, 15, 18};
constexpr QRectF Pf1Name{8, 166, 46, 24};
constexpr QRectF Pf2Name{8, 204, 46, 24};
constexpr int NamePixels = 14;
constexpr int CaptionPixels = 12;

void Use(QPainter& painter, const QBrush& fill, const QColor& outline = Edge, double width = 1.2) {
    painter.setPen(QPen(outline, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
}

void UseNoOutline(QPainter& painter, const QBrush& fill) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
}

QLinearGradient Across(const QRectF& place, const QColor& left, const QColor& right) {
    QLinearGradient gradient(place.topLeft(), place.topRight());
    gradient.setColorAt(0, left);
    gradient.setColorAt(1, right);
    return gradient;
}

void DrawAntenna(QPainter& painter) {
    QPainterPath whip(QPointF(114, 84));
    whip.lineTo(116.5, 10);
    whip.cubicTo({116.5, 4}, {125.5, 4}, {125.5, 10});
    whip.lineTo(128, 84);
    whip.closeSubpath();
    Use(painter, Across({114, 0, 14, 84}, BodyLight, Rubber));
    painter.drawPath(whip);
    Use(painter, Rubber);
    painter.drawRoundedRect(QRectF(111, 80, 20, 16), 2, 2);
}

/// The channel knob, ribbed, with the dot that points to the channel.
void DrawKnob(QPainter& painter) {
    Use(painter, Rubber);
    painter.drawRect(QRectF(157, 86, 18, 8));
    const QRectF cap(153, 68, 26, 20);
    Use(painter, Across(cap, BodyLight, BodyDark));
    painter.drawRoundedRect(cap, 3, 3);
    painter.setPen(QPen(Edge, 1));
    for (const double x : {157.5, 161.5, 170.5, 174.5}) {
        painter.drawLine(QPointF(x, 72), QPointF(x, 86));
    }
    UseNoOutline(painter, Plate);
    painter.drawRoundedRect(QRectF(164.8, 70, 2.4, 8), 1.2, 1.2);
}

void DrawBody(QPainter& painter) {
    // The side is seen at an angle, so that its keys show.
    QPainterPath side(QPointF(Front.left() + 8, Front.top()));
    side.lineTo(SideLeft + 10, Front.top() + 6);
    side.cubicTo({SideLeft + 2, Front.top() + 8}, {SideLeft, Front.top() + 10}, {SideLeft, Front.top() + 18});
    side.lineTo(SideLeft + 2, Front.bottom() - 14);
    side.cubicTo({SideLeft + 2, Front.bottom() - 6}, {SideLeft + 6, Front.bottom() - 3},
                 {SideLeft + 12, Front.bottom() - 2});
    side.lineTo(Front.left() + 10, Front.bottom());
    side.closeSubpath();
    Use(painter, Side);
    painter.drawPath(side);
    Use(painter, Across(Front, BodyLight, BodyDark));
    painter.drawRoundedRect(Front, 9, 9);
    UseNoOutline(painter, Lamp);
    painter.drawEllipse(QPointF(178, 102), 2.6, 2.6);
}

void DrawSpeaker(QPainter& painter) {
    const QRectF recess(116, 110, 64, 64);
    Use(painter, Recess, Edge, 1);
    painter.drawRoundedRect(recess, 7, 7);
    UseNoOutline(painter, Slot);
    constexpr double halfWidths[] = {15, 22, 25, 25, 25, 22, 15};
    double y = recess.top() + 8;
    for (const double half : halfWidths) {
        painter.drawRoundedRect(QRectF(recess.center().x() - half, y, 2 * half, 4), 2, 2);
        y += 7.4;
    }
}

/// What lies below the speaker: a plate for the name, and the battery's seam and latch.
void DrawLowerFront(QPainter& painter) {
    Use(painter, Plate, Silver, 1);
    painter.drawRoundedRect(QRectF(126, 184, 44, 12), 2, 2);
    UseNoOutline(painter, Slot);
    painter.drawRoundedRect(QRectF(144, 203, 8, 2.4), 1.2, 1.2); // microphone
    painter.setPen(QPen(Edge, 1.4));
    painter.drawLine(QPointF(Front.left() + 1, 216), QPointF(Front.right() - 1, 216));
    Use(painter, Recess, Edge, 1);
    painter.drawRoundedRect(QRectF(120, 228, 56, 22), 4, 4);
}

void DrawPtt(QPainter& painter) {
    Use(painter, Across(Ptt, Silver, BodyLight));
    painter.drawRoundedRect(Ptt, 5, 5);
    painter.setPen(QPen(Caption, 1));
    painter.drawLine(QPointF(56, 140), QPointF(Ptt.left() - 1, 140));
    QFont font = painter.font();
    font.setPixelSize(CaptionPixels);
    painter.setFont(font);
    painter.setPen(Caption);
    painter.drawText(QRectF(8, 128, 44, 24), Qt::AlignRight | Qt::AlignVCenter, "PTT");
}

/// A key with its name beside it. The mark is colour, weight and a ring, so that it shows without colour, too.
void DrawKey(QPainter& painter, const QRectF& key, const QRectF& name, const QString& text, bool marked) {
    const QColor line = marked ? Mark : Caption;
    painter.setPen(QPen(line, marked ? 2.6 : 1, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(name.right(), name.center().y()), QPointF(key.left() - 1, key.center().y()));
    if (marked) {
        Use(painter, MarkHalo, Mark, 2);
        painter.drawRoundedRect(key.adjusted(-5, -4, 4, 4), 7, 7);
    }
    Use(painter, marked ? Mark : Silver);
    painter.drawRoundedRect(key, 4, 4);
    Use(painter, marked ? Mark : Paper, line, marked ? 2 : 1);
    painter.drawRoundedRect(name, 6, 6);
    QFont font = painter.font();
    font.setPixelSize(NamePixels);
    font.setBold(marked);
    painter.setFont(font);
    painter.setPen(marked ? Paper : Caption);
    painter.drawText(name, Qt::AlignCenter, text);
}

} // namespace

void DrawRadio(QPainter& painter, RadioKey marked) {
    DrawAntenna(painter);
    DrawKnob(painter);
    DrawBody(painter);
    DrawSpeaker(painter);
    DrawLowerFront(painter);
    DrawPtt(painter);
    DrawKey(painter, Pf1, Pf1Name, "PF1", marked == RadioKey::Pf1);
    DrawKey(painter, Pf2, Pf2Name, "PF2", marked == RadioKey::Pf2);
}

} // namespace zelvor
