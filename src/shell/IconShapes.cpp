#include "shell/IconShapes.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace zelvor {

namespace {

constexpr QColor Outline(0x4a, 0x5a, 0x6a);
constexpr QColor Paper(0xfb, 0xfc, 0xfd);
constexpr QColor Metal(0xc9, 0xd3, 0xdc);
constexpr QColor Blue(0x3f, 0x7f, 0xc4);
constexpr QColor PaleBlue(0xb7, 0xd5, 0xf0);
constexpr QColor Amber(0xee, 0xbb, 0x57);
constexpr QColor PaleAmber(0xf8, 0xdb, 0x9b);
constexpr QColor Green(0x45, 0xa0, 0x6c);
constexpr QColor Orange(0xdb, 0x74, 0x44);
constexpr QColor Slate(0x56, 0x68, 0x7a);

constexpr double LineWidth = 1.2;

void Use(QPainter& painter, const QColor& fill) {
    painter.setPen(QPen(Outline, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
}

void UseNoOutline(QPainter& painter, const QColor& fill) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
}

void UseStroke(QPainter& painter, const QColor& color, double width) {
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

void DrawNew(QPainter& painter) {
    Use(painter, Paper);
    painter.drawPolygon(QPolygonF({{5, 2.5}, {14, 2.5}, {19, 7.5}, {19, 21.5}, {5, 21.5}}));
    Use(painter, PaleBlue);
    painter.drawPolygon(QPolygonF({{14, 2.5}, {19, 7.5}, {14, 7.5}}));
    UseStroke(painter, Metal, LineWidth);
    for (const double y : {11.5, 14.5, 17.5}) {
        painter.drawLine(QPointF(8, y), QPointF(16, y));
    }
}

void DrawOpen(QPainter& painter) {
    Use(painter, Amber);
    painter.drawPolygon(QPolygonF({{2.5, 5}, {9, 5}, {11, 7.5}, {19.5, 7.5}, {19.5, 19.5}, {2.5, 19.5}}));
    Use(painter, PaleAmber);
    painter.drawPolygon(QPolygonF({{6, 11}, {22, 11}, {19.5, 19.5}, {2.5, 19.5}}));
}

void DrawSave(QPainter& painter) {
    Use(painter, Blue);
    painter.drawPolygon(QPolygonF({{3, 3}, {18, 3}, {21, 6}, {21, 21}, {3, 21}}));
    UseNoOutline(painter, Paper);
    painter.drawRect(QRectF(6.5, 12.5, 11, 8));
    UseNoOutline(painter, PaleBlue);
    painter.drawRect(QRectF(7, 3.6, 9, 6));
    UseNoOutline(painter, Slate);
    painter.drawRect(QRectF(12.5, 4.6, 2.2, 4));
    UseStroke(painter, Metal, LineWidth);
    painter.drawLine(QPointF(8.5, 15.5), QPointF(15.5, 15.5));
    painter.drawLine(QPointF(8.5, 18), QPointF(15.5, 18));
}

void DrawPrint(QPainter& painter) {
    Use(painter, Paper);
    painter.drawRect(QRectF(6.5, 2.5, 11, 7));
    Use(painter, Metal);
    painter.drawRoundedRect(QRectF(2.5, 8.5, 19, 9), 2, 2);
    Use(painter, Paper);
    painter.drawRect(QRectF(6.5, 14, 11, 7.5));
    UseNoOutline(painter, Green);
    painter.drawEllipse(QPointF(18.5, 11.5), 1.1, 1.1);
    UseStroke(painter, Slate, 1);
    painter.drawLine(QPointF(8.5, 16.5), QPointF(15.5, 16.5));
    painter.drawLine(QPointF(8.5, 19), QPointF(13.5, 19));
}

/// A handheld radio in the box (left, 1.5) to (left + 9, 22).
void DrawRadio(QPainter& painter, double left) {
    UseStroke(painter, Outline, 2);
    painter.drawLine(QPointF(left + 2, 2), QPointF(left + 2, 7));
    Use(painter, Slate);
    painter.drawRoundedRect(QRectF(left, 7, 9, 15), 1.6, 1.6);
    UseNoOutline(painter, PaleBlue);
    painter.drawRect(QRectF(left + 1.8, 9, 5.4, 3.6));
    UseStroke(painter, Metal, 1);
    for (const double y : {15.0, 17.2, 19.4}) {
        painter.drawLine(QPointF(left + 2.5, y), QPointF(left + 6.5, y));
    }
}

void DrawArrow(QPainter& painter, const QColor& color, bool pointsRight) {
    Use(painter, color);
    const QPolygonF arrow({{1.5, 12.5}, {6.5, 7.5}, {6.5, 10.5}, {11, 10.5}, {11, 14.5}, {6.5, 14.5}, {6.5, 17.5}});
    if (pointsRight) {
        painter.save();
        painter.translate(12.5, 0);
        painter.scale(-1, 1);
        painter.drawPolygon(arrow);
        painter.restore();
    } else {
        painter.drawPolygon(arrow);
    }
}

void DrawRead(QPainter& painter) {
    DrawRadio(painter, 13.5);
    DrawArrow(painter, Green, false);
}

void DrawWrite(QPainter& painter) {
    DrawRadio(painter, 13.5);
    DrawArrow(painter, Orange, true);
}

void DrawAbout(QPainter& painter) {
    Use(painter, Blue);
    painter.drawEllipse(QPointF(12, 12), 9.5, 9.5);
    UseNoOutline(painter, Paper);
    painter.drawEllipse(QPointF(12, 7.2), 1.5, 1.5);
    painter.drawRoundedRect(QRectF(10.7, 10.2, 2.6, 8), 1.2, 1.2);
}

void DrawApplication(QPainter& painter) {
    UseNoOutline(painter, Blue);
    painter.drawRoundedRect(QRectF(1, 1, 22, 22), 5, 5);
    painter.save();
    painter.translate(0.6, 1.6);
    painter.scale(0.9, 0.9);
    UseStroke(painter, Paper, 2.2);
    painter.drawLine(QPointF(9, 4), QPointF(9, 10));
    UseNoOutline(painter, Paper);
    painter.drawRoundedRect(QRectF(7.6, 9, 10, 13), 1.8, 1.8);
    UseNoOutline(painter, Slate);
    painter.drawRect(QRectF(9.6, 11, 6, 4));
    for (const double y : {16.8, 19.0}) {
        painter.drawRoundedRect(QRectF(9.6, y, 6, 1.1), 0.5, 0.5);
    }
    UseStroke(painter, PaleAmber, 1.5);
    // Waves round the tip of the antenna.
    painter.drawArc(QRectF(6, 1, 6, 6), -45 * 16, 90 * 16);
    painter.drawArc(QRectF(3.5, -1.5, 11, 11), -45 * 16, 90 * 16);
    painter.restore();
}

} // namespace

void DrawIconShape(QPainter& painter, IconShape shape) {
    switch (shape) {
    case IconShape::Application:
        return DrawApplication(painter);
    case IconShape::New:
        return DrawNew(painter);
    case IconShape::Open:
        return DrawOpen(painter);
    case IconShape::Save:
        return DrawSave(painter);
    case IconShape::Print:
        return DrawPrint(painter);
    case IconShape::Read:
        return DrawRead(painter);
    case IconShape::Write:
        return DrawWrite(painter);
    case IconShape::About:
        return DrawAbout(painter);
    }
}

} // namespace zelvor
