#include "service/TestForm.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "controls/FieldList.h"
#include "controls/FitToScreen.h"
#include "data/Document.h"
#include "data/TuneItems.h"
#include "platform/SelectionCursor.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "service/Lamp.h"
#include "service/ServiceControls.h"
#include "service/TestChannels.h"
#include "service/TestFrame.h"
#include "service/TuningForm.h"
#include "service/TuningReport.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

/// What a test signalling sends and expects.
struct Signalling {
    Text receive;
    Text transmit;
};
constexpr std::array<Signalling, 9> Signallings{{{Text::None, Text::None},
                                                 {Text::None, Text::Tone100Hz},
                                                 {Text::Qt67Hz, Text::Qt67Hz},
                                                 {Text::Qt151Hz, Text::Qt151Hz},
                                                 {Text::Qt250Hz, Text::Qt250Hz},
                                                 {Text::DqtD023N, Text::DqtD023N},
                                                 {Text::DqtD754I, Text::DqtD754I},
                                                 {Text::DtmfDecode159D, Text::DtmfEncode159D},
                                                 {Text::None, Text::DtmfTone9}}};

constexpr const char* NoFrequency = "FFF.FFFFFMHz";
constexpr const char* PttCaption = "PTT";

constexpr TestFrame::Names ChannelNames{"frmTestChannel",
                                        "lblChannelNo",
                                        "ComChannel",
                                        {"PicChannelRx", "lblCHRx", "LabRxFreq"},
                                        {"PicChannelTx", "lblCHTx", "LabTxFreq"}};
constexpr TestFrame::Names SignalNames{"frmTestSignal",
                                       "lblSignal",
                                       "ComSignal",
                                       {"PicSignalRx", "lblSignalRx", "LabRxSignal"},
                                       {"PicSignalTx", "lblSignalTx", "LabTxSignal"}};

// Logical pixels.
constexpr int ColumnSpacing = 12;
constexpr int RowPadding = 3;  // above and below an item
constexpr int ListMargin = 48; // beside the longest item

constexpr int DialogPollMilliseconds = 50;

} // namespace

TestForm::TestForm(Document& document, LinkState& link, ServiceState& service, Language language, Services& services,
                   QWidget* parent)
    : QDialog(parent), document_(document), link_(link), service_(service), language_(language), services_(services),
      port_(services.ports.Make("MSComm1")),
      engine_(document, service, {link, *port_, services.clock, services.messages, language}, *this) {
    setObjectName("TestForm");
    setWindowTitle(LoadText(Text::TestMode));
    BuildFrames();
    QHBoxLayout* radioButtons = BuildRadioButtons(); // before the list, also on the tab key's way
    BuildItemList();
    auto* left = new QVBoxLayout;
    left->addWidget(frmTestChannel_);
    left->addStretch();
    left->addWidget(frmTestSignal_);
    left->addStretch();
    left->addLayout(radioButtons);
    auto* upper = new QHBoxLayout;
    upper->setSpacing(ColumnSpacing);
    upper->addLayout(left);
    upper->addWidget(LvwTuneSel_);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(ColumnSpacing);
    layout->addLayout(upper);
    layout->addLayout(BuildWindowButtons());
    FitToScreen(*this);
    AlignButtons(*this);

    LoadChannels();
    ShowSignalling(1);
    PicWide_->Light(lamp::Chosen);
    OnLamps(false);
    engine_.Load();
}

TestForm::~TestForm() = default;

QString TestForm::LoadText(Text name) const {
    return ToQString(TableText(language_, name));
}

void TestForm::BuildFrames() {
    const auto texts = [this](Text title, Text list) {
        return TestFrame::Texts{LoadText(title),    LoadText(list),     LoadText(Text::Rx),
                                LoadText(Text::Tx), LoadText(Text::On), LoadText(Text::Off)};
    };
    frmTestChannel_ = new TestFrame(ChannelNames, texts(Text::TestChannel, Text::ChannelNumber), this);
    connect(&frmTestChannel_->List(), &FieldList::Selected, this, &TestForm::OnChannelChosen);

    frmTestSignal_ = new TestFrame(SignalNames, texts(Text::TestSignalling, Text::Signalling), this);
    QStringList numbers;
    for (std::size_t number = 1; number <= Signallings.size(); ++number) {
        numbers.append(QString::number(number));
    }
    frmTestSignal_->List().SetEntries(numbers);
    frmTestSignal_->List().ShowEntry(0);
    connect(&frmTestSignal_->List(), &FieldList::Selected, this, &TestForm::OnSignallingChosen);

    const int labelWidth = std::max(frmTestChannel_->LabelWidth(), frmTestSignal_->LabelWidth());
    frmTestChannel_->SetLabelWidth(labelWidth);
    frmTestSignal_->SetLabelWidth(labelWidth);
}

void TestForm::BuildItemList() {
    LvwTuneSel_ = new QListWidget(this);
    LvwTuneSel_->setObjectName("LvwTuneSel");
    LvwTuneSel_->setAccessibleName(SpokenName(LoadText(Text::TuningModeButton)));
    LvwTuneSel_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QFontMetrics metrics = LvwTuneSel_->fontMetrics();
    const int rowHeight = metrics.height() + 2 * RowPadding;
    int width = 0;
    for (int number = 1; number <= TuneItemCount; ++number) {
        auto* item = new QListWidgetItem(LoadText(TuneItemOf(number).name), LvwTuneSel_);
        item->setSizeHint({0, rowHeight});
        width = std::max(width, metrics.horizontalAdvance(item->text()));
    }
    LvwTuneSel_->setFixedWidth(width + ListMargin);
    LvwTuneSel_->setMinimumHeight(TuneItemCount * rowHeight + 2 * LvwTuneSel_->frameWidth());
    LetCursorFollowSelection(*LvwTuneSel_);
    connect(LvwTuneSel_, &QListWidget::itemSelectionChanged, this, &TestForm::OnItemChosen);
    connect(LvwTuneSel_, &QListWidget::itemDoubleClicked, this, [this] { engine_.Tune(); });
    OnEnter(*LvwTuneSel_, [this] { CmdTune_->click(); }); // disabled until an item is chosen
}

QPushButton* TestForm::AddButton(QHBoxLayout& row, const char* name, const QString& text) {
    QPushButton* button = MakeButton(name, text, this);
    row.addWidget(button);
    return button;
}

/// What the radio does, each button behind its lamp.
QHBoxLayout* TestForm::BuildRadioButtons() {
    auto* row = new QHBoxLayout;
    const auto button = [&](Lamp*& light, const char* lampName, const char* name, const QString& text,
                            const LampWords& words) {
        light = new Lamp(lampName, words, this);
        row->addWidget(light);
        return AddButton(*row, name, text);
    };
    const auto width = [this](Text text) {
        return LampWords{SpokenName(LoadText(text)), LoadText(Text::On), LoadText(Text::On), LoadText(Text::Off)};
    };
    auto* cmdWide = button(PicWide_, "PicWide", "cmdWide", LoadText(Text::WideButton), width(Text::WideButton));
    auto* cmdNarrow =
        button(PicNarrow_, "PicNarrow", "CmdNarrow", LoadText(Text::NarrowButton), width(Text::NarrowButton));
    auto* cmdPtt =
        button(PicPtt_, "PicPtt", "CmdPTT", PttCaption, {PttCaption, LoadText(Text::Rx), LoadText(Text::Tx), {}});
    connect(cmdWide, &QPushButton::clicked, this, [this] { OnWidthPressed(true); });
    connect(cmdNarrow, &QPushButton::clicked, this, [this] { OnWidthPressed(false); });
    connect(cmdPtt, &QPushButton::clicked, this, [this] { engine_.PressPtt(); });
    return row;
}

QHBoxLayout* TestForm::BuildWindowButtons() {
    auto* row = new QHBoxLayout;
    row->addStretch();
    CmdTune_ = AddButton(*row, "CmdTune", LoadText(Text::TuningModeButton));
    auto* cmdPrint = AddButton(*row, "CmdPrint", LoadText(Text::PrintButton));
    auto* cmdClose = AddButton(*row, "cmdClose", LoadText(Text::CloseButton));
    CmdTune_->setEnabled(false);
    connect(CmdTune_, &QPushButton::clicked, this, [this] { engine_.Tune(); });
    connect(cmdPrint, &QPushButton::clicked, this, &TestForm::Print);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    return row;
}

/// Once at a time: a second click, or closing the window, may come while the first waits.
void TestForm::Print() {
    if (!printing_.expired()) {
        return;
    }
    const auto printing = std::make_shared<bool>(true);
    printing_ = printing;
    PrintTuningReport(document_, service_.Values, language_, services_,
                      [form = QPointer(this), printing] { return form != nullptr && !form->leaving_; });
}

/// The channels that the radio has told, or none: then a single "1" stands in the list.
void TestForm::LoadChannels() {
    QStringList numbers;
    int first = 1;
    for (int channel = TestChannelCount; channel >= 1; --channel) {
        if (IsTestChannelOffered(service_.TestFrequencyText[static_cast<std::size_t>(channel - 1)])) {
            numbers.prepend(QString::number(channel));
            first = channel;
        }
    }
    offersChannels_ = !numbers.isEmpty();
    service_.TestChannelNo = first;
    frmTestChannel_->List().SetEntries(offersChannels_ ? numbers : QStringList("1"));
    frmTestChannel_->List().ShowEntry(0);
    ShowChannel();
}

void TestForm::ShowChannel() {
    if (!offersChannels_) {
        frmTestChannel_->ShowTexts(NoFrequency, LoadText(Text::None));
        return;
    }
    const TestFrequencyTexts& texts = service_.TestFrequencyText[static_cast<std::size_t>(service_.TestChannelNo - 1)];
    frmTestChannel_->ShowTexts(ToQString(texts.receive + "MHz"), ToQString(texts.transmit + "MHz"));
}

void TestForm::ShowSignalling(int number) {
    const Signalling& signalling = Signallings[static_cast<std::size_t>(number - 1)];
    frmTestSignal_->ShowTexts(LoadText(signalling.receive), LoadText(signalling.transmit));
}

void TestForm::OnChannelChosen(int index) {
    if (index >= 0) {
        engine_.ChooseChannel(frmTestChannel_->List().itemText(index).toInt());
        ShowChannel();
    }
}

void TestForm::OnSignallingChosen(int index) {
    if (index >= 0) {
        engine_.ChooseSignalling(index + 1);
        ShowSignalling(index + 1);
    }
}

void TestForm::OnItemChosen() {
    const QList<QListWidgetItem*> chosen = LvwTuneSel_->selectedItems();
    if (chosen.isEmpty()) { // by a click with Ctrl; or another one is about to be chosen
        QMetaObject::invokeMethod(this, &TestForm::KeepItemChosen, Qt::QueuedConnection);
        return;
    }
    service_.TuneItem = LvwTuneSel_->row(chosen.front()) + 1;
    CmdTune_->setEnabled(true);
}

void TestForm::KeepItemChosen() {
    if (LvwTuneSel_->selectedItems().isEmpty()) {
        LvwTuneSel_->item(service_.TuneItem - 1)->setSelected(true);
    }
}

void TestForm::OnWidthPressed(bool wide) {
    engine_.ChooseWide(wide);
    (wide ? PicWide_ : PicNarrow_)->Light(lamp::Chosen);
    (wide ? PicNarrow_ : PicWide_)->Darken();
}

void TestForm::OnLamps(bool transmitting) {
    PicPtt_->Light(transmitting ? lamp::Transmit : lamp::Idle);
    frmTestChannel_->ShowTransmitting(transmitting);
    frmTestSignal_->ShowTransmitting(transmitting);
}

void TestForm::OnTuningReady() {
    if (leaving_) { // closed before the dialog could open
        return;
    }
    if (!printing_.expired() || QApplication::activeModalWidget() != nullptr) { // a question needs this window enabled
        QTimer::singleShot(DialogPollMilliseconds, this, &TestForm::OnTuningReady);
        return;
    }
    tuning_ = true;
    LvwTuneSel_->setCurrentRow(service_.TuneItem - 1); // whatever was chosen while the radio was asked
    block_.Begin();
    TuningForm* dialog = MakeTuningForm(document_, link_, service_, language_, services_, this);
    connect(dialog, &TuningForm::Unloaded, this, [this] {
        tuning_ = false;
        block_.End();
    });
    dialog->setEnabled(true); // a window of a disabled one begins disabled
    dialog->show();
}

void TestForm::OnUnloadRequested() {
    close();
}

void TestForm::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        emit Activated();
    }
}

void TestForm::closeEvent(QCloseEvent* event) {
    if (tuning_) { // the port is the tuning dialog's
        event->ignore();
        return;
    }
    if (!unloaded_) {
        leaving_ = true;
        setEnabled(false);
        engine_.Close(); // OnClosed may come from inside
    }
    event->setAccepted(unloaded_);
}

void TestForm::OnClosed() {
    unloaded_ = true;
    deleteLater();
    emit Unloaded();
    close();
}

} // namespace zelvor
