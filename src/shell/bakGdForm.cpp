#include "shell/bakGdForm.h"

#include <QPainter>

namespace zelvor {

namespace {

constexpr int TileSize = 32;
constexpr QColor Ground(0x8d, 0xa2, 0xb5);
constexpr QColor Wave(0xff, 0xff, 0xff, 0x0e);

} // namespace

QPixmap bakGdForm::Picture(double devicePixelRatio) {
    QPixmap tile(QSize(TileSize, TileSize) * devicePixelRatio);
    tile.setDevicePixelRatio(devicePixelRatio);
    tile.fill(Ground);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Wave, 1.5));
    // Quarter waves out of opposite corners: they join to rings where tiles meet.
    for (const QPoint corner : {QPoint(0, 0), QPoint(TileSize, 0), QPoint(0, TileSize), QPoint(TileSize, TileSize)}) {
        painter.drawEllipse(corner, TileSize / 4, TileSize / 4);
        painter.drawEllipse(corner, TileSize / 2 - 1, TileSize / 2 - 1);
    }
    return tile;
}

} // namespace zelvor
