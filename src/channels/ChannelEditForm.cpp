#include "channels/ChannelEditForm.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "channels/CellValues.h"
#include "channels/ChannelEditLists.h"
#include "channels/ToneKeys.h"
#include "controls/EnterAsTab.h"
#include "controls/FieldList.h"
#include "controls/PendingEdit.h"
#include "controls/SpinText.h"
#include "data/MemoryMap.h"
#include "data/OptionalFields.h"
#include "data/Session.h"
#include "data/ToneCodec.h"
#include "platform/HelpTopic.h"
#include "platform/HelpViewer.h"
#include "platform/LayoutUnits.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{5640, 6570}; // twips
constexpr int FrequencyLength = 9;      // "000.00000"
constexpr int ChannelDigits = 2;
constexpr int FieldHeight = 24;
constexpr QSize FieldSize(178, FieldHeight);

bool TakesFocus(const QEvent& event) {
    return event.type() == QEvent::FocusIn && static_cast<const QFocusEvent&>(event).reason() != Qt::PopupFocusReason;
}

/// A key that stands for a character; Tab only moves on.
bool IsTypedKey(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return !key.text().isEmpty() && key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab;
}

QStringList NumbersTo(int last) {
    QStringList numbers;
    for (int n = 1; n <= last; ++n) {
        numbers.append(QString::number(n));
    }
    return numbers;
}

} // namespace

ChannelEditForm::ChannelEditForm(Session& session, Services& services, QWidget* parent)
    : ChildForm(ChildWindow::ChannelEdit, "ChannelEditForm", WindowSize, parent), session_(session),
      services_(services) {
    session_.SetOpen(ChildWindow::ChannelEdit, true);
    BuildChannel();
    BuildFrame();
    BuildFields();
    BuildToneLists();
    BuildChecks();
    BuildButtons();
    SetTexts();
    ConnectFields();
    ConnectLists();
    setFocusProxy(channelSpin_);
    GoToChannel(session_.Cursor.EditChannel());
    session_.Channels.Add(*this);
    session_.Cursor.Add(*this);
    session_.Priority.Add(*this);
}

ChannelEditForm::~ChannelEditForm() {
    session_.Priority.Remove(*this);
    session_.Cursor.Remove(*this);
    session_.Channels.Remove(*this);
    DropPendingEdit(*this);
}

void ChannelEditForm::BuildChannel() {
    labChannel_ = new QLabel(Content());
    labChannel_->setObjectName("LabChannel");
    labChannel_->setGeometry(LaidOut(QRect(20, 8, 140, FieldHeight)));
    SpinTextRules rules;
    rules.first = 1;
    rules.last = address::ChannelCount;
    rules.lengthLimit = ChannelDigits;
    rules.show = [](int n) { return QString::number(n); };
    rules.read = [](const QString& text) { return std::optional(text.toInt()); };
    channelSpin_ = new SpinText("txtChannel", "UpDown1", std::move(rules), Content());
    channelSpin_->setGeometry(LaidOut(QRect(178, 8, 72, FieldHeight)));
    channelSpin_->Box().SetEnterLetter(u'l');
    labChannel_->setBuddy(channelSpin_);
}

void ChannelEditForm::BuildFrame() {
    auto* frame = new QFrame(Content());
    frame->setObjectName("Frame1");
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setGeometry(LaidOut(QRect(8, 38, 360, 358)));
    frame1_ = frame;
    fields_ = new QGridLayout(frame);
    fields_->setContentsMargins(11, 6, 11, 6);
    fields_->setVerticalSpacing(2);
    fields_->setColumnStretch(0, 1);
}

void ChannelEditForm::PlaceField(const char* labelName, QLabel*& label, QWidget* field, const FieldWord& caption) {
    const int row = fields_->rowCount();
    label = new QLabel(ToQString(caption.In(session_.LanguageFlag)), frame1_);
    label->setObjectName(labelName);
    label->setBuddy(field);
    field->setFixedSize(LaidOut(FieldSize));
    field->setAccessibleName(label->text());
    fields_->addWidget(label, row, 0);
    fields_->addWidget(field, row, 1);
}

void ChannelEditForm::BuildFields() {
    const auto frequency = [this](const char* name) {
        auto* box = new FilteredLineEdit(frame1_);
        box->setObjectName(name);
        box->SetFilter(DigitOrPoint);
        box->SetLengthLimit(FrequencyLength);
        box->SetEnterLetter(u'l');
        box->SelectAllOnFocus();
        return box;
    };
    const auto list = [this](const char* name, const QStringList& entries) {
        auto* made = new FieldList(frame1_);
        made->setObjectName(name);
        made->SetEntries(entries);
        return made;
    };
    const Language language = session_.LanguageFlag;
    const auto choices = [&](int column) { return ToQStrings(CellChoices(column, session_.Image, language)); };
    PlaceField("LabRxFreq", labRxFreq_, txtRxFreq_ = frequency("txtRxFreq"), Text::ReceiveFrequency);
    PlaceField("LabTxFreq", labTxFreq_, txtTxFreq_ = frequency("txtTxFreq"), Text::TransmitFrequency);
    PlaceField("LabQTdec", labQTdec_, comDecode_ = list("ComDecode", {}), Text::QtDqtDecode);
    PlaceField("LabQTenc", labQTenc_, comEncode_ = list("ComEncode", {}), Text::QtDqtEncode);
    PlaceField("LabOptional", labOptional_, comSelSignal_ = list("ComSelSignal", choices(column::OptSignal)),
               Text::OptionSignallingLabel);
    PlaceField("LabSPmute", labSPmute_, comSPMute_ = list("ComSPMute", {}), Text::SpUnmute);
    PlaceField("LabTxPower", labTxPower_, comTxPower_ = list("ComTxPower", choices(column::Power)), Text::TxPower);
    PlaceField("LabWN", labWN_, comWideNarrow_ = list("ComWideNarrow", choices(column::Width)), Text::WideNarrow);
    PlaceField("LabBusyLock", labBusyLock_, comBusyLock_ = list("ComBusyLock", {}), Text::BusyChannelLockout);
    PlaceField("LabPTTID", labPTTID_, comPTTID_ = list("ComPTTID", choices(column::PttId)),
               optional_features::PttId.label);
    PlaceField("LabAutoDial", labAutoDial_, comAutoDial_ = list("ComAutoDial", NumbersTo(8)),
               Text::AutodialMemoryOfChannel);
    const DependentLists plain = DependentListsOf(false, false, language);
    comSPMute_->SetEntries(ToQStrings(plain.spMute));
    comBusyLock_->SetEntries(ToQStrings(plain.busyLock));
}

void ChannelEditForm::BuildToneLists() {
    for (FieldList* list : {comDecode_, comEncode_}) {
        auto* box = new FilteredLineEdit(list);
        TakeToneKeys(*box);
        list->setLineEdit(box);
        list->setInsertPolicy(QComboBox::NoInsert);
        list->setCompleter(nullptr);
        list->setMaxVisibleItems(12);
        list->SetEntries(ToQStrings(BuildToneList(session_.LanguageFlag)));
    }
}

void ChannelEditForm::BuildChecks() {
    auto* checks = new QGridLayout;
    checks->setVerticalSpacing(0);
    fields_->addLayout(checks, fields_->rowCount(), 0, 1, 2);
    const auto check = [this, checks](const char* name, Text caption, int row, int column) {
        auto* box = new QCheckBox(ToQString(session_.LoadText(caption)), frame1_);
        box->setObjectName(name);
        box->setFixedHeight(LaidOut(22));
        checks->addWidget(box, row, column);
        return box;
    };
    chkShift_ = check("ChkShift", Text::BeatShift, 0, 0);
    chkScanAdd_ = check("ChkScanAdd", Text::ScanAdd, 0, 1);
    chkPriorityChannel_ = check("ChkPriorityChannel", Text::IsPriorityChannel, 1, 0);
    chkYaKuo_ = check("ChkYaKuo", Text::Compander, 1, 1);
}

void ChannelEditForm::BuildButtons() {
    const auto button = [this](const char* name, int x) {
        auto* made = new QPushButton(Content());
        made->setObjectName(name);
        made->setGeometry(LaidOut(QRect(x, 401, 100, 30)));
        made->setAutoDefault(true);
        return made;
    };
    cmdOK_ = button("cmdOK", 156);
    cmdHelp_ = button("cmdHelp", 268);
    connect(cmdOK_, &QPushButton::clicked, this, &ChannelEditForm::OnClose);
    connect(cmdHelp_, &QPushButton::clicked, this,
            [this] { services_.help.ShowTopic(HelpTopicPath(session_.LanguageFlag, HelpPage())); });
}

void ChannelEditForm::SetTexts() {
    const auto text = [this](Text name) { return ToQString(session_.LoadText(name)); };
    SetCaption(text(Text::ChannelEditTitle));
    labChannel_->setText(text(Text::Channel));
    channelSpin_->SetAccessibleName(text(Text::Channel));
    cmdOK_->setText(text(Text::CloseButton));
    cmdHelp_->setText(text(Text::HelpButton));
}

void ChannelEditForm::ConnectFields() {
    connect(&channelSpin_->Box(), &QLineEdit::textChanged, this, &ChannelEditForm::OnChannelText);
    connect(txtRxFreq_, &QLineEdit::textChanged, this, &ChannelEditForm::OnReceiveText);
    connect(txtRxFreq_, &FilteredLineEdit::FocusLeft, this, &ChannelEditForm::OnReceiveLeft);
    connect(txtRxFreq_, &FilteredLineEdit::EnterPressed, this, [this] {
        if (HasReceive()) {
            MoveOn(*txtRxFreq_);
        }
    });
    connect(txtTxFreq_, &QLineEdit::textChanged, this, &ChannelEditForm::OnTransmitText);
    connect(txtTxFreq_, &FilteredLineEdit::FocusLeft, this, &ChannelEditForm::OnTransmitLeft);
    EnterMovesOn(*txtTxFreq_);
    connect(chkShift_, &QCheckBox::toggled, this, &ChannelEditForm::StoreShift);
    connect(chkYaKuo_, &QCheckBox::toggled, this, &ChannelEditForm::StoreCompander);
    connect(chkScanAdd_, &QCheckBox::toggled, this, &ChannelEditForm::StoreScanAdd);
    connect(chkPriorityChannel_, &QCheckBox::toggled, this, &ChannelEditForm::StorePriority);
    for (QWidget* watched : std::initializer_list<QWidget*>{txtRxFreq_, comPTTID_, chkScanAdd_}) {
        watched->installEventFilter(this);
    }
}

void ChannelEditForm::ConnectLists() {
    // What a list stores, it stores when an entry is chosen and again when the list is left.
    const auto stores = [this](FieldList* list, auto store) {
        connect(list, &FieldList::Selected, this, store);
        connect(list, &FieldList::FocusLeft, this, store);
    };
    stores(comSPMute_, [this] { StoreSpMute(); });
    stores(comBusyLock_, [this] { StoreBusyLock(); });
    stores(comAutoDial_, [this] { StoreAutoDial(); });
    stores(comTxPower_, [this] { StoreCell(*comTxPower_, &ChannelTexts::PowerText, column::Power); });
    stores(comWideNarrow_, [this] { StoreCell(*comWideNarrow_, &ChannelTexts::WidthText, column::Width); });
    stores(comPTTID_, [this] { StoreCell(*comPTTID_, &ChannelTexts::PttIdText, column::PttId); });
    for (FieldList* list : {comDecode_, comEncode_}) {
        connect(list, &FieldList::Selected, this, [this, list] { OnToneSelected(*list); });
        connect(list, &FieldList::FocusLeft, this, [this, list] { OnToneLeft(*list); });
    }
    connect(comSelSignal_, &FieldList::Selected, this, &ChannelEditForm::OnSignalSelected);
    connect(comSelSignal_, &FieldList::FocusLeft, this, &ChannelEditForm::OnSignalLeft);
}

bool ChannelEditForm::eventFilter(QObject* watched, QEvent* event) {
    if (TakesFocus(*event)) {
        if (watched == txtRxFreq_) {
            WasBlank = !HasReceive();
        } else if (watched == comPTTID_ && IsLive()) {
            OnPttIdFocus();
        }
    } else if (watched == chkScanAdd_ && IsTypedKey(*event) && IsLive()) {
        CommitDialog();
    }
    return ChildForm::eventFilter(watched, event);
}

void ChannelEditForm::CloseFromFrame() {
    CommitPendingEdit();
    emit UnloadRequested();
}

} // namespace zelvor
