#pragma once

#include <string>

#include "channels/ChannelEditLists.h"
#include "data/ChannelCodec.h"
#include "data/Fields.h"
#include "text/Text.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QWidget;

namespace zelvor {

class Document;
class FieldList;
class FilteredLineEdit;
class SpinText;
class WindowState;

/// The controls of the channel edit dialog, and where they lie. What they do is the dialog's.
class ChannelEditPanel {
public:
    /// Makes them on the content panel of the window, which owns them, in the current language.
    ChannelEditPanel(const Document& document, const WindowState& windows, QWidget& content);

    SpinText* channel = nullptr; // txtChannel, UpDown1
    FilteredLineEdit* txtRxFreq = nullptr;
    FilteredLineEdit* txtTxFreq = nullptr;
    FieldList* comDecode = nullptr;
    FieldList* comEncode = nullptr;
    FieldList* comSelSignal = nullptr;
    FieldList* comSPMute = nullptr;
    FieldList* comTxPower = nullptr;
    FieldList* comWideNarrow = nullptr;
    FieldList* comBusyLock = nullptr;
    FieldList* comPTTID = nullptr;
    FieldList* comAutoDial = nullptr;
    QCheckBox* chkShift = nullptr;
    QCheckBox* chkScanAdd = nullptr;
    QCheckBox* chkPriorityChannel = nullptr;
    QCheckBox* chkYaKuo = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdHelp = nullptr;

    /// Shows a tone, be it an entry of its list or not.
    static void PutTone(FieldList& list, const std::string& tone);
    /// The entries that ComSPMute and ComBusyLock ought to have by the tone and the signalling shown.
    [[nodiscard]] DependentLists DependentListsNow() const;
    [[nodiscard]] bool AreDependentListsRight() const;
    /// What is shown becomes the texts, SP Unmute and Busy Channel Lockout apart.
    void TakeTexts(ChannelTexts& texts) const;
    /// Where nothing is shown, the entry of a new channel is; the option signalling's only, and then always, where it
    /// is one.
    void ShowDefaults(bool isNew, bool hasPttId);

private:
    [[nodiscard]] bool HasTone() const;
    [[nodiscard]] bool HasSignalling() const;
    void BuildChannel(QWidget& content);
    void BuildFrame(QWidget& content);
    void BuildFields();
    void BuildToneLists();
    void BuildChecks();
    void BuildButtons(QWidget& content);
    void PlaceField(const char* labelName, QWidget* field, const FieldWord& caption);

    const Document& document_;
    const WindowState& windows_;
    QWidget* frame1_ = nullptr;
    QGridLayout* fields_ = nullptr;
};

} // namespace zelvor
