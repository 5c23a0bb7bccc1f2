#pragma once

#include "controls/FieldForm.h"
#include "data/DtmfFields.h"

class QKeyEvent;
class QLabel;

namespace zelvor {

class BoundList;
class DtmfCodeBox;
class EditGrid;
class TextCellEdit;

/// How the radio sends and decodes DTMF digits, its two codes and its autodial memories. The fields are stored when
/// they are left; a memory is stored with each keystroke.
class DTMFForm : public FieldForm {
    Q_OBJECT

public:
    DTMFForm(Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);

    [[nodiscard]] std::string_view HelpPage() const override { return "dtmf.htm"; }

protected:
    void CommitEdit() override;
    /// Not while the code that is being edited is an illegal one.
    void CloseFromButton() override;

private:
    void BuildEncodePage(QWidget& page);
    void BuildDecodePage(QWidget& page);
    QWidget* BuildStunFrame();
    void BuildAutodialPage(QWidget& page);
    void SetGridTexts();
    void Load();

    DtmfCodeBox* MakeCode(const QString& name, const TextField& field);
    void OnInvalidCode();
    void EnableStunType();

    void OnGridKey(QKeyEvent* event);
    void OnEntered();
    void StoreMemory();

    DtmfCodeBox* txtIDCode_ = nullptr;
    DtmfCodeBox* txtStunCode_ = nullptr;
    QLabel* lblStunType_ = nullptr;
    BoundList* cboStunType_ = nullptr;
    EditGrid* msgAutodial_ = nullptr;
    TextCellEdit* edit_ = nullptr;
    bool refused_ = false; // a code, since the last command began
};

} // namespace zelvor
