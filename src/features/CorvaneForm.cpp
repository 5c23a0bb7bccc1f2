#include "features/CorvaneForm.h"

#include <QKeyEvent>
#include <QLabel>
#include <algorithm>
#include <utility>

#include "controls/BoundList.h"
#include "controls/BoundRows.h"
#include "controls/BoundSpin.h"
#include "controls/CellTextEditor.h"
#include "controls/EditGrid.h"
#include "controls/FieldTabs.h"
#include "controls/TextCellEdit.h"
#include "features/Raster.h"
#include "platform/LayoutUnits.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{6285, 5070}; // twips
// Pixels.
constexpr QRect GridPlace{raster::Margin, raster::Margin, 386, 202};
constexpr QRect HintPlace{raster::Margin, 212, GridPlace.width(), 36};

constexpr TextPair HintText{
    "Enter or a click edits, A stands for All. To change a number, select a digit with Shift+arrow and type over it.",
    "按回车键或单击可编辑单元格，A 表示全部。更改号码时，用 Shift 加方向键选中一位数字，再键入新数字。"};

constexpr int FirstStep = 1;
constexpr int NoStep = 0;

constexpr int FleetColumn = 1;
constexpr int IdColumn = 2;

const corvane::ListNumber& NumberOf(int column) {
    return column == FleetColumn ? corvane::ListFleet : corvane::ListId;
}

constexpr int OtherColumn(int column) {
    return column == FleetColumn ? IdColumn : FleetColumn;
}

SpinTextRules SteppedBy(std::function<std::optional<int>(const QString& text, bool up)> step) {
    SpinTextRules rules;
    rules.step = std::move(step);
    return rules;
}

} // namespace

CorvaneForm::CorvaneForm(Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::Corvane, "CorvaneForm", WindowSize, "picCorvane", Text::CorvaneTitle, document, windows,
                services, parent) {
    auto* tabs = new FieldTabs("SSTab1", Panel());
    tabs->setAccessibleName(windowTitle().trimmed());
    tabs->setGeometry(Panel()->rect().adjusted(raster::Margin, raster::TabsTop, -raster::Margin, 0));
    BuildFields(*tabs->AddPage(LoadText(Text::CorvanePage)));
    BuildFleetList(*tabs->AddPage(LoadText(Text::FleetList)));
    LoadFields();
    ShowFleetList();
    StartAt(*fleet_);
}

void CorvaneForm::BuildFields(QWidget& page) {
    BoundRows rows(page, TheDocument().Image, CurrentLanguage(), raster::Margin, raster::RowSpacing);
    fleet_ = rows.AddSpin("Fleet", corvane::OwnFleet,
                          SteppedBy([this](const QString& text, bool up) { return StepFleet(text, up); }));
    id_ = rows.AddSpin("ID", corvane::OwnId,
                       SteppedBy([this](const QString& text, bool up) { return StepId(text, up); }));
    rows.AddList("BaudRate", corvane::BaudRate);
    rows.AddSpin("DelayTime", corvane::DelayTime);
    rows.AddSpin("MsgModeTimer", corvane::MessageModeTimer);
    rows.AddCheck("SideTone", corvane::SideTone);
    rows.End();
    // In one line it would push the fields out of the middle.
    page.findChild<QLabel*>("lblDelayTime")->setWordWrap(true);
    connect(fleet_, &BoundSpin::Committed, this, [this](int step) { OnOwnCommitted(step, *id_); });
    connect(id_, &BoundSpin::Committed, this, [this](int step) { OnOwnCommitted(step, *fleet_); });
}

/// Steps go round among the numbers; none of them empties the box.
int CorvaneForm::StepOwn(const BoundSpin& box, const NumberField& field, const QString& text, bool up) const {
    const int end = up ? field.last : FirstStep;
    const int otherEnd = up ? FirstStep : field.last;
    if (text == ToQString(field.show(end, CurrentLanguage()))) {
        return otherEnd;
    }
    return std::clamp(box.Value() + (up ? 1 : -1), FirstStep, field.last);
}

int CorvaneForm::StepFleet(const QString& text, bool up) {
    if (text.isEmpty()) {
        id_->PutAndStore(FirstStep);
        return FirstStep;
    }
    return StepOwn(*fleet_, corvane::OwnFleet, text, up);
}

int CorvaneForm::StepId(const QString& text, bool up) {
    if (text.isEmpty()) {
        fleet_->Put(FirstStep); // stored when its own box is left, unlike the ID above
        return FirstStep;
    }
    return StepOwn(*id_, corvane::OwnId, text, up);
}

void CorvaneForm::OnOwnCommitted(int step, BoundSpin& other) {
    if (step == NoStep) {
        other.PutAndStore(NoStep);
    } else {
        TheDocument().Flags.OwnIdError = false;
    }
}

void CorvaneForm::BuildFleetList(QWidget& page) {
    msgFleetList_ = new EditGrid(corvane::FleetListSize, IdColumn, &page);
    msgFleetList_->setObjectName("msgFleetList");
    msgFleetList_->setGeometry(LaidOut(GridPlace));
    txtFleetList_ = new CellTextEditor(&page);
    txtFleetList_->setObjectName("txtFleetList");
    txtFleetList_->SetFilter([this](QChar entered) { return AcceptInList(entered); });
    edit_ = new TextCellEdit(*msgFleetList_, *txtFleetList_);
    auto* labHint = new QLabel(ToQString(HintText.In(CurrentLanguage())), &page);
    labHint->setObjectName("LabHint");
    labHint->setGeometry(LaidOut(HintPlace));
    labHint->setWordWrap(true);
    labHint->setForegroundRole(QPalette::PlaceholderText);
    SetGridTexts();
    connect(msgFleetList_, &EditGrid::CellClicked, this, &CorvaneForm::OpenEditor);
    connect(msgFleetList_, &EditGrid::KeyPressed, this, &CorvaneForm::OnGridKey);
    connect(edit_, &TextCellEdit::Changed, this, &CorvaneForm::WriteEntry);
    connect(edit_, &TextCellEdit::Left, this, &CorvaneForm::WriteEntry);
    connect(edit_, &TextCellEdit::Entered, this, &CorvaneForm::OnEntered);
}

void CorvaneForm::SetGridTexts() {
    const Language language = CurrentLanguage();
    msgFleetList_->SetCaptions({LoadText(Text::NumberHeading), ToQString(corvane::ListFleet.heading.In(language)),
                                ToQString(corvane::ListId.heading.In(language))});
    const int eighth = msgFleetList_->width() / 8;
    msgFleetList_->FitCells({2 * eighth, 3 * eighth, 3 * eighth});
    msgFleetList_->setAccessibleName(LoadText(Text::FleetList));
}

void CorvaneForm::ShowFleetList() {
    const DataImage& image = TheDocument().Image;
    for (int n = 1; n <= corvane::FleetListSize; ++n) {
        for (const int column : {FleetColumn, IdColumn}) {
            msgFleetList_->SetText(n, column,
                                   ToQString(corvane::LoadListNumber(image, n, NumberOf(column), CurrentLanguage())));
        }
    }
}

void CorvaneForm::OpenEditor() {
    txtFleetList_->SetLengthLimit(NumberOf(msgFleetList_->Column()).digits);
    edit_->Open();
}

void CorvaneForm::OnGridKey(QKeyEvent* event) {
    if (IsEnterKey(*event)) {
        OpenEditor();
        event->accept();
        return;
    }
    const QChar character = TypedCharacter(*event).toUpper();
    if (character == u'A' || !Digit(character).isNull()) {
        OpenEditor();
        edit_->PutText(character);
        event->accept();
    }
}

QChar CorvaneForm::AcceptInList(QChar entered) const {
    const QString text = txtFleetList_->text();
    if (entered.toUpper() == u'A') {
        return txtFleetList_->selectedText() == text ? QChar(u'A') : QChar();
    }
    return text == "A" ? QChar() : Digit(entered);
}

void CorvaneForm::OnEntered() {
    WriteEntry();
    const int row = edit_->Row();
    const int column = edit_->Column();
    edit_->Close();
    if (column == FleetColumn) {
        msgFleetList_->MoveTo(row, IdColumn);
    } else {
        msgFleetList_->MoveTo(row + 1, FleetColumn);
    }
}

/// Runs at every key, so the first digit typed into an empty cell becomes the lower limit already, on purpose: a number
/// is entered by overtyping digits of one that is there.
void CorvaneForm::WriteEntry() {
    DataImage& image = TheDocument().Image;
    const int row = edit_->Row();
    const int column = edit_->Column();
    const int other = OtherColumn(column);
    if (edit_->Text().isEmpty()) {
        msgFleetList_->SetText(row, other, QString());
        corvane::EraseEntry(image, row);
        return;
    }
    const int number = corvane::ReadListNumber(FromQString(edit_->Text()), NumberOf(column));
    corvane::StoreListNumber(image, row, NumberOf(column), number);
    if (msgFleetList_->Text(row, other).isEmpty()) {
        corvane::StoreListNumber(image, row, NumberOf(other), corvane::AllNumbers);
        // The fleet of an ID that is entered as All is stored only: its cell shows it when the window is opened again.
        if (column == FleetColumn || number != corvane::AllNumbers) {
            msgFleetList_->SetText(row, other,
                                   ToQString(corvane::ShowListNumber(corvane::AllNumbers, CurrentLanguage())));
        }
    }
    edit_->PutText(ToQString(corvane::ShowListNumber(number, CurrentLanguage())));
}

} // namespace zelvor
