#include "platform/PrintSetupDialog.h"

#include <QAbstractButton>
#include <QChildEvent>
#include <QComboBox>
#include <QCompleter>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QPageSize>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QTabWidget>
#include <algorithm>
#include <utility>

#include "platform/FileQuestion.h"
#include "platform/NativePrinter.h"
#include "platform/ScreenRoom.h"
#include "platform/ScrolledDialog.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

/// Copies, reverse order, page range and both sides of the paper, in the dialog itself.
constexpr const char* OptionTabs = "tabs";

/// Page, and behind it the jobs of the printing system.
constexpr int PageTab = 0;
constexpr const char* PaperList = "pageSizeCombo";

QPushButton* ButtonOk(const QPrintDialog& dialog) {
    const auto* buttons = dialog.findChild<QDialogButtonBox*>();
    return buttons != nullptr ? buttons->button(QDialogButtonBox::Ok) : nullptr;
}

// The dialog only chooses: its button must not promise to print.
void NameButtonOk(const QPrintDialog& dialog) {
    if (QPushButton* ok = ButtonOk(dialog)) {
        ok->setText(QCoreApplication::translate("QPlatformTheme", "OK"));
    }
}

/// A pipe, a device or the like, also behind a link. The toolkit has words of its own for a folder.
bool IsSpecialFile(const QString& file) {
    const QFileInfo info(file);
    return info.exists() && !info.isFile() && !info.isDir();
}

void LeaveOnlyThePage(const QDialog& properties) {
    if (auto* tabs = properties.findChild<QTabWidget*>()) {
        for (int tab = PageTab + 1; tab < tabs->count(); ++tab) {
            tabs->setTabEnabled(tab, false);
        }
    }
}

void SelectPaper(const QDialog& properties, const QPageSize& paper) {
    auto* papers = properties.findChild<QComboBox*>(QLatin1String(PaperList));
    for (int i = 0; papers != nullptr && i < papers->count(); ++i) {
        if (papers->itemData(i).value<QPageSize>().isEquivalentTo(paper)) {
            papers->setCurrentIndex(i);
            return;
        }
    }
}

} // namespace

PrintSetupDialog::PrintSetupDialog(QPrinter& printer, std::vector<InstalledPrinter> printers, FileQuestion& question,
                                   QWidget* parent)
    : QPrintDialog(&printer, parent), printers_(std::move(printers)), firstPrinter_(printer.printerName()),
      firstLayout_(printer.pageLayout()), printerList_(findChild<QComboBox*>(QStringLiteral("printers"))),
      fileName_(findChild<QLineEdit*>(QStringLiteral("filename"))) {
    setObjectName(QStringLiteral("dlgPrint"));
    setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    NameButtonOk(*this);
    KeepOnScreen(*this);
    if (fileName_ != nullptr) {
        fileName_->installEventFilter(this);
        connect(fileName_, &QLineEdit::textChanged, this, &PrintSetupDialog::OfferWhatWorks);
        LookIntoNoFile(question);
    }
}

// The toolkit completes the name from a list of files of its own, and has a file dialog of its own.
void PrintSetupDialog::LookIntoNoFile(FileQuestion& question) {
    const QCompleter* completer = fileName_->completer();
    if (auto* files = qobject_cast<QFileSystemModel*>(completer != nullptr ? completer->model() : nullptr)) {
        files->setIconProvider(&question.Icons());
    }
    if (auto* browse = findChild<QAbstractButton*>(QStringLiteral("fileBrowser"))) {
        disconnect(browse, &QAbstractButton::clicked, nullptr, nullptr);
        connect(browse, &QAbstractButton::clicked, this, [this, &question] { Browse(question); });
    }
}

// Whether it may be replaced is asked at OK, as for a name that is typed.
void PrintSetupDialog::Browse(FileQuestion& question) {
    const QPointer<PrintSetupDialog> self = this;
    const std::optional<QString> file = question.AskForPdf(fileName_->text(), false);
    if (self && file) {
        fileName_->setText(*file);
        printerList_->setCurrentIndex(printerList_->count() - 1);
    }
}

void PrintSetupDialog::SetFile(const QString& file) {
    if (fileName_ != nullptr) {
        fileName_->setText(file);
    }
}

bool PrintSetupDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == fileName_ && event->type() == QEvent::EnabledChange) {
        OfferWhatWorks();
    }
    return QPrintDialog::eventFilter(watched, event);
}

// It grows by its options. Not before its lists are filled: they keep the least width that they were first asked for.
bool PrintSetupDialog::event(QEvent* event) {
    if (event->type() == QEvent::Polish) {
        ScrollOnScreen(*this);
    }
    return QPrintDialog::event(event);
}

// The dialog of the properties is made when it is asked for.
void PrintSetupDialog::childEvent(QChildEvent* event) {
    QPrintDialog::childEvent(event);
    auto* properties = event->polished() ? qobject_cast<QDialog*>(event->child()) : nullptr;
    if (properties != nullptr) {
        PrepareProperties(*properties);
    }
}

void PrintSetupDialog::PrepareProperties(QDialog& properties) {
    ScrollOnScreen(properties);
    KeepOnScreen(properties);
    if (IsFileChosen()) {
        LeaveOnlyThePage(properties);
    } else if (IsFirstPrinterChosen()) {
        SelectPaper(properties, firstLayout_.pageSize());
        connect(&properties, &QDialog::accepted, this, [this] { isPaperChosen_ = true; });
    }
}

// The toolkit gives a printer its usual paper whatever it had, unless it is chosen among the properties.
void PrintSetupDialog::accept() {
    QPrintDialog::accept();
    if (result() == Accepted && IsFirstPrinterChosen() && !isPaperChosen_) {
        printer()->setPageLayout(firstLayout_);
    }
}

// The toolkit puts the PDF file at the end of its list when the dialog is shown.
void PrintSetupDialog::showEvent(QShowEvent* event) {
    QPrintDialog::showEvent(event);
    if (printerList_ == nullptr || fileName_ == nullptr || event->spontaneous()) {
        return;
    }
    if (fileLayout_) {
        printerList_->setCurrentIndex(printerList_->count() - 1);
        printer()->setPageLayout(*fileLayout_);
    }
    OfferWhatWorks();
    connect(printerList_, &QComboBox::currentIndexChanged, this, &PrintSetupDialog::OnPrinterChosen,
            Qt::UniqueConnection);
}

void PrintSetupDialog::OnPrinterChosen() {
    isFirstLeft_ = true;
    const std::string name = FromQString(printerList_->currentText());
    const auto chosen = std::ranges::find(printers_, name, &InstalledPrinter::name);
    if (!IsFileChosen() && chosen != printers_.end()) {
        printer()->setPageOrientation(QPageLayout::Portrait);
        UseOwnPaper(*printer(), *chosen);
    }
}

// The toolkit opens the file at OK to see whether it can be written, and would wait for a pipe's other end.
void PrintSetupDialog::OfferWhatWorks() {
    if (auto* tabs = findChild<QTabWidget*>(QLatin1String(OptionTabs))) {
        tabs->setEnabled(!IsFileChosen());
    }
    if (QPushButton* ok = ButtonOk(*this)) {
        ok->setEnabled(!IsFileChosen() || !IsSpecialFile(fileName_->text()));
    }
}

// The toolkit lets the file's name be edited exactly then.
bool PrintSetupDialog::IsFileChosen() const {
    return fileName_ != nullptr && fileName_->isEnabled();
}

bool PrintSetupDialog::IsFirstPrinterChosen() const {
    return printerList_ != nullptr && !IsFileChosen() && !isFirstLeft_ && printerList_->currentText() == firstPrinter_;
}

} // namespace zelvor
