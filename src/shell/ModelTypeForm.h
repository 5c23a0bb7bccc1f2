#pragma once

#include <QDialog>

#include "text/Language.h"

class QComboBox;
class QLayout;

namespace zelvor {

class Document;
struct Services;

/// Choice of the document's variant. Shown modally; OK changes the market byte of the image and nothing else:
/// rebuilding the document is up to who shows the dialog.
class ModelTypeForm : public QDialog {
    Q_OBJECT

public:
    ModelTypeForm(Document& document, Language language, Services& services, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void SelectVariantOfImage();
    void FillRanges(int modelIndex);
    void TakeChoice();
    [[nodiscard]] bool ConfirmClearing();
    void StoreVariant();

    Document& document_;
    const Language language_;
    Services& services_;
    QComboBox* cboModelType_ = nullptr;
    QComboBox* cboFreq_ = nullptr;
    int loadedModel_ = -1; // indexes of both lists as the dialog opened
    int loadedRange_ = -1;
};

} // namespace zelvor
