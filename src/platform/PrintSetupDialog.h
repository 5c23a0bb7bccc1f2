#pragma once

#include <QPageLayout>
#include <QPrintDialog>
#include <QString>
#include <optional>
#include <vector>

#include "platform/InstalledPrinters.h"

class QComboBox;
class QLineEdit;

namespace zelvor {

class FileQuestion;

/// The toolkit's print dialog, in which a printer or a PDF file is chosen for later documents. Its objectName is
/// "dlgPrint". For a PDF file it offers paper, orientation and margins; the rest is the printing system's to do, and
/// cannot be chosen there, and nothing but a file is taken. A printer that is chosen in it comes with its own paper;
/// the one that the dialog starts with keeps the paper that it has.
///
/// On a system that has a dialog of its own, that one is shown as it is.
class PrintSetupDialog : public QPrintDialog {
public:
    /// question: asks for the file behind the button "..."; it lives longer than the dialog.
    PrintSetupDialog(QPrinter& printer, std::vector<InstalledPrinter> printers, FileQuestion& question,
                     QWidget* parent);

    /// The PDF file's name that the dialog starts with.
    void SetFile(const QString& file);
    /// The dialog starts on the PDF file.
    void StartOnFile(const QPageLayout& layout) { fileLayout_ = layout; }

    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void OnPrinterChosen();
    void LookIntoNoFile(FileQuestion& question);
    void Browse(FileQuestion& question);
    void OfferWhatWorks();
    [[nodiscard]] bool IsFileChosen() const;
    [[nodiscard]] bool IsFirstPrinterChosen() const;
    void PrepareProperties(QDialog& properties);

    std::vector<InstalledPrinter> printers_;
    std::optional<QPageLayout> fileLayout_;
    QString firstPrinter_; // that the dialog starts with
    QPageLayout firstLayout_;
    bool isFirstLeft_ = false;
    bool isPaperChosen_ = false; // among the properties of that printer
    // Of the toolkit's; null where it has none of that name.
    QComboBox* printerList_;
    QLineEdit* fileName_;
};

} // namespace zelvor
