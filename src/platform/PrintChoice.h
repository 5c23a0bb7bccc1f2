#pragma once

#include <QPageLayout>
#include <QPrinter>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "platform/FileQuestion.h"
#include "platform/PageDevice.h"
#include "platform/PrinterLookUp.h"
#include "platform/ToolkitSettings.h"

namespace zelvor {

/// A PDF file that is printed to.
struct PdfChoice {
    QString file;
    QPageLayout layout;
    QString document; // that the file was chosen for
};

/// What documents are printed on: what was chosen in the set-up dialog, else the system's default printer, else its
/// first one. Its first three functions are those of PageDevice.
class PrintChoice {
public:
    /// With a file that one is chosen already.
    PrintChoice(const QString& pdfFile, PrinterLookUp::Ask ask, std::chrono::milliseconds patience);

    void FindTarget(std::function<void(const PageTarget& target)> found);
    void AskForPrinters(std::function<void(bool isAnswered)> told);
    [[nodiscard]] bool ShowSetup(const QString& documentFile);

    [[nodiscard]] const std::optional<PdfChoice>& File() const { return file_; }
    /// The paper of the file that is chosen.
    void UseLayout(const QPageLayout& layout);
    /// The printer for a document of that title, with its own paper where none was chosen; null where there is none.
    /// It lives until the next one is opened.
    [[nodiscard]] QPrinter* OpenPrinter(const QString& title);

private:
    [[nodiscard]] PageTarget Target() const;
    /// The default one or the first; null where there is none.
    [[nodiscard]] const InstalledPrinter* UsualPrinter() const;
    [[nodiscard]] QString FileToPropose(const QString& document) const;
    [[nodiscard]] bool ChooseFile(const QString& document);
    [[nodiscard]] bool ChooseFromAll(const QString& document);
    [[nodiscard]] std::unique_ptr<QPrinter> PrinterForSetup() const;

    PrinterLookUp lookUp_;
    FileQuestion question_;
    ToolkitSettings settings_;
    std::optional<PrinterLookUp::Printers> printers_; // as last told; nothing where there was no answer
    std::optional<PdfChoice> file_;
    std::unique_ptr<QPrinter> printer_; // made when needed: asking for it takes time
    bool isChosen_ = false;             // printer_ is as the set-up dialog left it
};

} // namespace zelvor
