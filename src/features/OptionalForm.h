#pragma once

#include <QPointer>
#include <array>

#include "controls/FieldForm.h"

namespace zelvor {

class BoundCheck;
class BoundList;
class BoundRows;
class BoundSpin;
class FilteredLineEdit;

/// The optional features: what the radio has besides its channels, each stored when its control is left, the PTT ID
/// codes at every keystroke. Keeps TxCodeError and TxCodeErrorKind, and the PTT ID of the open channel windows
/// in step with the PTT ID Type. Opening acts on them as a user who chooses what the image holds.
class OptionalForm : public FieldForm {
    Q_OBJECT

public:
    OptionalForm(Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);
    ~OptionalForm() override;

    [[nodiscard]] std::string_view HelpPage() const override { return "optfeatures.htm"; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// txtPTTCode(i) and its label.
    struct CodeBox {
        FilteredLineEdit* box = nullptr;
        QWidget* label = nullptr;
    };

    void BuildGeneral(BoundRows& rows);
    void BuildPttId(QWidget& frame);
    void BuildCode(BoundRows& rows, std::size_t code);
    void BuildVox(QWidget& frame);
    void Connect();
    void Load();

    void EnableScramblerBackup();
    void EnableVox();
    void EnableCode(std::size_t code, bool enabled);

    void OnPttIdSelected();
    void OnTypeSelected();
    void ChooseCorvane();
    void ChooseDtmf();
    void OnTypeLeft();
    void OnFocusMoved(QWidget* to);
    void OnCodeChanged(std::size_t code);

    BoundSpin* tot_ = nullptr;
    BoundCheck* chkScramblerAct_ = nullptr;
    BoundCheck* chkScramblerBackup_ = nullptr;
    BoundList* cboPTTIDType_ = nullptr;
    BoundList* cboPTTID_ = nullptr;
    std::array<CodeBox, 2> PTTCode;
    QWidget* fraVOX_ = nullptr;
    BoundCheck* chkVOXFunc_ = nullptr;
    QPointer<QWidget> focused_; // the last control of the main window that had the focus
};

} // namespace zelvor
