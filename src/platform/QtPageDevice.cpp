#include "platform/QtPageDevice.h"

#include <QFontMetricsF>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <utility>

#include "platform/QtDialogs.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr double LineWidthTwips = 10;

// Without an explicit choice the toolkit prints to a PDF file where the system has no default printer.
void UseSystemPrinter(QPrinter& printer) {
    const auto printers = QPrinterInfo::availablePrinters();
    const QPrinterInfo preferred = QPrinterInfo::defaultPrinter();
    if (!preferred.isNull()) {
        printer.setPrinterName(preferred.printerName());
    } else if (!printers.isEmpty()) {
        printer.setPrinterName(printers.constFirst().printerName());
    }
    printer.setOutputFormat(QPrinter::NativeFormat);
}

void UseFile(QPrinter& printer, const QString& file) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
}

} // namespace

QtPageDevice::QtPageDevice(QString pdfFile) : pdfFile_(std::move(pdfFile)) {}

QtPageDevice::~QtPageDevice() {
    EndDocument(); // the painter's end comes before its printer's
}

bool QtPageDevice::IsAvailable() {
    return !pdfFile_.isEmpty() || !QPrinterInfo::availablePrinters().isEmpty();
}

bool QtPageDevice::ShowSetup() {
    if (!IsAvailable()) {
        return false;
    }
    QPrintDialog dialog(&Printer(), DialogParent());
    dialog.setObjectName(QStringLiteral("dlgPrint"));
    dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
    return dialog.exec() == QDialog::Accepted;
}

bool QtPageDevice::BeginDocument(std::string_view name) {
    if (painter_.isActive() || !IsAvailable()) {
        return false;
    }
    Printer().setDocName(ToQString(name));
    if (!painter_.begin(printer_.get())) {
        return false;
    }
    painter_.setPen(QPen(Qt::black, DotsOf(LineWidthTwips)));
    SetFont({});
    return true;
}

void QtPageDevice::NewPage() {
    printer_->newPage();
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
    font_ = QFont();
    if (!font.family.empty()) {
        font_.setFamily(ToQString(font.family));
    }
    font_.setPointSizeF(font.pointSize);
    font_.setBold(font.bold);
    painter_.setFont(font_);
}

double QtPageDevice::TextWidth(std::string_view text) const {
    return TwipsOf(QFontMetricsF(font_, printer_.get()).horizontalAdvance(ToQString(text)));
}

double QtPageDevice::TextHeight() const {
    return TwipsOf(QFontMetricsF(font_, printer_.get()).height());
}

void QtPageDevice::DrawText(double x, double y, std::string_view text) {
    const double ascent = QFontMetricsF(font_, printer_.get()).ascent();
    painter_.drawText(QPointF(DotsOf(x), DotsOf(y) + ascent), ToQString(text));
}

void QtPageDevice::DrawLine(double x1, double y1, double x2, double y2) {
    painter_.drawLine(QPointF(DotsOf(x1), DotsOf(y1)), QPointF(DotsOf(x2), DotsOf(y2)));
}

QPrinter& QtPageDevice::Printer() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (pdfFile_.isEmpty()) {
            UseSystemPrinter(*printer_);
        } else {
            UseFile(*printer_, pdfFile_);
        }
    }
    return *printer_;
}

double QtPageDevice::DotsOf(double twips) const {
    return twips * printer_->resolution() / TwipsPerInch;
}

double QtPageDevice::TwipsOf(double dots) const {
    return dots * TwipsPerInch / printer_->resolution();
}

} // namespace zelvor
