#include "link/ConnectForm.h"

#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/FitToScreen.h"
#include "help/HelpViewer.h"
#include "link/CloneFrames.h"
#include "link/TransferTexts.h"
#include "platform/LayoutUnits.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

/// Painting waits until the next command is on the wire, where the radio's answer takes longer than the painting.
constexpr int ProgressDelay = 5; // milliseconds

constexpr int BarWidthTwips = 5100;

/// Room for the longest text, so that the dialog keeps its size.
constexpr int StatusLines = 3;

} // namespace

ConnectForm::ConnectForm(Document& document, LinkState& link, Language language, Services& services,
                         TransferDirection direction, QWidget* parent)
    : QDialog(parent), link_(link), language_(language), services_(services), direction_(direction),
      port_(services.ports.Make("MSComm1")),
      engine_(document, {link, *port_, services.clock, services.messages, language}, *this),
      progressTimer_(services.clock.MakeTimer("progressTimer")) {
    setObjectName("ConnectForm");
    setModal(true);
    const bool reading = direction_ == TransferDirection::Read;
    link.TransferMode = reading ? transfer::Reading : transfer::Writing;
    setWindowTitle(ToQString(TableText(language_, reading ? Text::ReadDataFromRadio : Text::WriteDataToRadio)));
    BuildControls();

    progressTimer_->SetInterval(ProgressDelay);
    progressTimer_->OnTick = [this] { ShowProgress(); };

    engine_.Load();
    prgValue_->setMaximum(engine_.ProgressMaximum());
    ShowProgress();
}

ConnectForm::~ConnectForm() {
    engine_.Unload();
}

void ConnectForm::reject() {
    if (engine_.State().Finished) {
        Unload();
    } else {
        engine_.Cancel(); // refuses by itself while a transfer runs
    }
}

void ConnectForm::closeEvent(QCloseEvent* event) {
    if (!engine_.MayUnload()) {
        event->ignore();
        return;
    }
    Unload();
    event->accept();
}

void ConnectForm::OnProgress(int /*value*/) {
    progressTimer_->SetEnabled(true);
}

void ConnectForm::OnButtonsEnabled(bool enabled) {
    for (QPushButton* button : {buttons_.cmdOK, buttons_.cmdCancel, buttons_.cmdHelp}) {
        button->setEnabled(enabled);
    }
    progressTimer_->SetEnabled(true);
}

void ConnectForm::OnStandstill() {
    ShowProgress();
    repaint(); // also what a box has covered: no event is served for some time
}

void ConnectForm::OnTransferDone() {
    ShowProgress(); // at once: the radio waits for nothing any more
}

void ConnectForm::OnReadCompleted() {
    emit ReadCompleted();
}

void ConnectForm::OnWriteCompleted() {
    emit WriteCompleted();
}

void ConnectForm::OnUnloadRequested() {
    Unload();
}

void ConnectForm::BuildControls() {
    BuildStatus();

    prgValue_ = new QProgressBar(this);
    prgValue_->setObjectName("PrgValue");
    prgValue_->setRange(0, 1);
    prgValue_->setFormat("%v / %m");
    prgValue_->setAlignment(Qt::AlignCenter);
    prgValue_->setMinimumWidth(PixelsOfTwips(BarWidthTwips));
    prgValue_->setAccessibleName(windowTitle());

    buttons_ = MakeDialogButtons(*this, language_);
    connect(buttons_.cmdOK, &QPushButton::clicked, this, &ConnectForm::Confirm);
    connect(buttons_.cmdCancel, &QPushButton::clicked, this, [this] { engine_.Cancel(); });
    connect(buttons_.cmdHelp, &QPushButton::clicked, this, &ConnectForm::ShowHelp);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(labStatus_);
    layout->addWidget(prgValue_);
    layout->addLayout(buttons_.row);
    FitToScreen(*this);
}

void ConnectForm::BuildStatus() {
    labStatus_ = new QLabel(this);
    labStatus_->setObjectName("labStatus");
    labStatus_->setTextFormat(Qt::PlainText);
    labStatus_->setText(ToQString(transfertexts::Ready.In(language_)));
    labStatus_->setFixedWidth(std::max(labStatus_->sizeHint().width(), PixelsOfTwips(BarWidthTwips)));
    labStatus_->setWordWrap(true);
    labStatus_->setMinimumHeight(StatusLines * labStatus_->fontMetrics().lineSpacing());
}

void ConnectForm::Confirm() {
    if (engine_.MayUnload()) { // no transfer runs
        emit Confirmed();
        engine_.Start();
    }
}

void ConnectForm::ShowProgress() {
    progressTimer_->SetEnabled(false);
    prgValue_->setValue(engine_.Progress());
    labStatus_->setText(StatusText());
}

QString ConnectForm::StatusText() const {
    const CloneEngine::TransferState& state = engine_.State();
    if (link_.TransferMode == transfer::Done) {
        return ToQString(transfertexts::Completed.In(language_));
    }
    if (state.Pausing) {
        return ToQString(transfertexts::Retrying.In(language_));
    }
    if (const PortFailure failure = engine_.Failure(); failure.fault != PortFault::None) {
        return ToQString(transfertexts::CannotOpen(failure, link_.CommPortNumber, language_));
    }
    if (state.Prompting) {
        return ToQString(transfertexts::NoAnswer(link_.CommPortNumber, language_));
    }
    const bool reading = direction_ == TransferDirection::Read;
    const TextPair& text = !state.Running            ? transfertexts::Ready
                           : engine_.Progress() == 0 ? transfertexts::Connecting
                           : reading                 ? transfertexts::Reading
                                                     : transfertexts::Writing;
    return ToQString(text.In(language_));
}

void ConnectForm::ShowHelp() {
    const bool reading = direction_ == TransferDirection::Read;
    services_.help.Show({language_, reading ? "readradio.htm" : "writeradio.htm"});
}

void ConnectForm::Unload() {
    if (unloaded_) {
        return;
    }
    unloaded_ = true;
    progressTimer_->SetEnabled(false);
    const bool cancelPressed = engine_.Unload();
    done(engine_.State().Finished ? Accepted : Rejected);
    emit Unloaded(cancelPressed);
}

} // namespace zelvor
