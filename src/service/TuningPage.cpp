#include "service/TuningPage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>

#include "controls/SpinText.h"
#include "service/ServiceControls.h"

namespace zelvor {

namespace {

constexpr int PageStep = 16; // of the slider

// Logical pixels.
constexpr int ValueWidth = 56;
constexpr int DisplayWidth = 120;
constexpr int LabelSpacing = 8;
constexpr int FieldSpacing = 12;
constexpr int PageMargin = 14;
constexpr int RowSpacing = 12;

} // namespace

QLineEdit* MakeTuneValueBox(const QString& name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setReadOnly(true);
    box->setContextMenuPolicy(Qt::PreventContextMenu);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(ValueWidth);
    box->setCursor(Qt::ArrowCursor);
    QPalette palette = box->palette();
    palette.setBrush(QPalette::Base, palette.window());
    box->setPalette(palette);
    return box;
}

QProgressBar* MakeTuneValueBar(const QString& name, QWidget* parent) {
    auto* bar = new QProgressBar(parent);
    bar->setObjectName(name);
    bar->setRange(0, TuningPage::Highest);
    bar->setTextVisible(false);
    return bar;
}

TuningPage::TuningPage(int index, const Texts& texts, QWidget* parent)
    : QWidget(parent), SldValue_(new QSlider(Qt::Horizontal, this)), txtTuneValue_(nullptr),
      updValue_(new UpDown(this)), PrgValue_(nullptr) {
    new QGridLayout(this);
    const QString suffix = QStringLiteral("(%1)").arg(index);
    BuildFrequencies(suffix, texts);
    BuildControls(suffix, texts);
    Show(0);
}

void TuningPage::BuildFrequencies(const QString& suffix, const Texts& texts) {
    auto* row = new QHBoxLayout;
    row->setSpacing(LabelSpacing);
    static_cast<QGridLayout*>(layout())->addLayout(row, 0, 0, 1, 2);
    const auto add = [&](const char* labelName, const QString& label, const char* name, const QString& text) {
        auto* caption = new QLabel(label, this);
        caption->setObjectName(labelName + suffix);
        QLabel* display = MakeDisplay(name + suffix, DisplayWidth, this);
        ShowOn(*display, label, text);
        row->addWidget(caption);
        row->addWidget(display);
        row->addSpacing(FieldSpacing);
    };
    add("lblRx", texts.receive, "LabRxFreq", texts.receiveFrequency);
    add("lblTx", texts.transmit, "LabTxFreq", texts.transmitFrequency);
    row->addStretch();
}

void TuningPage::BuildControls(const QString& suffix, const Texts& texts) {
    auto* grid = static_cast<QGridLayout*>(layout());
    SldValue_->setObjectName("SldValue" + suffix);
    SldValue_->setRange(0, Highest);
    SldValue_->setPageStep(PageStep);
    txtTuneValue_ = MakeTuneValueBox("txtTuneValue" + suffix, this);
    txtTuneValue_->installEventFilter(this);
    updValue_->setObjectName("updValue" + suffix);
    updValue_->SetRange(0, Highest);
    connect(txtTuneValue_, &QLineEdit::textChanged, updValue_, &UpDown::TellText);
    PrgValue_ = MakeTuneValueBar("PrgValue" + suffix, this);
    for (QWidget* control : std::initializer_list<QWidget*>{SldValue_, txtTuneValue_, updValue_, PrgValue_}) {
        control->setAccessibleName(texts.value);
    }
    txtTuneValue_->setToolTip(texts.valueTip);
    grid->addWidget(SldValue_, 1, 0);
    auto* pair = new UpDownPair(this);
    pair->Hold(*txtTuneValue_, *updValue_);
    grid->addWidget(pair, 1, 1);
    grid->addWidget(PrgValue_, 2, 0);
    grid->setColumnStretch(0, 1);
    grid->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
    grid->setVerticalSpacing(RowSpacing);
    connect(SldValue_, &QSlider::valueChanged, this, &TuningPage::SliderMoved);
    connect(updValue_, &UpDown::StepAsked, this, [this](bool up) {
        if (Next(up) != shown_) {
            emit SpinStepped(Next(up));
        }
    });
}

void TuningPage::Show(int value) {
    const QSignalBlocker updating(SldValue_);
    shown_ = value;
    SldValue_->setValue(value);
    txtTuneValue_->setText(QString::number(value));
    updValue_->SetValue(value);
    PrgValue_->setValue(value);
}

void TuningPage::SetSliderEnabled(bool enabled) {
    SldValue_->setEnabled(enabled);
}

/// Steps end at 0 and 255.
int TuningPage::Next(bool up) const {
    return std::clamp(shown_ + (up ? 1 : -1), 0, Highest);
}

bool TuningPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtTuneValue_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            const int next = Next(key == Qt::Key_Up);
            if (next != shown_) {
                emit TextStepped(next);
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zelvor
