#include "service/TestFrame.h"

#include <QGridLayout>
#include <QLabel>
#include <utility>

#include "controls/FieldList.h"
#include "service/Lamp.h"
#include "service/ServiceControls.h"

namespace zelvor {

namespace {

// Logical pixels.
constexpr int DisplayWidth = 150;
constexpr int RowSpacing = 8;

} // namespace

TestFrame::TestFrame(const Names& names, Texts texts, QWidget* parent)
    : QGroupBox(parent), texts_(std::move(texts)), listLabel_(new QLabel(texts_.list, this)),
      list_(new FieldList(this)) {
    setObjectName(names.frame);
    setTitle(texts_.title);
    list_->setObjectName(names.list);
    list_->setAccessibleName(texts_.list);
    listLabel_->setObjectName(names.listLabel);
    listLabel_->setBuddy(list_);
    auto* grid = new QGridLayout(this);
    grid->addWidget(listLabel_, 0, 0, 1, 2);
    grid->addWidget(list_, 0, 2);
    receive_ = AddLine(1, names.receive, texts_.receive);
    transmit_ = AddLine(2, names.transmit, texts_.transmit);
    grid->setColumnStretch(2, 1);
    grid->setVerticalSpacing(RowSpacing);
}

int TestFrame::LabelWidth() const {
    return listLabel_->sizeHint().width();
}

void TestFrame::SetLabelWidth(int width) {
    listLabel_->setMinimumWidth(width);
}

TestFrame::Line TestFrame::AddLine(int row, const LineNames& names, const QString& label) {
    auto* caption = new QLabel(label, this);
    caption->setObjectName(names.label);
    const Line line{new Lamp(names.lamp, {title() + u' ' + label, texts_.on, texts_.on, texts_.off}, this),
                    MakeDisplay(names.display, DisplayWidth, this)};
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(line.lamp, row, 0);
    grid->addWidget(caption, row, 1);
    grid->addWidget(line.display, row, 2);
    return line;
}

void TestFrame::ShowTexts(const QString& receive, const QString& transmit) {
    ShowOn(*receive_.display, texts_.receive, receive);
    ShowOn(*transmit_.display, texts_.transmit, transmit);
}

void TestFrame::ShowTransmitting(bool transmitting) {
    if (transmitting) {
        receive_.lamp->Darken();
        transmit_.lamp->Light(lamp::Transmit);
    } else {
        receive_.lamp->Light(lamp::Idle);
        transmit_.lamp->Darken();
    }
}

} // namespace zelvor
