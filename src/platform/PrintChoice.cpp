#include "platform/PrintChoice.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <algorithm>
#include <utility>

#include "platform/NativePrinter.h"
#include "platform/PdfFile.h"
#include "platform/PrintSetupDialog.h"
#include "platform/QtDialogs.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

/// Where a document without a folder has its PDF file.
QString DocumentsFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

} // namespace

PrintChoice::PrintChoice(const QString& pdfFile, PrinterLookUp::Ask ask, std::chrono::milliseconds patience)
    : lookUp_(std::move(ask), patience) {
    if (!pdfFile.isEmpty()) {
        file_ = {pdfFile, PdfFile::UsualLayout(), {}};
    }
}

void PrintChoice::UseLayout(const QPageLayout& layout) {
    if (file_) {
        file_->layout = layout;
    }
}

void PrintChoice::FindTarget(std::function<void(const PageTarget& target)> found) {
    if (file_) {
        found(Target());
        return;
    }
    AskForPrinters([this, found = std::move(found)](bool /*isAnswered*/) { found(Target()); });
}

void PrintChoice::AskForPrinters(std::function<void(bool isAnswered)> told) {
    lookUp_.Start([this, told = std::move(told)](const std::optional<PrinterLookUp::Printers>& printers) {
        printers_ = printers;
        told(printers_.has_value());
    });
}

PageTarget PrintChoice::Target() const {
    using enum PageTarget::Kind;
    if (file_) {
        return {File, FromQString(QDir::toNativeSeparators(file_->file)), QFileInfo::exists(file_->file)};
    }
    if (!printers_) {
        return {.kind = NoAnswer, .name = {}};
    }
    if (isChosen_) {
        return {.kind = Printer, .name = FromQString(printer_->printerName())};
    }
    const InstalledPrinter* usual = UsualPrinter();
    return usual != nullptr ? PageTarget{.kind = Printer, .name = usual->name} : PageTarget{};
}

const InstalledPrinter* PrintChoice::UsualPrinter() const {
    if (!printers_ || printers_->empty()) {
        return nullptr;
    }
    const auto preferred = std::ranges::find_if(*printers_, &InstalledPrinter::isDefault);
    return preferred != printers_->end() ? &*preferred : &printers_->front();
}

bool PrintChoice::ShowSetup(const QString& documentFile) {
    const QString document = QDir::fromNativeSeparators(documentFile);
    return printers_ ? ChooseFromAll(document) : ChooseFile(document);
}

// The file that was chosen for another document keeps its folder and gets this one's name.
QString PrintChoice::FileToPropose(const QString& document) const {
    if (file_ && file_->document == document) {
        return file_->file;
    }
    const QFileInfo info(document);
    const QString folder = file_               ? QFileInfo(file_->file).absolutePath()
                           : info.isAbsolute() ? info.absolutePath()
                                               : DocumentsFolder();
    return QDir(folder).filePath(info.completeBaseName() + QStringLiteral(".pdf"));
}

bool PrintChoice::ChooseFile(const QString& document) {
    const std::optional<QString> file = question_.AskForPdf(FileToPropose(document), true);
    if (!file) {
        return false;
    }
    file_ = {*file, file_ ? file_->layout : PdfFile::UsualLayout(), document};
    return true;
}

bool PrintChoice::ChooseFromAll(const QString& document) {
    settings_.Review(); // the dialog has a file dialog behind one of its buttons
    std::unique_ptr<QPrinter> printer = PrinterForSetup();
    const QPointer<PrintSetupDialog> dialog = new PrintSetupDialog(*printer, *printers_, question_, DialogParent());
    dialog->SetFile(FileToPropose(document));
    if (file_) {
        dialog->StartOnFile(file_->layout);
    }
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) { // its parent went while it was up
        return false;
    }
    const std::unique_ptr<PrintSetupDialog> owner(dialog);
    const bool isFile = printer->outputFormat() == QPrinter::PdfFormat;
    if (!isAccepted || (isFile && printer->outputFileName().isEmpty())) {
        return false;
    }
    if (isFile) {
        file_ = {printer->outputFileName(), printer->pageLayout(), document};
        return true;
    }
    file_.reset();
    isChosen_ = true;
    printer_ = std::move(printer);
    return true;
}

// Always another one than documents are printed on: the dialog changes it even where it is cancelled.
std::unique_ptr<QPrinter> PrintChoice::PrinterForSetup() const {
    const InstalledPrinter* usual = UsualPrinter();
    std::unique_ptr<QPrinter> printer = isChosen_ ? MakePrinter({FromQString(printer_->printerName())})
                                        : usual   ? MakePrinter(*usual)
                                                  : nullptr;
    if (!printer) {
        return std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    if (isChosen_) {
        CopyChoices(*printer_, *printer);
    }
    return printer;
}

QPrinter* PrintChoice::OpenPrinter(const QString& title) {
    if (!isChosen_) {
        const InstalledPrinter* usual = UsualPrinter();
        printer_ = usual != nullptr ? MakePrinter(*usual) : nullptr;
    }
    if (printer_) {
        printer_->setDocName(title);
    }
    return printer_.get();
}

} // namespace zelvor
