#pragma once

#include <string>
#include <vector>

#include "channels/ChannelWindows.h"
#include "controls/ChildForm.h"

class QLabel;
class QPushButton;

namespace zelvor {

class ChannelCellEditor;
class EditGrid;
struct Services;

/// The channel grid: the 16 channels of the document as texts, with a floating editor over the current cell. After
/// every committed edit the row's texts are encoded back into the channel's record.
class ChannelForm : public ChildForm {
    Q_OBJECT

public:
    ChannelForm(Session& session, Services& services, ChannelWindows& windows, QWidget* parent = nullptr);
    /// An edit that is still open when the window is unloaded is dropped.
    ~ChannelForm() override;

    /// Decodes all channels of the image into the grid, shows the free area, and makes row 1 the current row.
    void DecodeImageToGrid();
    /// Writes the shared working texts into grid row k (1 to 16) and channel k into the image.
    void EncodeChannelRow(int k);
    /// Blanks the shared working texts, and row and record of a channel (1 to 16). Its Scan Add bit stays.
    void ClearChannelData(int row);
    /// Moves the cursor; row 1 to 16, column 1 to 9.
    void SelectCell(int row, int column);
    /// Also where the cursor is there already: the dialog may have moved on to another channel.
    void SelectFirstCell();
    /// A cell's text, row 1 to 16 and column 1 to 9. Setting it changes neither working texts nor image.
    [[nodiscard]] QString CellText(int row, int column) const;
    void SetCellText(int row, int column, const QString& text);
    /// Names channel n in the title; the cursor stays.
    void ShowChannelInCaption(int n);
    /// Shows the bytes that the blank rows leave.
    void UpdateFreeArea();
    /// Brings the window into the language that the program has changed to: captions, words in the cells, tone lists,
    /// and the title of a new document. The image stays.
    void SwitchLanguage();
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
    void BuildGrid();
    void BuildControls();
    void BuildToneLists();
    void SetTexts();
    void TranslateCells();
    void OnCursorMoved(int row, int column);
    void OnChannelEdit();
    void OnClose();
    [[nodiscard]] ChannelEditForm* OpenDialog() const;

    Session& session_;
    Services& services_;
    ChannelWindows& windows_;
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
