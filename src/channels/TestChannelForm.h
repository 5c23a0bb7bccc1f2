#pragma once

#include "controls/FieldForm.h"
#include "data/TestFrequencies.h"

class QKeyEvent;

namespace zelvor {

class CellTextEditor;
class EditGrid;
class TextCellEdit;

/// The 16 pairs of test frequencies. A pair has both frequencies or none; when the last one is emptied, the default
/// pairs of the document's market take their place.
class TestChannelForm : public FieldForm {
    Q_OBJECT

public:
    TestChannelForm(Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);
    /// An edit that is still open when the window is unloaded is dropped.
    ~TestChannelForm() override;

    /// Moves the cursor to a cell, row 1 to 16 and column 1 (receive) or 2 (transmit), and opens the editor over it.
    void ShowTestEditor(int row, int col);

    [[nodiscard]] bool OpensAtOrigin() const override { return false; }
    [[nodiscard]] std::string_view HelpPage() const override { return "testfreq.htm"; }

private:
    void BuildGrid();
    void SetTexts();
    void ShowTestChannel(int row);

    void OnCellClicked(int row, int column);
    void OnGridKey(QKeyEvent* event);
    void OnEntered();
    void OnLeft();
    void Commit();
    void EmptyPair(int row, int column);
    void StorePair(int row, int column);
    void CloseFromButton() override;

    EditGrid* msgTestFreq_ = nullptr;
    CellTextEditor* txtTestFreq_ = nullptr;
    TextCellEdit* edit_ = nullptr;
    TestFrequencyBytes SavedBlock; // as it was when the window opened
    bool SkipCellWrite = false;    // the default pairs were filled in, over the emptied cell too
};

} // namespace zelvor
