#include "channels/ChannelEditPanel.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "channels/CellValues.h"
#include "channels/ChannelEditLists.h"
#include "channels/ToneKeys.h"
#include "controls/FieldList.h"
#include "controls/FilteredLineEdit.h"
#include "controls/NumbersTo.h"
#include "controls/SpinText.h"
#include "controls/WindowState.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "data/OptionalFields.h"
#include "data/ToneCodec.h"
#include "platform/LayoutUnits.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr int FrequencyLength = 9; // "000.00000"
constexpr int ChannelDigits = 2;
constexpr int FieldHeight = 24;
constexpr QSize FieldSize(178, FieldHeight);

} // namespace

ChannelEditPanel::ChannelEditPanel(const Document& document, const WindowState& windows, QWidget& content)
    : document_(document), windows_(windows) {
    BuildChannel(content);
    BuildFrame(content);
    BuildFields();
    BuildToneLists();
    BuildChecks();
    BuildButtons(content);
}

void ChannelEditPanel::BuildChannel(QWidget& content) {
    auto* label = new QLabel(ToQString(windows_.LoadText(Text::Channel)), &content);
    label->setObjectName("LabChannel");
    label->setGeometry(LaidOut(QRect(20, 8, 140, FieldHeight)));
    SpinTextRules rules;
    rules.first = 1;
    rules.last = address::ChannelCount;
    rules.lengthLimit = ChannelDigits;
    rules.show = [](int n) { return QString::number(n); };
    rules.read = [](const QString& text) { return std::optional(text.toInt()); };
    channel = new SpinText("txtChannel", "UpDown1", std::move(rules), &content);
    channel->setGeometry(LaidOut(QRect(178, 8, 72, FieldHeight)));
    channel->Box().SetEnterLetter(u'l');
    channel->SetAccessibleName(label->text());
    label->setBuddy(channel);
}

void ChannelEditPanel::BuildFrame(QWidget& content) {
    auto* frame = new QFrame(&content);
    frame->setObjectName("Frame1");
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setGeometry(LaidOut(QRect(8, 38, 360, 358)));
    frame1_ = frame;
    fields_ = new QGridLayout(frame);
    fields_->setContentsMargins(11, 6, 11, 6);
    fields_->setVerticalSpacing(2);
    fields_->setColumnStretch(0, 1);
}

void ChannelEditPanel::PlaceField(const char* labelName, QWidget* field, const FieldWord& caption) {
    const int row = fields_->rowCount();
    auto* label = new QLabel(ToQString(caption.In(windows_.LanguageFlag)), frame1_);
    label->setObjectName(labelName);
    label->setBuddy(field);
    field->setFixedSize(LaidOut(FieldSize));
    field->setAccessibleName(label->text());
    fields_->addWidget(label, row, 0);
    fields_->addWidget(field, row, 1);
}

void ChannelEditPanel::BuildFields() {
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
    const Language language = windows_.LanguageFlag;
    const auto choices = [&](int column) { return ToQStrings(CellChoices(column, document_.Image, language)); };
    PlaceField("LabRxFreq", txtRxFreq = frequency("txtRxFreq"), Text::ReceiveFrequency);
    PlaceField("LabTxFreq", txtTxFreq = frequency("txtTxFreq"), Text::TransmitFrequency);
    PlaceField("LabQTdec", comDecode = list("ComDecode", {}), Text::QtDqtDecode);
    PlaceField("LabQTenc", comEncode = list("ComEncode", {}), Text::QtDqtEncode);
    PlaceField("LabOptional", comSelSignal = list("ComSelSignal", choices(column::OptSignal)),
               Text::OptionSignallingLabel);
    PlaceField("LabSPmute", comSPMute = list("ComSPMute", {}), Text::SpUnmute);
    PlaceField("LabTxPower", comTxPower = list("ComTxPower", choices(column::Power)), Text::TxPower);
    PlaceField("LabWN", comWideNarrow = list("ComWideNarrow", choices(column::Width)), Text::WideNarrow);
    PlaceField("LabBusyLock", comBusyLock = list("ComBusyLock", {}), Text::BusyChannelLockout);
    PlaceField("LabPTTID", comPTTID = list("ComPTTID", choices(column::PttId)), optional_features::PttId.label);
    PlaceField("LabAutoDial", comAutoDial = list("ComAutoDial", NumbersTo(8)), Text::AutodialMemoryOfChannel);
    const DependentLists plain = DependentListsOf(false, false, language);
    comSPMute->SetEntries(ToQStrings(plain.spMute));
    comBusyLock->SetEntries(ToQStrings(plain.busyLock));
}

void ChannelEditPanel::BuildToneLists() {
    for (FieldList* list : {comDecode, comEncode}) {
        auto* box = new FilteredLineEdit(list);
        box->setAccessibleName(list->accessibleName());
        TakeToneKeys(*box);
        list->setLineEdit(box);
        list->setInsertPolicy(QComboBox::NoInsert);
        list->setCompleter(nullptr);
        list->setMaxVisibleItems(12);
        list->SetEntries(ToQStrings(BuildToneList(windows_.LanguageFlag)));
    }
}

void ChannelEditPanel::BuildChecks() {
    auto* checks = new QGridLayout;
    checks->setVerticalSpacing(0);
    fields_->addLayout(checks, fields_->rowCount(), 0, 1, 2);
    const auto check = [this, checks](const char* name, Text caption, int row, int column) {
        auto* box = new QCheckBox(ToQString(windows_.LoadText(caption)), frame1_);
        box->setObjectName(name);
        box->setFixedHeight(LaidOut(22));
        checks->addWidget(box, row, column);
        return box;
    };
    chkShift = check("ChkShift", Text::BeatShift, 0, 0);
    chkScanAdd = check("ChkScanAdd", Text::ScanAdd, 0, 1);
    chkPriorityChannel = check("ChkPriorityChannel", Text::IsPriorityChannel, 1, 0);
    chkYaKuo = check("ChkYaKuo", Text::Compander, 1, 1);
}

void ChannelEditPanel::BuildButtons(QWidget& content) {
    const auto button = [&](const char* name, Text caption, int x) {
        auto* made = new QPushButton(ToQString(windows_.LoadText(caption)), &content);
        made->setObjectName(name);
        made->setGeometry(LaidOut(QRect(x, 401, 100, 30)));
        made->setAutoDefault(true);
        return made;
    };
    cmdOK = button("cmdOK", Text::CloseButton, 156);
    cmdHelp = button("cmdHelp", Text::HelpButton, 268);
}

// --- What they show
// ----------------------------------------------------------------------------------------------------

void ChannelEditPanel::PutTone(FieldList& list, const std::string& tone) {
    const QString text = ToQString(tone);
    list.ShowEntry(list.findText(text));
    list.lineEdit()->setText(text);
}

bool ChannelEditPanel::HasTone() const {
    return FromQString(comDecode->currentText()) != windows_.LoadText(Text::None);
}

bool ChannelEditPanel::HasSignalling() const {
    return FromQString(comSelSignal->currentText()) != windows_.LoadText(Text::None);
}

bool ChannelEditPanel::AreDependentListsRight() const {
    const DependentLists right = DependentListsNow();
    // The first entry tells of the tone, the number of entries of the signalling.
    return comSPMute->count() == static_cast<int>(right.spMute.size()) &&
           comSPMute->itemText(0) == ToQString(right.spMute.front());
}

DependentLists ChannelEditPanel::DependentListsNow() const {
    return DependentListsOf(HasTone(), HasSignalling(), windows_.LanguageFlag);
}

void ChannelEditPanel::TakeTexts(ChannelTexts& texts) const {
    texts.TxText = FromQString(txtTxFreq->text());
    texts.DecText = FromQString(comDecode->currentText());
    texts.EncText = FromQString(comEncode->currentText());
    texts.OptSignalText = FromQString(comSelSignal->currentText());
    texts.PowerText = FromQString(comTxPower->currentText());
    texts.WidthText = FromQString(comWideNarrow->currentText());
    texts.PttIdText = FromQString(comPTTID->currentText());
    texts.AutoDialText = FromQString(comAutoDial->currentText());
}

void ChannelEditPanel::ShowDefaults(bool isNew, bool hasPttId) {
    const auto complete = [](FieldList& list, int entry) {
        if (list.currentText().isEmpty()) {
            list.ShowEntry(entry);
        }
    };
    complete(*comDecode, 0);
    complete(*comEncode, 0);
    if (isNew) {
        comSelSignal->ShowEntry(0);
    }
    complete(*comTxPower, 0);
    complete(*comWideNarrow, 1);
    complete(*comPTTID, hasPttId ? 0 : NoEntry);
    complete(*comAutoDial, 0);
}

} // namespace zelvor
