#pragma once

#include <QDialog>

#include "text/Language.h"

class QKeyEvent;
class QLabel;
class QTableWidgetItem;

namespace zelvor {

class CellTextEditor;
class Document;
class EditGrid;
class TextCellEdit;
struct Services;

/// The memory map: every byte of the image in hexadecimal, to be changed by hand. A service tool that applies no rule
/// of any field. Shown modally; the image changes only by OK, which writes all bytes. Bytes that differ from the image
/// are marked; the Cancel button drops them, Escape and closing the window ask first. Rebuilding the document after a
/// change of the model bytes is up to who shows the dialog.
class CPUForm : public QDialog {
    Q_OBJECT

public:
    CPUForm(Document& document, Language language, Services& services, QWidget* parent = nullptr);
    /// An edit that is still open is dropped.
    ~CPUForm() override;

    void accept() override;
    /// Escape, or the window was closed by its frame.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildGrid();
    void BuildEditor();
    void LayOut();
    void TakeFirstSize();
    void FitGrid();
    /// In which a byte can be read.
    [[nodiscard]] int NarrowestColumn() const;
    void PlaceEditor();
    void ShowImage();
    [[nodiscard]] QString StoredText(int row, int column) const;
    [[nodiscard]] bool IsChanged() const;
    void MarkCell(QTableWidgetItem* cell);
    void ShowAddress(int row, int column);
    void OpenEditor();
    void OnGridKey(QKeyEvent* event);
    void OnEntered();
    void StoreText();

    Document& document_;
    const Language language_;
    Services& services_;
    EditGrid* msgMemory_ = nullptr;
    CellTextEditor* txtMemory_ = nullptr;
    TextCellEdit* edit_ = nullptr;
    QLabel* lblAddr_ = nullptr;
};

} // namespace zelvor
