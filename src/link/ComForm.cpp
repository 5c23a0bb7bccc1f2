#include "link/ComForm.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "controls/DialogButtons.h"
#include "controls/FitToScreen.h"
#include "help/HelpViewer.h"
#include "platform/Clock.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr TextPair NoDevice{"No device", "无设备"};

constexpr int PortRows = 5; // of the grid of option buttons, filled column by column

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

QString DeviceText(const PortDescription& port, Language language) {
    if (port.devicePath.empty()) {
        return ToQString(NoDevice.In(language));
    }
    if (port.description.empty()) {
        return ToQString(port.devicePath);
    }
    return ToQString(port.devicePath + " - " + port.description);
}

} // namespace

ComForm::ComForm(LinkState& link, Language language, Services& services, QWidget* parent)
    : QDialog(parent), link_(link), language_(language), services_(services), port_(services.ports.Make("MSComm1")) {
    services_.ports.NumberAnew();
    setObjectName("ComForm");
    setModal(true);
    setWindowTitle(ToQString(TableText(language_, Text::CommunicationPort)));
    BuildControls();
    ProbePorts();
}

ComForm::~ComForm() = default;

void ComForm::done(int result) {
    if (port_->IsOpen()) {
        port_->Close();
    }
    QDialog::done(result);
}

void ComForm::BuildControls() {
    auto* frmPort = new QGroupBox(windowTitle(), this);
    frmPort->setObjectName("frmPort");
    auto* ports = new QGridLayout(frmPort);
    ports->setHorizontalSpacing(24);
    for (int index = 0; index < PortCount; ++index) {
        auto* option = new QRadioButton(frmPort);
        option->setObjectName(QString("optPort(%1)").arg(index));
        ports->addWidget(option, index % PortRows, index / PortRows);
        optPort_[static_cast<std::size_t>(index)] = option;
    }

    const DialogButtons buttons = MakeDialogButtons(*this, language_);
    connect(buttons.cmdOK, &QPushButton::clicked, this, &ComForm::TakeChoice);
    connect(buttons.cmdCancel, &QPushButton::clicked, this, &ComForm::reject);
    connect(buttons.cmdHelp, &QPushButton::clicked, this, &ComForm::ShowHelp);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmPort);
    layout->addLayout(buttons.row);
    FitToScreen(*this);
}

void ComForm::ProbePorts() {
    const WaitCursor cursor;
    for (int number = 1; number <= PortCount; ++number) {
        QRadioButton& option = *optPort_[static_cast<std::size_t>(number - 1)];
        option.setText(ToQString(TableText(language_, Text::Com)) + QString::number(number));
        option.setToolTip(DeviceText(services_.ports.Describe(number), language_));
        option.setAccessibleDescription(option.toolTip());
        option.setEnabled(ProbePort(*port_, services_.clock, number));
    }
    // Also where the probe has just disabled it.
    if (link_.CommPortNumber >= 1 && link_.CommPortNumber <= PortCount) {
        optPort_[static_cast<std::size_t>(link_.CommPortNumber - 1)]->setChecked(true);
    }
}

void ComForm::TakeChoice() {
    // With no button set the walk ends behind the last one, and the number is 21.
    int index = 0;
    while (index < PortCount && !optPort_[static_cast<std::size_t>(index)]->isChecked()) {
        ++index;
    }
    link_.CommPortNumber = index + 1;
    emit PortChosen();
    accept();
}

void ComForm::ShowHelp() {
    services_.help.Show({language_, "commport.htm"});
}

} // namespace zelvor
