#include "shell/StatusBar1.h"

#include <QLabel>

#include "platform/Clock.h"
#include "platform/Toolkit.h"
#include "shell/StatusClock.h"

namespace zelvor {

namespace {

constexpr int PanelMargin = 10;

} // namespace

StatusBar1::StatusBar1(QWidget* parent)
    : QStatusBar(parent), port_(AddPanel("StatusBar1(1)", 0)), exchange_(AddPanel("LabExchange", 1)),
      date_(AddPanel("StatusBar1(2)", 0)), time_(AddPanel("StatusBar1(3)", 0)) {
    setObjectName("StatusBar1");
    exchange_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text does not widen the window
}

QLabel* StatusBar1::AddPanel(const QString& name, int stretch) {
    auto* panel = new QLabel(this);
    panel->setObjectName(name);
    panel->setContentsMargins(PanelMargin, 0, PanelMargin, 0);
    addPermanentWidget(panel, stretch);
    return panel;
}

void StatusBar1::ShowPort(int commPortNumber) {
    port_->setText(QStringLiteral("COM%1").arg(commPortNumber));
}

void StatusBar1::ShowTime(const LocalTime& now) {
    date_->setText(ToQString(DatePanelText(now)));
    time_->setText(ToQString(TimePanelText(now)));
}

void StatusBar1::ShowExchange(const QString& text) {
    exchange_->setText(text);
    exchange_->setToolTip(text); // a narrow window shows its beginning only
}

} // namespace zelvor
