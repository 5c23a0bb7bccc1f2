#include "platform/QtPageDevice.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <utility>

#include "platform/QtDialogs.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr double LineWidthTwips = 10;

// Without an explicit choice the toolkit prints to a PDF file where the system has no default printer.
void UseSystemPrinter(QPrinter& printer) {
    const QPrinterInfo preferred = QPrinterInfo::defaultPrinter();
    if (!preferred.isNull()) {
        printer.setPrinterName(preferred.printerName());
    } else if (const auto printers = QPrinterInfo::availablePrinters(); !printers.isEmpty()) {
        printer.setPrinterName(printers.constFirst().printerName());
    }
    printer.setOutputFormat(QPrinter::NativeFormat);
}

void UseFile(QPrinter& printer, const QString& file) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
}

/// The first proportional font with Chinese characters, which have Latin ones too; the usual font where there is none.
QString FamilyWithChinese() {
    for (const QString& family : QFontDatabase::families(QFontDatabase::SimplifiedChinese)) {
        if (QFontDatabase::isSmoothlyScalable(family) && !QFontDatabase::isFixedPitch(family)) {
            return family;
        }
    }
    return QFont().family();
}

// The dialog only chooses: its button must not promise to print.
void NameButtonOk(const QPrintDialog& dialog) {
    if (const auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (QPushButton* ok = buttons->button(QDialogButtonBox::Ok)) {
            ok->setText(QCoreApplication::translate("QPlatformTheme", "OK"));
        }
    }
}

} // namespace

QtPageDevice::QtPageDevice(QString pdfFile) : pdfFile_(std::move(pdfFile)) {}

QtPageDevice::~QtPageDevice() {
    EndDocument(); // the painter's end comes before its printer's
}

bool QtPageDevice::IsAvailable() {
    return PrintsToFile() || !QPrinterInfo::availablePrinters().isEmpty();
}

bool QtPageDevice::PrintsToFile() const {
    return !pdfFile_.isEmpty() || (isChosen_ && !printer_->outputFileName().isEmpty());
}

bool QtPageDevice::ShowSetup() {
    if (!isChosen_) {
        MakePrinter();
    }
    QPrintDialog dialog(printer_.get(), DialogParent());
    dialog.setObjectName(QStringLiteral("dlgPrint"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    NameButtonOk(dialog);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    isChosen_ = true;
    return true;
}

bool QtPageDevice::BeginDocument(std::string_view name) {
    if (painter_.isActive() || !IsAvailable()) {
        return false;
    }
    if (!isChosen_) {
        MakePrinter(); // anew: the system's default printer may be another one by now
    }
    printer_->setDocName(ToQString(name));
    if (!painter_.begin(printer_.get())) {
        return false;
    }
    painter_.setPen(QPen(Qt::black, DotsOf(LineWidthTwips)));
    SetFont({});
    return true;
}

bool QtPageDevice::NewPage() {
    if (printer_->newPage()) {
        return true;
    }
    EndDocument();
    return false;
}

void QtPageDevice::EndDocument() {
    if (painter_.isActive()) {
        painter_.end();
    }
}

double QtPageDevice::PageWidth() const {
    return TwipsOf(printer_->width());
}

double QtPageDevice::PageHeight() const {
    return TwipsOf(printer_->height());
}

void QtPageDevice::SetFont(const PageFont& font) {
    if (family_.isEmpty()) {
        family_ = FamilyWithChinese();
    }
    font_ = QFont(font.family.empty() ? family_ : ToQString(font.family));
    font_.setPointSizeF(font.pointSize);
    font_.setBold(font.bold);
    font_.setStyleStrategy(QFont::PreferNoShaping); // no script of ours needs it, and it takes a tenth of the time
    stretch_ = font.stretch;
    ascent_ = QFontMetricsF(font_, printer_.get()).ascent();
    painter_.setFont(font_);
}

double QtPageDevice::TextWidth(std::string_view text) const {
    return TwipsOf(QFontMetricsF(font_, printer_.get()).horizontalAdvance(ToQString(text))) * stretch_;
}

double QtPageDevice::TextHeight() const {
    return TwipsOf(QFontMetricsF(font_, printer_.get()).height());
}

void QtPageDevice::DrawText(double x, double y, std::string_view text) {
    const QPointF start(DotsOf(x), DotsOf(y) + ascent_);
    if (stretch_ == 1) {
        painter_.drawText(start, ToQString(text));
        return;
    }
    painter_.save();
    painter_.translate(start);
    painter_.scale(stretch_, 1);
    painter_.drawText(QPointF(), ToQString(text));
    painter_.restore();
}

void QtPageDevice::DrawLine(double x1, double y1, double x2, double y2) {
    painter_.drawLine(QPointF(DotsOf(x1), DotsOf(y1)), QPointF(DotsOf(x2), DotsOf(y2)));
}

void QtPageDevice::MakePrinter() {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (pdfFile_.isEmpty()) {
        UseSystemPrinter(*printer_);
    } else {
        UseFile(*printer_, pdfFile_);
    }
}

double QtPageDevice::DotsOf(double twips) const {
    return twips * printer_->resolution() / TwipsPerInch;
}

double QtPageDevice::TwipsOf(double dots) const {
    return dots * TwipsPerInch / printer_->resolution();
}

} // namespace zelvor
