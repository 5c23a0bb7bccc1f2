#include "service/TuningForm.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "controls/FitToScreen.h"
#include "data/Document.h"
#include "platform/Clock.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "service/Lamp.h"
#include "service/ServiceControls.h"
#include "service/TuningPage.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr const char* PttCaption = "PTT";

constexpr TextPair SteppedTip{"Change the value with the slider, the arrows, or Up and Down here. It cannot be typed.",
                              "用滑块、箭头按钮，或在此按上、下方向键更改数值。不能键入。"};
constexpr TextPair MeasuredTip{"The value that the radio has measured last. It cannot be typed.",
                               "对讲机最近一次测得的数值。不能键入。"};

constexpr int ClosedPause = 30; // milliseconds

// Logical pixels.
constexpr int PagesWidth = 440;
constexpr int BarWidth = 300;
constexpr int Spacing = 12;

} // namespace

TuningForm* MakeTuningForm(const Document& document, LinkState& link, ServiceState& service, Language language,
                           Services& services, QWidget* parent) {
    return new TuningForm(document, link, service, language, services,
                          TuningDialogOf(service.TuneItem, service.NarrowMode), parent);
}

TuningForm::TuningForm(const Document& document, LinkState& link, ServiceState& service, Language language,
                       Services& services, const TuningDialog& dialog, QWidget* parent)
    : QDialog(parent), document_(document), service_(service), language_(language), services_(services),
      kind_(dialog.kind), frequencies_(FrequencyPointsOf(document.Image)), port_(services.ports.Make("MSComm1")),
      engine_(service, {link, *port_, services.clock, services.messages, language}, PlanOf(dialog), *this, *this) {
    setObjectName(ToQString(dialog.formName));
    setWindowTitle(LoadText(dialog.caption));
    (new QVBoxLayout(this))->setSpacing(Spacing);
    LoadValues(dialog);
    if (kind_ == TuningKind::Measured) {
        BuildMeasure();
    } else {
        BuildPages(dialog);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(BuildButtons());
    FitToScreen(*this);
    AlignButtons(*this);
    ShowValues();
    engine_.Load();
}

TuningForm::~TuningForm() = default;

QString TuningForm::LoadText(Text name) const {
    return ToQString(TableText(language_, name));
}

/// The first values are those of the tuning record; TestPointCurrent is the item's test value.
void TuningForm::LoadValues(const TuningDialog& dialog) {
    const TuneItemRow& item = TuneItemOf(dialog.tuneItem);
    TuneValues& kept = service_.Values;
    if (item.testPoint != nullptr) {
        kept.TestPointCurrent = kept.*item.testPoint;
    }
    std::vector<std::uint8_t> values;
    std::vector<std::int64_t> frequencies;
    for (const TunePoint point : dialog.points) {
        values.push_back(static_cast<std::uint8_t>(TuneValueOf(item, point, document_.Image, kept)));
        if (kind_ == TuningKind::Points && point != TunePoint::Test && frequencies_) {
            frequencies.push_back(frequencies_->At(point).transmit);
        }
    }
    values_.emplace(values, frequencies, FrequencyAt(TunePoint::Test).transmit, kept.TestPointCurrent);
}

PointFrequency TuningForm::FrequencyAt(TunePoint point) const {
    if (point != TunePoint::Test && point != TunePoint::Narrow) {
        return frequencies_ ? frequencies_->At(point) : PointFrequency{0, 0};
    }
    const TestFrequencyTexts& texts = service_.TestFrequencyText[static_cast<std::size_t>(service_.TestChannelNo - 1)];
    return {FrequencyOfText(texts.receive), FrequencyOfText(texts.transmit)};
}

QString TuningForm::FrequencyText(TunePoint point, bool transmit) const {
    const bool isTest = point == TunePoint::Test || point == TunePoint::Narrow;
    if (!isTest && !frequencies_) {
        return {}; // the document is of no known model
    }
    const PointFrequency frequency = FrequencyAt(point);
    return ToQString(FrequencyOnShow(transmit ? frequency.transmit : frequency.receive));
}

void TuningForm::BuildPages(const TuningDialog& dialog) {
    SSTabTune_ = new QTabWidget(this);
    SSTabTune_->setObjectName("SSTabTune");
    SSTabTune_->setAccessibleName(windowTitle());
    SSTabTune_->setMinimumWidth(PagesWidth);
    for (std::size_t index = 0; index < dialog.points.size(); ++index) {
        AddPage(dialog.points[index], static_cast<int>(index));
    }
    layout()->addWidget(SSTabTune_);
    EnableSlider(0);
    connect(SSTabTune_, &QTabWidget::currentChanged, this, &TuningForm::OnPageChanged);
}

void TuningForm::AddPage(TunePoint point, int index) {
    const QString name = LoadText(PageNameOf(point));
    auto* page = new TuningPage(index, {LoadText(Text::Rx), LoadText(Text::Tx), FrequencyText(point, false),
                                        FrequencyText(point, true), windowTitle() + u' ' + name,
                                        ToQString(SteppedTip.In(language_))});
    SSTabTune_->addTab(page, name);
    pages_.push_back(page);
    connect(page, &TuningPage::SliderMoved, this, [this, index](int value) { Change(index, value, Source::Slider); });
    connect(page, &TuningPage::SpinStepped, this, [this, index](int value) { Change(index, value, Source::Slider); });
    connect(page, &TuningPage::TextStepped, this, [this, index](int value) { Change(index, value, Source::Text); });
}

void TuningForm::BuildMeasure() {
    txtTuneValue_ = MakeTuneValueBox("txtTuneValue", this);
    txtTuneValue_->setAccessibleName(windowTitle());
    txtTuneValue_->setToolTip(ToQString(MeasuredTip.In(language_)));
    PrgValue_ = MakeTuneValueBar("PrgValue", this);
    PrgValue_->setMinimumWidth(BarWidth);
    PrgValue_->setAccessibleName(windowTitle());
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing);
    row->addWidget(PrgValue_);
    row->addWidget(txtTuneValue_);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

QPushButton* TuningForm::AddButton(QHBoxLayout& row, const char* name, const QString& text) {
    QPushButton* button = MakeButton(name, text, this);
    row.addWidget(button);
    return button;
}

QHBoxLayout* TuningForm::BuildButtons() {
    auto* row = new QHBoxLayout;
    if (kind_ == TuningKind::Measured) {
        AddStart(*row);
    } else {
        AddPtt(*row);
    }
    row->addStretch();
    auto* cmdOK = AddButton(*row, "CmdOK", LoadText(Text::OkButton));
    auto* cmdCancel = AddButton(*row, "CmdCancel", LoadText(Text::CancelButton));
    connect(cmdOK, &QPushButton::clicked, this, [this] {
        ending_ = TuningEngine::Ending::Ok;
        values_->SetOldTestValue(values_->Value(0));
        close();
    });
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    return row;
}

void TuningForm::AddPtt(QHBoxLayout& row) {
    PicPtt_ = new Lamp("PicPtt", {PttCaption, LoadText(Text::Rx), LoadText(Text::Tx), {}}, this);
    PicPtt_->Light(lamp::Idle);
    row.addWidget(PicPtt_);
    connect(AddButton(row, "CmdPTT", PttCaption), &QPushButton::clicked, this, [this] { engine_.PressPtt(); });
}

void TuningForm::AddStart(QHBoxLayout& row) {
    PicStart_ = new Lamp("PicStart",
                         {LoadText(Text::Start), LoadText(Text::On), LoadText(Text::On), LoadText(Text::Off)}, this);
    row.addWidget(PicStart_);
    connect(AddButton(row, "CmdStart", LoadText(Text::Start)), &QPushButton::clicked, this, [this] {
        engine_.ToggleMeasuring();
        if (engine_.IsMeasuring()) {
            PicStart_->Light(lamp::Running);
        } else {
            PicStart_->Darken();
        }
    });
}

/// On the test page a curve that is at its limit takes no further move the same way.
void TuningForm::Change(int page, int value, Source source) {
    const bool linked = kind_ == TuningKind::Points;
    if (linked && page == 0 && !values_->MayMoveTest(value)) {
        ShowValues();
        return;
    }
    values_->Set(page, value);
    ShowValues();
    if (source == Source::Slider) {
        engine_.SliderMoved();
    } else {
        engine_.TextChanged();
    }
}

void TuningForm::ShowValues() {
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        pages_[page]->Show(values_->Value(static_cast<int>(page)));
    }
    if (txtTuneValue_ != nullptr) {
        txtTuneValue_->setText(QString::number(values_->Value(0)));
        PrgValue_->setValue(values_->Value(0));
    }
}

void TuningForm::OnPageChanged(int page) {
    EnableSlider(page);
    engine_.ChangePage(page);
}

void TuningForm::EnableSlider(int page) {
    for (std::size_t index = 0; index < pages_.size(); ++index) {
        pages_[index]->SetSliderEnabled(static_cast<int>(index) == page);
    }
}

void TuningForm::OnLamp(bool transmitting) {
    if (PicPtt_ != nullptr) {
        PicPtt_->Light(transmitting ? lamp::Transmit : lamp::Idle);
    }
}

void TuningForm::OnPointRead(int page) {
    pages_[static_cast<std::size_t>(page)]->Show(values_->Value(page));
}

void TuningForm::OnMeasured(int value) {
    values_->SetMeasured(value);
    ShowValues();
}

void TuningForm::OnUnloadRequested() {
    close();
}

int TuningForm::Value(int page) const {
    return values_->Value(page);
}

int TuningForm::OldValue(int page) const {
    return values_->OldValue(page);
}

void TuningForm::closeEvent(QCloseEvent* event) {
    if (!unloaded_) {
        setEnabled(false);
        engine_.Close(ending_); // OnClosed may come from inside
    }
    event->setAccepted(unloaded_);
}

void TuningForm::OnClosed() {
    unloaded_ = true;
    service_.TestAborted = false;
    services_.clock.Sleep(ClosedPause);
    deleteLater();
    emit Unloaded();
    close();
}

} // namespace zelvor
