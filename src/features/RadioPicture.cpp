#include "features/RadioPicture.h"

#include <QPainter>
#include <algorithm>

#include "controls/Picture.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr int Pf1Picture = 103;
constexpr int Pf2Picture = 105;

constexpr QColor Ground(0xff, 0xff, 0xff);
constexpr QColor GroundEdge(0xc9, 0xd3, 0xdc);
constexpr int Margin = 8;

constexpr TextPair Pf1Name{"The radio, key PF1 marked", "对讲机图，已标出PF1键"};
constexpr TextPair Pf2Name{"The radio, key PF2 marked", "对讲机图，已标出PF2键"};

} // namespace

RadioPicture::RadioPicture(Language language, QWidget* parent) : QWidget(parent), language_(language) {
    TellAsPicture(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Mark(RadioKey::Pf1);
}

void RadioPicture::Mark(RadioKey key) {
    marked_ = key;
    setAccessibleName(ToQString((key == RadioKey::Pf1 ? Pf1Name : Pf2Name).In(language_)));
    update();
}

int RadioPicture::Number() const {
    return marked_ == RadioKey::Pf1 ? Pf1Picture : Pf2Picture;
}

void RadioPicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(GroundEdge);
    painter.setBrush(Ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);

    const QRectF place = QRectF(rect()).adjusted(Margin, Margin, -Margin, -Margin);
    const double scale =
        std::min(place.width() / RadioPictureUnits.width(), place.height() / RadioPictureUnits.height());
    painter.translate(place.center());
    painter.scale(scale, scale);
    painter.translate(-RadioPictureUnits.width() / 2, -RadioPictureUnits.height() / 2);
    DrawRadio(painter, marked_);
}

} // namespace zelvor
