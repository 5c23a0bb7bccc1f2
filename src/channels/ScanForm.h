#pragma once

#include <optional>

#include "controls/FieldForm.h"
#include "data/ChannelPriority.h"
#include "data/ScanFields.h"

namespace zelvor {

class BoundList;
class BoundSpin;
class FieldList;
class FilteredLineEdit;
struct Services;

/// The scan block: priority mode and channel, look back times, revert channel and delays, each stored when its control
/// is left. It shares the priority channel with the channel edit dialog.
class ScanForm : public FieldForm, private ChannelPriorityObserver {
    Q_OBJECT

public:
    ScanForm(Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);
    ~ScanForm() override;

    [[nodiscard]] bool OpensAtOrigin() const override { return false; }
    [[nodiscard]] std::string_view HelpPage() const override { return "scaninfo.htm"; }

private:
    /// The image follows when the box is left.
    void OnPriorityChannel(int n) override;

    void BuildControls();
    void Connect();
    void LoadRevertChannel(std::uint8_t byte);

    void OnModeSelected(int index);
    void ShowMode(std::optional<scan::Mode> mode);
    void RebuildRevertList();
    [[nodiscard]] std::optional<scan::Mode> ShownMode() const;

    void CommitRevertChannel();
    void CommitPriorityChannel();
    [[nodiscard]] int AcceptedPriorityChannel();
    void ShowError();
    void ShowPriorityChannel(int n);

    BoundList* cboPriority_ = nullptr;
    FilteredLineEdit* txtPriorityCH_ = nullptr;
    BoundSpin* lookBackTimeA_ = nullptr;
    BoundSpin* lookBackTimeB_ = nullptr;
    FieldList* cboRevertCH_ = nullptr;
    QString RevertText;     // of the revert list, as the user or the image chose it
    QString PriorityChText; // last accepted text of txtPriorityCH
};

} // namespace zelvor
