#pragma once

#include <QDialog>

class QKeyEvent;
class QLabel;

namespace zelvor {

class CellTextEditor;
class EditGrid;
class Session;
class TextCellEdit;

/// The memory map: every byte of the image in hexadecimal, to be changed by hand. A service tool that applies no rule
/// of any field. Shown modally; the image changes only by OK, which writes all bytes. Rebuilding the document after a
/// change of the model bytes is up to who shows the dialog.
class CPUForm : public QDialog {
    Q_OBJECT

public:
    explicit CPUForm(Session& session, QWidget* parent = nullptr);
    /// An edit that is still open is dropped.
    ~CPUForm() override;

    void accept() override;

private:
    void BuildGrid();
    void BuildEditor();
    void LayOut();
    void ShowImage();
    void ShowAddress(int row, int column);
    void OpenEditor();
    void OnGridKey(QKeyEvent* event);
    void OnEntered();
    void StoreText();

    Session& session_;
    EditGrid* msgMemory_ = nullptr;
    CellTextEditor* txtMemory_ = nullptr;
    TextCellEdit* edit_ = nullptr;
    QLabel* lblAddr_ = nullptr;
};

} // namespace zelvor
