#pragma once

#include <string>

#include "controls/ChildForm.h"
#include "data/ChannelCursor.h"
#include "data/ChannelPriority.h"
#include "data/ChannelTable.h"
#include "data/Fields.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace zelvor {

class FieldList;
class FilteredLineEdit;
class SpinText;
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
    ChannelEditForm(Session& session, Services& services, QWidget* parent = nullptr);
    /// An edit that is still open when the window is unloaded is dropped.
    ~ChannelEditForm() override;

    /// Shows channel Session::EditChannel, with the text of txtChannel selected and the focus on it.
    void OpenOnEditChannel();
    /// Lets txtChannel and UpDown1 name a channel (1 to 16), which is then shown.
    void GoToChannel(int n);
    /// The channel in txtChannel.
    [[nodiscard]] int Channel() const { return channel_; }
    /// Writes the working texts and the Scan Add mark into grid row and record of the channel.
    void CommitDialog();

    void CloseFromFrame() override;
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

    void BuildChannel();
    void BuildFrame();
    void BuildFields();
    void BuildToneLists();
    void BuildChecks();
    void BuildButtons();
    void PlaceField(const char* labelName, QLabel*& label, QWidget* field, const FieldWord& caption);
    void SetTexts();
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
    void PutTone(FieldList& list, const std::string& tone);
    void BuildDependentLists();
    [[nodiscard]] bool AreDependentListsRight() const;
    [[nodiscard]] bool HasTone() const;
    [[nodiscard]] bool HasSignalling() const;

    void OnReceiveText(const QString& text);
    void OnReceiveLeft();
    void CompleteFields();
    void CompleteDependentLists();
    void CompleteNewChannel();
    void OnTransmitText(const QString& text);
    void OnTransmitLeft();
    void OnToneLeft(FieldList& list);
    void OnSignalLeft();
    void OnClose();

    void OnToneSelected(FieldList& list);
    void OnSignalSelected();
    void RebuildDependentLists();
    void StoreSpMute();
    void StoreBusyLock();
    void StoreAutoDial();
    void StoreShift();
    void StoreCompander();
    void StoreScanAdd();
    void StorePriority(bool checked);
    void StoreCell(const FieldList& list, std::string ChannelTexts::*field, int column);
    void OnPttIdFocus();

    /// Whether leaving or choosing may still store something: not once the window is being closed.
    [[nodiscard]] bool IsLive() const;
    [[nodiscard]] bool IsOpen() const;
    [[nodiscard]] bool HasReceive() const;
    [[nodiscard]] ChannelTexts& Texts();
    [[nodiscard]] std::uint8_t RecordByte(int j) const;
    void SetRecordByte(int j, std::uint8_t value);

    Session& session_;
    Services& services_;

    QLabel* labChannel_ = nullptr;
    SpinText* channelSpin_ = nullptr;
    QWidget* frame1_ = nullptr;
    QGridLayout* fields_ = nullptr;
    QLabel* labRxFreq_ = nullptr;
    FilteredLineEdit* txtRxFreq_ = nullptr;
    QLabel* labTxFreq_ = nullptr;
    FilteredLineEdit* txtTxFreq_ = nullptr;
    QLabel* labQTdec_ = nullptr;
    FieldList* comDecode_ = nullptr;
    QLabel* labQTenc_ = nullptr;
    FieldList* comEncode_ = nullptr;
    QLabel* labOptional_ = nullptr;
    FieldList* comSelSignal_ = nullptr;
    QLabel* labSPmute_ = nullptr;
    FieldList* comSPMute_ = nullptr;
    QLabel* labTxPower_ = nullptr;
    FieldList* comTxPower_ = nullptr;
    QLabel* labWN_ = nullptr;
    FieldList* comWideNarrow_ = nullptr;
    QLabel* labBusyLock_ = nullptr;
    FieldList* comBusyLock_ = nullptr;
    QLabel* labPTTID_ = nullptr;
    FieldList* comPTTID_ = nullptr;
    QLabel* labAutoDial_ = nullptr;
    FieldList* comAutoDial_ = nullptr;
    QCheckBox* chkShift_ = nullptr;
    QCheckBox* chkScanAdd_ = nullptr;
    QCheckBox* chkPriorityChannel_ = nullptr;
    QCheckBox* chkYaKuo_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdHelp_ = nullptr;

    int channel_ = 1;
    bool showing_ = false; // controls are being given values, which nobody entered
    bool WasBlank = false; // txtRxFreq was empty when it took the focus
};

} // namespace zelvor
