#include "channels/ChannelForm.h"

#include <QLabel>
#include <QPushButton>
#include <cmath>

#include "channels/ChannelCaption.h"
#include "channels/ChannelCellEditor.h"
#include "controls/EditGrid.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "help/HelpViewer.h"
#include "platform/LayoutUnits.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

// Twips.
constexpr QSize WindowSize{12000, 6500};
constexpr QRect GridPlace{120, 75, 10650, 4440};

constexpr int HelpContextBase = 4100;

/// Column captions behind the corner's, then the corner; blanks at the end of some are part of the format.
constexpr TextPair GridFormat{
    "^|^RX Frequency|^TX Frequency|^QT/DQT Dec|^QT/DQT Enc|^TX Power|^W/N|^Scan Add|^Opt Signal|^PTT ID;Channel No.",
    "^|^接收频率|^发射频率|^QT/DQT解码|^QT/DQT编码 |^发射功率 |^宽/窄|^扫描添加 |^可选信令 |^PTT ID;信道编号"};

constexpr TextPair HintText{
    "Enter or a click edits a cell, Up and Down step through its values, Esc takes back a frequency.",
    "按回车键或单击可编辑单元格，上下方向键选择数值，Esc 键还原频率。"};

std::vector<int> ColumnWidths(int gridWidth) {
    constexpr double percents[] = {10, 11, 11, 11, 11, 8, 7, 8, 10, 11 + 100.0 / 110};
    std::vector<int> widths;
    for (const double percent : percents) {
        widths.push_back(static_cast<int>(std::lround(gridWidth * percent / 100)));
    }
    return widths;
}

} // namespace

ChannelForm::ChannelForm(Document& document, WindowState& windows, Services& services, QWidget* parent)
    : ChildForm(ChildWindow::Channels, "ChannelForm", WindowSize, parent), document_(document), windows_(windows),
      services_(services) {
    BuildToneLists();
    windows_.Cursor.SetEditChannel(1);
    BuildGrid();
    BuildControls();
    SetCaption(" " + ToQString(windows_.LoadText(Text::ChannelInformationOfChannel1)));
    SetTexts();
    ShowRows();
    setFocusProxy(channelGrid_);
    document_.Channels.Add(*this);
    windows_.Cursor.Add(*this);
}

ChannelForm::~ChannelForm() {
    windows_.Cursor.Remove(*this);
    document_.Channels.Remove(*this);
    cellEditor_->HideEditors();
}

void ChannelForm::BuildGrid() {
    channelGrid_ = new EditGrid(address::ChannelCount, column::Count, Content());
    channelGrid_->setObjectName("ChannelGrid");
    channelGrid_->setGeometry(PixelsOfTwips(GridPlace.x()), PixelsOfTwips(GridPlace.y()),
                              PixelsOfTwips(GridPlace.width()), PixelsOfTwips(GridPlace.height()));
    channelGrid_->setProperty("HelpContextID", HelpContextBase + column::Rx);
    cellEditor_ =
        new ChannelCellEditor(document_, windows_, services_, *channelGrid_, Content(), {ToneListDec, ToneListEnc});
    connect(cellEditor_, &ChannelCellEditor::FrequencyLeft, this, &ChannelForm::UpdateFreeArea);
    connect(channelGrid_, &EditGrid::CursorMoved, this, &ChannelForm::OnCursorMoved);
}

void ChannelForm::BuildControls() {
    const auto label = [this](const char* name, const QRect& place) {
        auto* made = new QLabel(Content());
        made->setObjectName(name);
        made->setGeometry(LaidOut(place));
        return made;
    };
    const auto button = [this](const char* name, int x, int width) {
        auto* made = new QPushButton(Content());
        made->setObjectName(name);
        made->setGeometry(LaidOut(QRect(x, 352, width, 30)));
        made->setAutoDefault(true);
        return made;
    };
    labHint_ = label("LabHint", {8, 308, 710, 20});
    labHint_->setForegroundRole(QPalette::PlaceholderText);
    labFreeArea_ = label("LabFreeArea", {8, 352, 130, 30});
    labBlankChannel_ = label("LabBlankChannel", {142, 352, 60, 30});
    cmdChannelEdit_ = button("cmdChannelEdit", 370, 124);
    cmdClose_ = button("cmdClose", 506, 100);
    cmdHelp_ = button("cmdHelp", 618, 100);
    On(*cmdChannelEdit_, [this] { OnChannelEdit(); });
    On(*cmdClose_, [this] { OnClose(); });
    connect(cmdHelp_, &QPushButton::clicked, this, [this] {
        services_.help.Show({windows_.LanguageFlag, HelpPage()});
    });
}

void ChannelForm::BuildToneLists() {
    ToneListDec = BuildToneList(windows_.LanguageFlag);
    ToneListEnc = BuildToneList(windows_.LanguageFlag);
}

void ChannelForm::SetTexts() {
    const auto text = [this](Text name) { return ToQString(windows_.LoadText(name)); };
    cmdChannelEdit_->setText(text(Text::ChannelEditButton));
    cmdClose_->setText(text(Text::CloseButton));
    cmdHelp_->setText(text(Text::HelpButton));
    labFreeArea_->setText(text(Text::FreeAreaBytes));
    labHint_->setText(ToQString(HintText.In(windows_.LanguageFlag)));
    channelGrid_->SetFormat(ToQString(GridFormat.In(windows_.LanguageFlag)));
    channelGrid_->FitCells(ColumnWidths(PixelsOfTwips(GridPlace.width())));
    channelGrid_->setAccessibleName(text(Text::ChannelInformationTitle).trimmed());
    TellFreeArea();
}

void ChannelForm::OnTranslated() {
    SetTexts();
    SetCaption(ToQString(NewDocumentChannelCaption(windows_.LanguageFlag)));
    BuildToneLists();
}

void ChannelForm::ShowRows() {
    for (int k = 1; k <= address::ChannelCount; ++k) {
        for (int column = 1; column <= column::Count; ++column) {
            channelGrid_->SetText(k, column, ToQString(document_.Channels.CellText(k, column)));
        }
    }
    UpdateFreeArea();
}

void ChannelForm::OnDecoded() {
    ShowRows();
    SelectCell(1, channelGrid_->Column());
}

void ChannelForm::OnCellSet(int k, int column) {
    channelGrid_->SetText(k, column, ToQString(document_.Channels.CellText(k, column)));
    // A frequency that is being typed counts when its editor is left.
    if (column == column::Rx && !cellEditor_->IsTextEditing()) {
        UpdateFreeArea();
    }
}

void ChannelForm::SelectCell(int row, int column) {
    channelGrid_->MoveTo(row, column);
}

void ChannelForm::SelectFirstCell() {
    SelectCell(1, 1);
    OnCursorMoved(1, 1);
}

void ChannelForm::HideEditors() {
    cellEditor_->HideEditors();
}

void ChannelForm::OnCursorMoved(int row, int column) {
    cellEditor_->Leave();
    windows_.Cursor.GoToCell(row, column);
    channelGrid_->setProperty("HelpContextID", HelpContextBase + column);
    UpdateFreeArea();
}

void ChannelForm::ShowChannelInCaption(int n) {
    SetCaption(ToQString(ChannelCaption(windows_.LanguageFlag, n)));
}

void ChannelForm::UpdateFreeArea() {
    labBlankChannel_->setText(QString::number(document_.Channels.FreeBytes()));
    TellFreeArea();
}

void ChannelForm::TellFreeArea() {
    labBlankChannel_->setAccessibleName(ToQString(windows_.LoadText(Text::FreeAreaBytes)) + u' ' +
                                        labBlankChannel_->text());
}

void ChannelForm::OnChannelEdit() {
    emit ChannelEditRequested();
}

void ChannelForm::OnClose() {
    emit ChannelEditUnloadRequested();
    emit HideRequested();
}

void ChannelForm::OnFrameClosed() {
    // A cancelled program exit leaves ExitConfirmed set, and from then on the window really goes.
    if (windows_.ExitConfirmed) {
        emit ChannelEditUnloadRequested();
        emit UnloadRequested();
        return;
    }
    emit ChannelEditHideRequested();
    emit HideRequested();
}

} // namespace zelvor
