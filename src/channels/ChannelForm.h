#pragma once

#include <string>
#include <vector>

#include "controls/ChannelCursor.h"
#include "controls/ChildForm.h"
#include "data/ChannelTable.h"

class QLabel;
class QPushButton;

namespace zelvor {

class ChannelCellEditor;
class EditGrid;
class Document;
struct Services;

/// The channel grid: the rows of the channel table, with a floating editor over the current cell. After every committed
/// edit the row's texts are encoded back into the channel's record.
class ChannelForm : public ChildForm, private ChannelTableObserver, private ChannelCursorObserver {
    Q_OBJECT

public:
    ChannelForm(Document& document, WindowState& windows, Services& services, QWidget* parent = nullptr);
    /// An edit that is still open when the window is unloaded is dropped.
    ~ChannelForm() override;

    /// Moves the cursor; row 1 to 16, column 1 to 9.
    void SelectCell(int row, int column);
    /// Also where the cursor is there already: the dialog may have moved on to another channel.
    void SelectFirstCell();
    /// Hides txtInputBox and comInputStep without committing them.
    void HideEditors();

    [[nodiscard]] std::string_view HelpPage() const override { return "chinfo.htm"; }

signals:
    /// cmdChannelEdit: the channel edit dialog is wanted.
    void ChannelEditRequested();
    /// The channel edit dialog goes with this window.
    void ChannelEditHideRequested();
    void ChannelEditUnloadRequested();

protected:
    void OnFrameClosed() override;

private:
    /// Fills all rows, shows the free area, and makes row 1 the current row.
    void OnDecoded() override;
    /// Brings the window into the language of the table: captions, tone lists, and the title of a new document.
    void OnTranslated() override;
    void OnCellSet(int k, int column) override;
    void OnGridChannel(int n) override { ShowChannelInCaption(n); }
    void OnDialogChannel(int n) override { ShowChannelInCaption(n); }

    void BuildGrid();
    void BuildControls();
    void BuildToneLists();
    void SetTexts();
    void ShowRows();
    /// Names channel n in the title; the cursor stays.
    void ShowChannelInCaption(int n);
    void UpdateFreeArea();
    void TellFreeArea();
    void OnCursorMoved(int row, int column);
    void OnChannelEdit();
    void OnClose();

    Document& document_;
    WindowState& windows_;
    Services& services_;
    EditGrid* channelGrid_ = nullptr;
    ChannelCellEditor* cellEditor_ = nullptr;
    QLabel* labFreeArea_ = nullptr;
    QLabel* labBlankChannel_ = nullptr;
    QLabel* labHint_ = nullptr;
    QPushButton* cmdChannelEdit_ = nullptr;
    QPushButton* cmdClose_ = nullptr;
    QPushButton* cmdHelp_ = nullptr;
    std::vector<std::string> ToneListDec;
    std::vector<std::string> ToneListEnc;
};

} // namespace zelvor
