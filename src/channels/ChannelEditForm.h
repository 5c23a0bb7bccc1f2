#pragma once

#include <string>

#include "channels/ChannelEditPanel.h"
#include "channels/ChannelEditor.h"
#include "controls/ChannelCursor.h"
#include "controls/ChildForm.h"
#include "data/ChannelPriority.h"
#include "data/ChannelTable.h"

namespace zelvor {

class FieldList;
class Document;
struct Services;

/// The channel edit dialog: one channel with every field of its record, beside the grid and in step with it. Edits
/// apply at once; the button only closes.
///
/// Grid and dialog share the working texts of the channel table. What code shows here stores nothing: only what the
/// user does in this window, or code does through a control's own setters, reaches the image. A dialog that does not
/// count as open listens to nothing.
class ChannelEditForm : public ChildForm,
                        private ChannelTableObserver,
                        private ChannelCursorObserver,
                        private ChannelPriorityObserver {
    Q_OBJECT

public:
    ChannelEditForm(Document& document, WindowState& windows, Services& services, QWidget* parent = nullptr);
    ~ChannelEditForm() override;

    /// Shows channel ChannelCursor::EditChannel, with the text of txtChannel selected and the focus on it.
    void OpenOnEditChannel();
    /// Lets txtChannel and UpDown1 name a channel (1 to 16), which is then shown.
    void GoToChannel(int n);
    /// The channel in txtChannel.
    [[nodiscard]] int Channel() const { return channel_; }
    /// Writes the working texts and the Scan Add mark into row and record of the channel; blanksTexts: after emptying
    /// the nine that have a column.
    void CommitDialog(bool blanksTexts = false);

    [[nodiscard]] std::string_view HelpPage() const override { return "chedit.htm"; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnDecoded() override;
    void OnGridChannel(int n) override;
    void OnRowOpened(int k) override;
    void OnRowCleared(int k) override;
    void OnTextEdited(int k, int column) override;
    void OnPttIdTypeChosen(bool isOn) override;
    void OnPttIdsRefreshed() override;
    void OnPriorityMode() override;
    void OnPriorityChannel(int n) override;

    void ConnectFields();
    void ConnectLists();

    void OnChannelText(const QString& text);
    /// Enables what a programmed channel has. Acts only while the window counts as open.
    void EnableChannelControls();
    /// Empties and disables all but txtRxFreq and txtChannel.
    void BlankChannelDialog();
    /// Selects the entries of ComSPMute and ComBusyLock that the record tells.
    void SelectMuteEntries();
    void ShowChannel(int n);
    void ShowProgrammedChannel();
    void ShowOptSignal();
    void ShowPttId();
    void ShowRecordFields();
    void ShowReceiveCommit();
    void ShowTransmitCommit();
    void ShowCellChoice(int column);
    void EnablePriorityMark();
    void ShowPriorityMark(int n);
    void TakePttId();
    void EnableEncode(bool enabled);
    void BuildDependentLists();

    void OnReceiveText(const QString& text);
    void OnReceiveLeft();
    /// A typed frequency as it is to be stored; an entry out of range is reported.
    [[nodiscard]] std::string Enter(const std::string& text) const;
    void CompleteDependentLists();
    void CompleteNewChannel();
    void OnTransmitText(const QString& text);
    void OnTransmitLeft();
    void OnToneLeft(FieldList& list);
    void OnSignalLeft();
    void OnClose();

    void OnToneSelected(FieldList& list);
    void OnSignalSelected();
    void Choose(const FieldList& list, int column);
    [[nodiscard]] int ToneColumn(const FieldList& list) const;
    void RebuildDependentLists();
    void StoreSpMute();
    void StoreBusyLock();
    void StorePriority(bool checked);
    void OnPttIdFocus();

    /// Whether leaving or choosing may still store something: not once the window is being closed.
    [[nodiscard]] bool IsLive() const;
    [[nodiscard]] bool IsOpen() const;
    [[nodiscard]] bool HasReceive() const;
    [[nodiscard]] ChannelTexts& Texts();

    Document& document_;
    WindowState& windows_;
    Services& services_;
    ChannelEditor editor_;
    ChannelEditPanel fields_;
    int channel_ = 1;
    bool showing_ = false; // controls are being given values, which nobody entered
    bool WasBlank = false; // txtRxFreq was empty when it took the focus
};

} // namespace zelvor
