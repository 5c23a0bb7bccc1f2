#pragma once

#include "controls/FieldForm.h"
#include "data/CorvaneFields.h"

class QKeyEvent;

namespace zelvor {

class BoundSpin;
class CellTextEditor;
class EditGrid;
class TextCellEdit;

/// Corvane signalling: the radio's own fleet and ID, which fill and empty each other, baud rate, timers and side tone,
/// each stored when its control is left; and the list of eight fleets and IDs, stored with every key. Clears
/// OwnIdError when an own number is entered.
class CorvaneForm : public FieldForm {
    Q_OBJECT

public:
    CorvaneForm(Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);

    [[nodiscard]] std::string_view HelpPage() const override { return "corvane.htm"; }

private:
    void BuildFields(QWidget& page);
    [[nodiscard]] int StepOwn(const BoundSpin& box, const NumberField& field, const QString& text, bool up) const;
    [[nodiscard]] int StepFleet(const QString& text, bool up);
    [[nodiscard]] int StepId(const QString& text, bool up);
    void OnOwnCommitted(int step, BoundSpin& other);

    void BuildFleetList(QWidget& page);
    void SetGridTexts();
    void ShowFleetList();
    void OpenEditor();
    void OnGridKey(QKeyEvent* event);
    [[nodiscard]] QChar AcceptInList(QChar entered) const;
    void OnEntered();
    void WriteEntry();

    BoundSpin* fleet_ = nullptr;
    BoundSpin* id_ = nullptr;
    EditGrid* msgFleetList_ = nullptr;
    CellTextEditor* txtFleetList_ = nullptr;
    TextCellEdit* edit_ = nullptr;
};

} // namespace zelvor
