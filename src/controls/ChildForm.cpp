#include "controls/ChildForm.h"

#include <QApplication>
#include <QScrollBar>
#include <algorithm>

#include "controls/AccessKeys.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr int ScrollBarTwips = 250;

} // namespace

ChildForm::ChildForm(ChildWindow window, std::string_view objectName, QSize contentTwips, QWidget* parent)
    : QWidget(parent), window_(window),
      contentSize_(PixelsOfTwips(contentTwips.width()), PixelsOfTwips(contentTwips.height())),
      picture1_(new QWidget(this)), picture2_(new QWidget(this)), hScroll1_(new QScrollBar(Qt::Horizontal, this)),
      vScroll1_(new QScrollBar(Qt::Vertical, this)) {
    setObjectName(ToQString(objectName));
    picture1_->setObjectName("Picture1");
    picture2_->setObjectName("Picture2");
    hScroll1_->setObjectName("HScroll1");
    vScroll1_->setObjectName("VScroll1");
    picture2_->setAutoFillBackground(true);
    picture1_->resize(contentSize_);
    hScroll1_->setFocusPolicy(Qt::NoFocus);
    vScroll1_->setFocusPolicy(Qt::NoFocus);
    connect(hScroll1_, &QScrollBar::valueChanged, this, [this](int value) { picture1_->move(-value, picture1_->y()); });
    connect(vScroll1_, &QScrollBar::valueChanged, this, [this](int value) { picture1_->move(picture1_->x(), -value); });
    new AccessKeys(*this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // What the mouse is on stays under it.
        if (now != nullptr && picture1_->isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton) {
            ScrollTo(*now);
        }
    });
    resize(contentSize_);
    LayOutScrollBars();
}

void ChildForm::CloseFromFrame() {
    emit UnloadRequested();
}

QSize ChildForm::sizeHint() const {
    return contentSize_;
}

void ChildForm::SetCaption(const QString& caption) {
    setWindowTitle(caption);
    emit CaptionChanged(caption);
}

void ChildForm::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!isMinimized()) {
        LayOutScrollBars();
    }
}

/// Brings a control of the content into view; one that is larger than the view leaves it as it is.
void ChildForm::ScrollTo(const QWidget& control) {
    const auto bring = [](QScrollBar& bar, int first, int last) {
        if (last - first <= bar.pageStep()) {
            bar.setValue(std::clamp(bar.value(), last - bar.pageStep(), first));
        }
    };
    const QRect place(control.mapTo(picture1_, QPoint()), control.size());
    bring(*hScroll1_, place.left(), place.right() + 1);
    bring(*vScroll1_, place.top(), place.bottom() + 1);
}

void ChildForm::LayOutScrollBars() {
    const int thickness = PixelsOfTwips(ScrollBarTwips);
    const bool needsVertical = height() < contentSize_.height();
    const bool needsHorizontal = width() < contentSize_.width();
    const int visibleWidth = std::max(0, width() - (needsVertical ? thickness : 0));
    const int visibleHeight = std::max(0, height() - (needsHorizontal ? thickness : 0));

    hScroll1_->setGeometry(0, visibleHeight, visibleWidth, thickness);
    vScroll1_->setGeometry(visibleWidth, 0, thickness, visibleHeight);
    picture2_->setGeometry(visibleWidth, visibleHeight, thickness, thickness);

    hScroll1_->setRange(0, needsHorizontal ? contentSize_.width() - visibleWidth : 0);
    vScroll1_->setRange(0, needsVertical ? contentSize_.height() - visibleHeight : 0);
    hScroll1_->setPageStep(visibleWidth);
    vScroll1_->setPageStep(visibleHeight);
    hScroll1_->setSingleStep(thickness);
    vScroll1_->setSingleStep(thickness);

    hScroll1_->setVisible(needsHorizontal);
    vScroll1_->setVisible(needsVertical);
    picture2_->setVisible(needsHorizontal && needsVertical);
}

} // namespace zelvor
