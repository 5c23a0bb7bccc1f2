#include "features/DTMFForm.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>

#include "controls/BoundCheck.h"
#include "controls/BoundList.h"
#include "controls/BoundRows.h"
#include "controls/BoundSpin.h"
#include "controls/CellTextEditor.h"
#include "controls/DtmfFilter.h"
#include "controls/EditGrid.h"
#include "controls/FieldTabs.h"
#include "controls/TextCellEdit.h"
#include "features/DtmfCodeBox.h"
#include "features/Raster.h"
#include "platform/LayoutUnits.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{6285, 5070};                              // twips
constexpr QRect GridPlace{raster::Margin, raster::Margin, 386, 218}; // pixels

constexpr int DigitsColumn = 1;

constexpr const char* StunFrame = "Stun"; // in both languages
constexpr TextPair InvalidData{"Invalid Data.", "无效数据。"};

/// Of the row of the grid, 1 to 8.
const TextField& Memory(int row) {
    return dtmf::Autodials[static_cast<std::size_t>(row - 1)];
}

SpinTextRules StepsThroughTexts(const NumberField& field) {
    SpinTextRules rules;
    rules.step = [&field](const QString& text, bool up) { return dtmf::NextText(field, FromQString(text), up); };
    return rules;
}

/// D stands for the whole text "D Code": it takes the place of what is in the box.
void TakeDCodeLetter(FilteredLineEdit& box) {
    box.SetFilter([&box](QChar entered) {
        if (entered.toUpper() == u'D' && box.text() != "D") {
            box.setText("D");
            box.setCursorPosition(0);
        }
        return Digit(entered);
    });
}

/// The character that a key of the grid opens the editor with. Shift with a digit stands for what a telephone has on
/// that key, on every layout of the keyboard.
QChar DigitOfKey(const QKeyEvent& event) {
    constexpr auto withoutPad = ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const bool shifted = (event.modifiers() & withoutPad) == Qt::ShiftModifier;
    if (shifted && event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9) {
        return event.key() == Qt::Key_3 ? QChar(u'#') : event.key() == Qt::Key_8 ? QChar(u'*') : QChar();
    }
    return DtmfDigitFilter(TypedCharacter(event));
}

} // namespace

DTMFForm::DTMFForm(Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::Dtmf, "DTMFForm", WindowSize, "picDTMF", Text::DtmfExplained, document, windows, services,
                parent) {
    auto* tabs = new FieldTabs("SSTab1", Panel());
    tabs->setAccessibleName(windowTitle().trimmed());
    tabs->setGeometry(Panel()->rect().adjusted(raster::Margin, raster::TabsTop, -raster::Margin, 0));
    BuildEncodePage(*tabs->AddPage(LoadText(Text::Encode)));
    BuildDecodePage(*tabs->AddPage(LoadText(Text::Decode)));
    BuildAutodialPage(*tabs->AddPage(LoadText(Text::AutodialMemory)));
    Load();
}

void DTMFForm::BuildEncodePage(QWidget& page) {
    BoundRows rows(page, TheDocument().Image, CurrentLanguage(), raster::Margin, raster::RowSpacing);
    StartAt(*rows.AddSpin("DTMFSpeed", dtmf::Speed, StepsThroughTexts(dtmf::Speed)));
    rows.AddSpin("FstDigitTime", dtmf::FirstDigitTime, StepsThroughTexts(dtmf::FirstDigitTime));
    rows.AddSpin("FstDigitDelay", dtmf::FirstDigitDelay);
    rows.AddSpin("Tone", dtmf::Tone, StepsThroughTexts(dtmf::Tone));
    TakeDCodeLetter(rows.AddSpin("DCodeAssign", dtmf::DCodeAssignment)->Box());
    rows.AddCheck("DTMFSideTone", dtmf::SideTone);
    rows.End();
}

void DTMFForm::BuildDecodePage(QWidget& page) {
    BoundRows rows(page, TheDocument().Image, CurrentLanguage(), raster::Margin, raster::RowSpacing);
    txtIDCode_ = MakeCode("txtIDCode", dtmf::IdCode);
    rows.Add("lblIDCode", dtmf::IdCode.label, txtIDCode_);
    rows.AddList("GroupCode", dtmf::GroupCode);
    rows.AddSpin("AutoResetTimer", dtmf::AutoResetTimer);
    rows.AddList("CallAlert", dtmf::CallAlert);
    rows.AddList("Transpond", dtmf::Transpond);
    rows.AddCheck("Clear", dtmf::ClearToTranspond);
    rows.Add(BuildStunFrame());
    rows.End();
}

QWidget* DTMFForm::BuildStunFrame() {
    auto* fraStun = new QGroupBox(StunFrame);
    fraStun->setObjectName("fraStun");
    BoundRows rows(*fraStun, TheDocument().Image, CurrentLanguage(), raster::FrameMargin, raster::RowSpacing);
    txtStunCode_ = MakeCode("txtStunCode", dtmf::StunCode);
    rows.Add("lblStunCode", dtmf::StunCode.label, txtStunCode_);
    cboStunType_ = rows.AddList("StunType", dtmf::StunType);
    lblStunType_ = fraStun->findChild<QLabel*>("lblStunType");
    connect(txtStunCode_, &DtmfCodeBox::Committed, this, &DTMFForm::EnableStunType);
    return fraStun;
}

void DTMFForm::BuildAutodialPage(QWidget& page) {
    msgAutodial_ = new EditGrid(dtmf::AutodialCount, DigitsColumn, &page);
    msgAutodial_->setObjectName("msgAutodial");
    msgAutodial_->setGeometry(LaidOut(GridPlace));
    page.setFocusProxy(msgAutodial_);
    SetGridTexts();
    auto* txtAutodial = new CellTextEditor(&page);
    txtAutodial->setObjectName("txtAutodial");
    txtAutodial->SetFilter(DtmfDigitFilter);
    txtAutodial->SetLengthLimit(dtmf::AutodialSize);
    edit_ = new TextCellEdit(*msgAutodial_, *txtAutodial);
    connect(msgAutodial_, &EditGrid::CellClicked, edit_, &TextCellEdit::Open);
    connect(msgAutodial_, &EditGrid::KeyPressed, this, &DTMFForm::OnGridKey);
    connect(edit_, &TextCellEdit::Changed, this, &DTMFForm::StoreMemory);
    connect(edit_, &TextCellEdit::Left, this, &DTMFForm::StoreMemory);
    connect(edit_, &TextCellEdit::Entered, this, &DTMFForm::OnEntered);
}

void DTMFForm::SetGridTexts() {
    msgAutodial_->SetCaptions({LoadText(Text::NumberHeading), LoadText(Text::AutodialMemory)});
    const int inner = msgAutodial_->width() - 2 * msgAutodial_->frameWidth();
    msgAutodial_->FitCells({inner / 4, inner - inner / 4});
    msgAutodial_->setAccessibleName(LoadText(Text::AutodialMemory));
}

void DTMFForm::Load() {
    LoadFields();
    txtIDCode_->Load();
    txtStunCode_->Load();
    EnableStunType();
    for (int n = 1; n <= dtmf::AutodialCount; ++n) {
        msgAutodial_->SetText(n, DigitsColumn, QString::fromStdU16String(LoadCode(TheDocument().Image, Memory(n))));
    }
}

DtmfCodeBox* DTMFForm::MakeCode(const QString& name, const TextField& field) {
    auto* made = new DtmfCodeBox(name, field, TheDocument().Image);
    connect(made, &DtmfCodeBox::Invalid, this, &DTMFForm::OnInvalidCode);
    return made;
}

void DTMFForm::OnInvalidCode() {
    refused_ = true;
    const Language language = CurrentLanguage();
    TheServices().messages.Show({std::string(commontexts::Error.In(language)), std::string(InvalidData.In(language)),
                                 MessageIcon::Critical, MessageButtons::Ok});
}

void DTMFForm::EnableStunType() {
    const bool hasCode = !txtStunCode_->text().isEmpty();
    lblStunType_->setEnabled(hasCode);
    cboStunType_->setEnabled(hasCode);
}

void DTMFForm::CommitEdit() {
    refused_ = false;
    FieldForm::CommitEdit();
}

void DTMFForm::CloseFromButton() {
    if (!refused_) {
        FieldForm::CloseFromButton();
    }
}

void DTMFForm::OnGridKey(QKeyEvent* event) {
    const QChar digit = DigitOfKey(*event);
    if (!IsEnterKey(*event) && digit.isNull()) {
        return;
    }
    edit_->Open();
    if (!digit.isNull()) {
        edit_->PutText(digit);
    }
    event->accept();
}

void DTMFForm::OnEntered() {
    StoreMemory();
    edit_->Close();
    msgAutodial_->MoveTo(edit_->Row() + 1, DigitsColumn);
}

/// Runs at every key, so Escape brings back the cell's text but not the memory: that keeps what was typed last, on
/// purpose.
void DTMFForm::StoreMemory() {
    StoreCode(TheDocument().Image, Memory(edit_->Row()), edit_->Text().toStdU16String());
}

} // namespace zelvor
