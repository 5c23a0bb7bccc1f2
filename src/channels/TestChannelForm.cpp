#include "channels/TestChannelForm.h"

#include <QKeyEvent>

#include "channels/FrequencyEntry.h"
#include "controls/CellTextEditor.h"
#include "controls/EditGrid.h"
#include "controls/TextCellEdit.h"
#include "platform/LayoutUnits.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

// Twips.
constexpr QSize WindowSize{7440, 6480};
constexpr QRect GridPlace{120, 120, 7200, 5640};

constexpr int ReceiveColumn = 1;
constexpr int TransmitColumn = 2;
constexpr int FrequencyLength = 9; // "000.00000"

constexpr TextPair GridFormat{"^Channel|> RX [MHz]|> TX [MHz]", "^信道|> 接收 [MHz]|> 发射 [MHz]"};
constexpr TextPair ChangedText{
    "Test Frequency data have changed.\nplease execute write to radio before entering into Test Mode.",
    "测试频率数据已更改。\n在进入测试模式之前执行\"向对讲机写入数据\"。"};

constexpr int OtherColumn(int column) {
    return column == ReceiveColumn ? TransmitColumn : ReceiveColumn;
}

QRect PixelRect(const QRect& twips) {
    return {PixelsOfTwips(twips.x()), PixelsOfTwips(twips.y()), PixelsOfTwips(twips.width()),
            PixelsOfTwips(twips.height())};
}

} // namespace

TestChannelForm::TestChannelForm(Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::TestFrequency, "TestChannelForm", WindowSize, {}, Text::TestFrequencyTitle, document,
                windows, services, parent),
      SavedBlock(TestFrequencyBlock(document.Image)) {
    Content()->setObjectName("picTestFreq");
    Panel()->resize(Panel()->width(), PixelsOfTwips(GridPlace.y() + GridPlace.height()));
    BuildGrid();
    LoadFields();
    SetTexts();
    for (int row = 1; row <= TestChannelCount; ++row) {
        ShowTestChannel(row);
    }
    setFocusProxy(msgTestFreq_);
}

TestChannelForm::~TestChannelForm() {
    edit_->Drop();
}

void TestChannelForm::BuildGrid() {
    msgTestFreq_ = new EditGrid(TestChannelCount, TransmitColumn, Panel());
    msgTestFreq_->setObjectName("msgTestFreq");
    msgTestFreq_->setGeometry(PixelRect(GridPlace));
    txtTestFreq_ = new CellTextEditor(Panel());
    txtTestFreq_->setObjectName("txtTestFreq");
    txtTestFreq_->setMaxLength(FrequencyLength);
    txtTestFreq_->SetFilter(DigitOrPoint);
    edit_ = new TextCellEdit(*msgTestFreq_, *txtTestFreq_);
    connect(msgTestFreq_, &EditGrid::CellClicked, this, &TestChannelForm::OnCellClicked);
    connect(msgTestFreq_, &EditGrid::KeyPressed, this, &TestChannelForm::OnGridKey);
    connect(edit_, &TextCellEdit::Entered, this, &TestChannelForm::OnEntered);
    connect(edit_, &TextCellEdit::Left, this, &TestChannelForm::OnLeft);
}

void TestChannelForm::SetTexts() {
    msgTestFreq_->SetFormat(ToQString(GridFormat.In(CurrentLanguage())));
    const int eighth = PixelsOfTwips(GridPlace.width()) / 8;
    msgTestFreq_->FitCells({eighth, 3 * eighth, 3 * eighth});
    msgTestFreq_->setAccessibleName(LoadText(Text::TestFrequency));
}

void TestChannelForm::ShowTestChannel(int row) {
    const TestFrequencyTexts texts = ReadTestChannel(TheDocument().Image, row);
    msgTestFreq_->SetText(row, ReceiveColumn, ToQString(texts.receive));
    msgTestFreq_->SetText(row, TransmitColumn, ToQString(texts.transmit));
}

void TestChannelForm::ShowTestEditor(int row, int col) {
    msgTestFreq_->MoveTo(row, col);
    txtTestFreq_->setAccessibleName(msgTestFreq_->horizontalHeaderItem(col - 1)->text().trimmed());
    edit_->Open();
}

void TestChannelForm::OnCellClicked(int row, int column) {
    const bool startsPair = column == TransmitColumn && msgTestFreq_->Text(row, TransmitColumn).isEmpty();
    ShowTestEditor(row, startsPair ? ReceiveColumn : column);
}

void TestChannelForm::OnGridKey(QKeyEvent* event) {
    const int row = msgTestFreq_->Row();
    const int column = msgTestFreq_->Column();
    if (IsEnterKey(*event)) {
        ShowTestEditor(row, msgTestFreq_->Text(row, ReceiveColumn).isEmpty() ? ReceiveColumn : column);
        event->accept();
        return;
    }
    const QChar character = DigitOrPoint(TypedCharacter(*event));
    if (!character.isNull()) {
        ShowTestEditor(row, column);
        edit_->PutText(character);
        event->accept();
    }
}

void TestChannelForm::OnEntered() {
    const int row = edit_->Row();
    const int column = edit_->Column();
    Commit();
    edit_->Close();
    if (!SkipCellWrite) {
        msgTestFreq_->SetText(row, column, edit_->Text());
    }
    SkipCellWrite = false;
    if (column == ReceiveColumn) {
        msgTestFreq_->MoveTo(row, TransmitColumn);
    } else {
        msgTestFreq_->MoveTo(row + 1, ReceiveColumn);
    }
}

void TestChannelForm::OnLeft() {
    // Leaving a cell as it was stores nothing: its bytes, or an empty table's default, are not to change by a look at
    // it.
    if (edit_->IsChanged()) {
        Commit();
        SkipCellWrite = false;
    }
}

void TestChannelForm::Commit() {
    if (edit_->Text().isEmpty()) {
        EmptyPair(edit_->Row(), edit_->Column());
    } else {
        StorePair(edit_->Row(), edit_->Column());
    }
    if (AreTestChannelsEmpty(TheDocument().Image)) {
        RestoreDefaultTestFrequencies(TheDocument().Image);
        SkipCellWrite = true;
        for (int row = 1; row <= DefaultTestChannelCount; ++row) {
            ShowTestChannel(row);
        }
    }
}

void TestChannelForm::EmptyPair(int row, int column) {
    msgTestFreq_->SetText(row, OtherColumn(column), QString());
    EraseTestChannel(TheDocument().Image, row);
}

void TestChannelForm::StorePair(int row, int column) {
    const QString result = ToQString(EnterFrequency(TheDocument().Image, FromQString(edit_->Text()), TheServices(),
                                                    CurrentLanguage(), commontexts::Warning)
                                         .text);
    edit_->PutText(result);
    if (msgTestFreq_->Text(row, OtherColumn(column)).isEmpty()) {
        msgTestFreq_->SetText(row, OtherColumn(column), result);
    }
    WriteTestChannel(
        TheDocument().Image, row,
        {FromQString(msgTestFreq_->Text(row, ReceiveColumn)), FromQString(msgTestFreq_->Text(row, TransmitColumn))});
}

/// The warning comes with the button alone, on purpose.
void TestChannelForm::CloseFromButton() {
    if (TestFrequencyBlock(TheDocument().Image) != SavedBlock) {
        const Language language = CurrentLanguage();
        TheServices().messages.Show({std::string(commontexts::Warning.In(language)),
                                     std::string(ChangedText.In(language)), MessageIcon::Exclamation,
                                     MessageButtons::Ok, MessageAnswer::Ok});
    }
    emit UnloadRequested();
}

} // namespace zelvor
