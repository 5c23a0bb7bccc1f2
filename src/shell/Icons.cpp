#include "shell/Icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <algorithm>

#include "shell/IconShapes.h"

namespace zelvor {

namespace {

constexpr double DisabledOpacity = 0.4;

class ShapeEngine : public QIconEngine {
public:
    explicit ShapeEngine(IconShape shape) : shape_(shape) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(mode == QIcon::Disabled ? DisabledOpacity : 1);
        painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
        painter->scale(side / IconUnits, side / IconUnits);
        DrawIconShape(*painter, shape_);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        // The window system asks for every size of the window's icon, and for each window anew.
        const QString key = QStringLiteral("zelvor-icon-%1-%2x%3-%4")
                                .arg(static_cast<int>(shape_))
                                .arg(size.width())
                                .arg(size.height())
                                .arg(static_cast<int>(mode));
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = QPixmap(size);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            paint(&painter, QRect(QPoint(0, 0), size), mode, state);
            painter.end();
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new ShapeEngine(shape_); }

private:
    IconShape shape_;
};

} // namespace

QIcon MakeIcon(IconShape shape) {
    return QIcon(new ShapeEngine(shape));
}

} // namespace zelvor
