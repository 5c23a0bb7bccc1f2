#include "shell/frmStart.h"

#include <QPainter>

#include "platform/Clock.h"
#include "shell/Icons.h"

namespace zelvor {

namespace {

constexpr int ShownMilliseconds = 5000;
constexpr int PictureSize = 256;

} // namespace

frmStart::frmStart(Clock& clock, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen), tmrStart_(clock.MakeTimer("tmrStart")) {
    setObjectName("frmStart");
    setFixedSize(PictureSize, PictureSize);
    tmrStart_->OnTick = [this] { Unload(); };
    tmrStart_->SetInterval(ShownMilliseconds);
    tmrStart_->SetEnabled(true);
}

frmStart::~frmStart() = default;

void frmStart::mousePressEvent(QMouseEvent* /*event*/) {
    Unload();
}

void frmStart::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    MakeIcon(IconShape::Application).paint(&painter, rect());
}

void frmStart::Unload() {
    tmrStart_->SetEnabled(false);
    hide();
    deleteLater();
}

} // namespace zelvor
