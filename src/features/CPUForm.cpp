#include "features/CPUForm.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/CellTextEditor.h"
#include "controls/EditGrid.h"
#include "controls/PendingEdit.h"
#include "controls/TextCellEdit.h"
#include "data/Document.h"
#include "platform/LayoutUnits.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr TextPair AddressName{"Address", "地址"};
constexpr TextPair AddressCaption{"Address:", "地址："};
constexpr TextPair ChangedByte{"Changed, was %1", "已更改，原值 %1"};
constexpr TextPair DiscardQuestion{"Discard the changed bytes?", "放弃已更改的字节吗？"};

constexpr int ByteColumns = 16;
constexpr int ByteRows = static_cast<int>(DataImage::Size) / ByteColumns;
constexpr int ByteDigits = 2;

// The grid is 19 column widths wide: two for the address column, one for each byte, one for the scroll bar.
constexpr int GridColumns = 19;
constexpr int AddressColumns = 2;
// Rows in view, with the header.
constexpr int FirstRows = 17;
constexpr int LeastRows = 7;
// Pixels.
constexpr int ColumnWidth = 36;
constexpr int RowHeight = 25;
constexpr int CellPadding = 8;  // of the narrowest column
constexpr int FrameHeight = 40; // of a window, where its title bar is a high one

/// Capital digits of a number below 16^digits.
QString HexText(int number, int digits) {
    return QString::number(number, 16).toUpper().rightJustified(digits, '0');
}

QString RowCaption(int row) {
    return QStringLiteral("%1%2_").arg((row - 1) / 16, 2, 10, QLatin1Char('0')).arg(HexText((row - 1) % 16, 1));
}

QString ColumnCaption(int column) {
    return HexText(column - 1, 1);
}

int AddressOf(int row, int column) {
    return ByteColumns * (row - 1) + column - 1;
}

QChar HexDigit(QChar entered) {
    const QChar digit = entered.toUpper();
    return digit >= u'A' && digit <= u'F' ? digit : Digit(entered);
}

int DigitValue(QChar digit) {
    return digit > u'9' ? digit.unicode() - 55 : digit.unicode() - 48;
}

} // namespace

CPUForm::CPUForm(Document& document, Language language, Services& services, QWidget* parent)
    : QDialog(parent), document_(document), language_(language), services_(services) {
    setObjectName("CPUForm");
    setModal(true);
    setSizeGripEnabled(true);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(ToQString(TableText(language_, Text::MemoryMap)));
    BuildGrid();
    BuildEditor();
    ShowImage();
    connect(msgMemory_, &QTableWidget::itemChanged, this, &CPUForm::MarkCell);
    LayOut();
    TakeFirstSize();
    ShowAddress(msgMemory_->Row(), msgMemory_->Column());
    msgMemory_->setFocus();
}

CPUForm::~CPUForm() {
    edit_->Drop();
}

void CPUForm::BuildGrid() {
    msgMemory_ = new EditGrid(ByteRows, ByteColumns, this);
    msgMemory_->setObjectName("msgMemory");
    msgMemory_->setAccessibleName(windowTitle());
    // Whole cells: one that is half in view would be scrolled away from under its editor.
    msgMemory_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    msgMemory_->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    QStringList captions{QString()};
    for (int column = 1; column <= ByteColumns; ++column) {
        captions.append(ColumnCaption(column));
    }
    QStringList rowCaptions;
    for (int row = 1; row <= ByteRows; ++row) {
        rowCaptions.append(RowCaption(row));
    }
    msgMemory_->SetCaptions(captions, rowCaptions);
    msgMemory_->installEventFilter(this);
    msgMemory_->viewport()->installEventFilter(this);
    connect(msgMemory_, &EditGrid::CursorMoved, this, &CPUForm::ShowAddress);
    connect(msgMemory_, &EditGrid::CellClicked, this, &CPUForm::OpenEditor);
    connect(msgMemory_, &EditGrid::KeyPressed, this, &CPUForm::OnGridKey);
}

void CPUForm::BuildEditor() {
    txtMemory_ = new CellTextEditor(this);
    txtMemory_->setObjectName("txtMemory");
    txtMemory_->SetFilter(HexDigit);
    txtMemory_->SetLengthLimit(ByteDigits);
    edit_ = new TextCellEdit(*msgMemory_, *txtMemory_);
    // A click on a scroll bar would give the focus to the grid, and so store the text that scrolling is to drop.
    msgMemory_->verticalScrollBar()->setFocusProxy(txtMemory_);
    msgMemory_->horizontalScrollBar()->setFocusProxy(txtMemory_);
    connect(edit_, &TextCellEdit::Entered, this, &CPUForm::OnEntered);
    connect(edit_, &TextCellEdit::Left, this, &CPUForm::StoreText);
}

void CPUForm::LayOut() {
    const auto button = [this](const char* name, Text text) {
        auto* made = new QPushButton(ToQString(TableText(language_, text)), this);
        made->setObjectName(name);
        return made;
    };
    auto* cmdOK = button("cmdOK", Text::OkButton);
    auto* cmdCancel = button("cmdCancel", Text::CancelButton);
    connect(cmdOK, &QPushButton::clicked, this, &CPUForm::accept);
    connect(cmdCancel, &QPushButton::clicked, this, [this] { QDialog::reject(); });
    lblAddr_ = new QLabel(this);
    lblAddr_->setObjectName("lblAddr");

    auto* lblAddrCaption = new QLabel(ToQString(AddressCaption.In(language_)), this);
    lblAddrCaption->setObjectName("lblAddrCaption");

    auto* foot = new QHBoxLayout;
    foot->addWidget(lblAddrCaption);
    foot->addWidget(lblAddr_);
    foot->addStretch();
    foot->addWidget(cmdOK);
    foot->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(msgMemory_);
    layout->addLayout(foot);
}

/// Room for a quarter of the memory, as far as the screen has it.
void CPUForm::TakeFirstSize() {
    const int frame = 2 * msgMemory_->frameWidth();
    const QSize wanted(GridColumns * LaidOut(ColumnWidth), FirstRows * LaidOut(RowHeight) + frame);
    const QSize screenRoom = screen()->availableSize() - QSize(0, FrameHeight);
    const QMargins margins = layout()->contentsMargins();
    msgMemory_->setMinimumSize(
        std::min(GridColumns * NarrowestColumn(), screenRoom.width() - margins.left() - margins.right()),
        LeastRows * LaidOut(RowHeight) + frame);
    resize((minimumSizeHint() + wanted - msgMemory_->minimumSize()).boundedTo(screenRoom));
    layout()->activate();
    FitGrid();
}

void CPUForm::FitGrid() {
    const int width = std::max(msgMemory_->width(), GridColumns * NarrowestColumn());
    std::vector<int> widths(ByteColumns + 1, width / GridColumns);
    widths.front() = width * AddressColumns / GridColumns;
    msgMemory_->FitCells(widths, LaidOut(RowHeight));
    msgMemory_->setHorizontalScrollBarPolicy(width > msgMemory_->width() ? Qt::ScrollBarAlwaysOn
                                                                         : Qt::ScrollBarAlwaysOff);
}

int CPUForm::NarrowestColumn() const {
    return std::min(fontMetrics().horizontalAdvance("DD") + CellPadding, LaidOut(ColumnWidth));
}

void CPUForm::PlaceEditor() {
    if (edit_->IsOpen()) {
        txtMemory_->setGeometry(msgMemory_->CellRect(edit_->Row(), edit_->Column()));
    }
}

bool CPUForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == msgMemory_ && event->type() == QEvent::Resize) {
        FitGrid();
    } else if (watched == msgMemory_->viewport() &&
               (event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
        PlaceEditor();
    }
    return QDialog::eventFilter(watched, event);
}

QString CPUForm::StoredText(int row, int column) const {
    return HexText(document_.Image.At(AddressOf(row, column)), ByteDigits);
}

void CPUForm::ShowImage() {
    for (int row = 1; row <= ByteRows; ++row) {
        for (int column = 1; column <= ByteColumns; ++column) {
            msgMemory_->SetText(row, column, StoredText(row, column));
        }
    }
}

bool CPUForm::IsChanged() const {
    for (int row = 1; row <= ByteRows; ++row) {
        for (int column = 1; column <= ByteColumns; ++column) {
            if (msgMemory_->Text(row, column) != StoredText(row, column)) {
                return true;
            }
        }
    }
    return false;
}

void CPUForm::MarkCell(QTableWidgetItem* cell) {
    const QString stored = StoredText(cell->row() + 1, cell->column() + 1);
    const bool changed = cell->text() != stored;
    const QSignalBlocker quiet(msgMemory_); // a mark is a change of the cell, too
    QFont font = msgMemory_->font();
    font.setBold(changed);
    cell->setFont(font);
    cell->setForeground(changed ? palette().link() : QBrush());
    const QString told = changed ? ToQString(ChangedByte.In(language_)).arg(stored) : QString();
    cell->setToolTip(told);
    cell->setData(Qt::AccessibleDescriptionRole, told);
}

void CPUForm::ShowAddress(int row, int column) {
    lblAddr_->setText(RowCaption(row).left(3) + ColumnCaption(column));
    lblAddr_->setAccessibleName(ToQString(AddressName.In(language_)) + u' ' + lblAddr_->text());
}

void CPUForm::OpenEditor() {
    edit_->Open();
    txtMemory_->setAccessibleName(lblAddr_->accessibleName());
}

void CPUForm::OnGridKey(QKeyEvent* event) {
    if (IsEnterKey(*event)) {
        OpenEditor();
        event->accept();
        return;
    }
    const QChar digit = HexDigit(TypedCharacter(*event));
    if (!digit.isNull()) {
        OpenEditor();
        edit_->PutText(digit);
        event->accept();
    }
}

void CPUForm::OnEntered() {
    StoreText();
    edit_->Close();
    if (edit_->Column() < ByteColumns) {
        msgMemory_->MoveTo(edit_->Row(), edit_->Column() + 1);
    } else {
        msgMemory_->MoveTo(edit_->Row() + 1, 1); // stays on the very last cell
    }
}

void CPUForm::StoreText() {
    const QString text = edit_->Text();
    msgMemory_->SetText(edit_->Row(), edit_->Column(),
                        text.isEmpty() ? QStringLiteral("FF") : text.rightJustified(ByteDigits, '0'));
}

void CPUForm::accept() {
    CommitPendingEdit(*this);
    for (int row = 1; row <= ByteRows; ++row) {
        for (int column = 1; column <= ByteColumns; ++column) {
            const QString text = msgMemory_->Text(row, column);
            const int value = DigitValue(text.at(0)) * 16 + DigitValue(text.at(1));
            document_.Image.Set(AddressOf(row, column), static_cast<std::uint8_t>(value));
        }
    }
    QDialog::accept();
}

void CPUForm::reject() {
    if (IsChanged() && services_.messages.Show({FromQString(windowTitle()), std::string(DiscardQuestion.In(language_)),
                                                MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::No}) !=
                           MessageAnswer::Yes) {
        return;
    }
    QDialog::reject();
}

} // namespace zelvor
