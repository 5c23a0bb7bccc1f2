#include "shell/StatusBar1.h"

#include <QLabel>

#include "platform/Clock.h"
#include "platform/Toolkit.h"
#include "shell/StatusClock.h"

namespace zelvor {

namespace {

constexpr std::array PanelStretches{1, 0, 0};
constexpr int PanelMargin = 10;

} // namespace

StatusBar1::StatusBar1(QWidget* parent) : QStatusBar(parent) {
    setObjectName("StatusBar1");
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel(this);
        panels_[i]->setObjectName(QStringLiteral("StatusBar1(%1)").arg(i + 1));
        panels_[i]->setContentsMargins(PanelMargin, 0, PanelMargin, 0);
        addPermanentWidget(panels_[i], PanelStretches[i]);
    }
}

void StatusBar1::ShowPort(int commPortNumber) {
    panels_[0]->setText(QStringLiteral("COM%1").arg(commPortNumber));
}

void StatusBar1::ShowTime(const LocalTime& now) {
    panels_[1]->setText(ToQString(DatePanelText(now)));
    panels_[2]->setText(ToQString(TimePanelText(now)));
}

} // namespace zelvor
