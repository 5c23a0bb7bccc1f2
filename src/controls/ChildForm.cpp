#include "controls/ChildForm.h"

#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "controls/AccessKeys.h"
#include "controls/FocusFollower.h"
#include "controls/PendingEdit.h"
#include "platform/LayoutUnits.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr int ScrollBarThickness = 250 / TwipsPerPixel;

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
    connect(new FocusFollower(*picture1_), &FocusFollower::Moved, this, &ChildForm::ShowFocus);
    resize(contentSize_);
    LayOutScrollBars();
}

ChildForm::~ChildForm() {
    DropPendingEdit(*this);
}

void ChildForm::CloseFromFrame() {
    CommitEdit();
    OnFrameClosed();
}

void ChildForm::OnFrameClosed() {
    emit UnloadRequested();
}

void ChildForm::On(const QPushButton& button, std::function<void()> command) {
    connect(&button, &QPushButton::clicked, this, [this, command = std::move(command)] {
        CommitEdit();
        command();
    });
}

void ChildForm::CommitEdit() {
    CommitPendingEdit(*this);
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

void ChildForm::ShowFocus(const FocusPlace& place) {
    const FocusPlace here = place.Translated(picture1_->pos());
    const QSize view(hScroll1_->pageStep(), vScroll1_->pageStep());
    emit FocusShown(here.Translated(BringIntoView(*hScroll1_, *vScroll1_, view, here)));
}

int ChildForm::FrameAcross() const {
    const auto* frame = qobject_cast<const QMdiSubWindow*>(parentWidget());
    return frame == nullptr ? 0 : frame->contentsMargins().left() + frame->contentsMargins().right();
}

QSize ChildForm::SizeWithin(QSize room, QSize frame) const {
    constexpr int thickness = ScrollBarThickness;
    const QSize inner = room - frame;
    const bool isLow = inner.height() < contentSize_.height();
    const bool needsHorizontal = room.width() < contentSize_.width() + (isLow ? thickness : 0);
    const bool needsVertical = isLow || (needsHorizontal && inner.height() < contentSize_.height() + thickness);
    const QSize bars(needsVertical ? thickness : 0, needsHorizontal ? thickness : 0);
    return (contentSize_ + bars).boundedTo(inner);
}

void ChildForm::LayOutScrollBars() {
    constexpr int thickness = ScrollBarThickness;
    // A frame's borders may take their width from the content: its margins are wider.
    const int outerWidth = width() + FrameAcross();
    const bool isLow = height() < contentSize_.height();
    const bool needsHorizontal = outerWidth - (isLow ? thickness : 0) < contentSize_.width();
    const bool needsVertical = isLow || (needsHorizontal && height() - thickness < contentSize_.height());
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
