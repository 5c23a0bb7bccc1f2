#include "platform/QtPageDevice.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr double LineWidthTwips = 10;

/// The first proportional font with Chinese characters, which have Latin ones too; the usual font where there is none.
QString FamilyWithChinese() {
    for (const QString& family : QFontDatabase::families(QFontDatabase::SimplifiedChinese)) {
        if (QFontDatabase::isSmoothlyScalable(family) && !QFontDatabase::isFixedPitch(family)) {
            return family;
        }
    }
    return QFont().family();
}

} // namespace

QtPageDevice::~QtPageDevice() {
    EndDocument(); // the painter's end comes before its paper's
}

void QtPageDevice::FindTarget(std::function<void(const PageTarget& target)> found) {
    choice_.FindTarget(std::move(found));
}

void QtPageDevice::AskForPrinters(std::function<void(bool isAnswered)> told) {
    choice_.AskForPrinters(std::move(told));
}

bool QtPageDevice::ShowSetup(std::string_view documentFile) {
    return choice_.ShowSetup(ToQString(documentFile));
}

bool QtPageDevice::BeginDocument(std::string_view name) {
    if (painter_.isActive()) {
        return false;
    }
    isWritten_ = false;
    if (const std::optional<PdfChoice>& file = choice_.File()) {
        pdf_ = PdfFile::Begin(file->file, file->layout, ToQString(name));
        paper_ = pdf_ ? &pdf_->Paper() : nullptr;
    } else {
        paper_ = choice_.OpenPrinter(ToQString(name));
    }
    if (paper_ == nullptr || !painter_.begin(paper_)) {
        paper_ = nullptr;
        pdf_.reset();
        return false;
    }
    painter_.setPen(QPen(Qt::black, DotsOf(LineWidthTwips)));
    texts_ = std::make_unique<PageTexts>(*paper_);
    SetFont({});
    return true;
}

bool QtPageDevice::NewPage() {
    if (paper_->newPage()) {
        return true;
    }
    EndDocument();
    isWritten_ = false;
    return false;
}

void QtPageDevice::EndDocument() {
    if (!painter_.isActive()) {
        return;
    }
    isWritten_ = painter_.end();
    texts_.reset();
    if (pdf_) {
        isWritten_ = pdf_->Finish() && isWritten_;
        pdf_.reset();
    }
    paper_ = nullptr;
}

double QtPageDevice::PageWidth() const {
    return TwipsOf(paper_->width());
}

double QtPageDevice::PageHeight() const {
    return TwipsOf(paper_->height());
}

void QtPageDevice::SetFont(const PageFont& font) {
    if (family_.isEmpty()) {
        family_ = FamilyWithChinese();
    }
    QFont used(font.family.empty() ? family_ : ToQString(font.family));
    used.setPointSizeF(font.pointSize);
    used.setBold(font.bold);
    used.setStyleStrategy(QFont::PreferNoShaping); // no script of ours needs it, and it takes a tenth of the time
    texts_->SetFont(used);
    stretch_ = font.stretch;
}

double QtPageDevice::TextWidth(std::string_view text) const {
    return TwipsOf(texts_->WidthOf(ToQString(text))) * stretch_;
}

double QtPageDevice::TextHeight() const {
    return TwipsOf(QFontMetricsF(texts_->Font(), paper_).height());
}

void QtPageDevice::DrawText(double x, double y, std::string_view text) {
    const QPointF start(DotsOf(x), DotsOf(y) + texts_->Ascent());
    if (stretch_ == 1) {
        texts_->Draw(painter_, start, ToQString(text));
        return;
    }
    painter_.save();
    painter_.setFont(texts_->Font());
    painter_.translate(start);
    painter_.scale(stretch_, 1);
    painter_.drawText(QPointF(), ToQString(text));
    painter_.restore();
}

void QtPageDevice::DrawLine(double x1, double y1, double x2, double y2) {
    painter_.drawLine(QPointF(DotsOf(x1), DotsOf(y1)), QPointF(DotsOf(x2), DotsOf(y2)));
}

double QtPageDevice::DotsOf(double twips) const {
    return twips * paper_->logicalDpiX() / TwipsPerInch;
}

double QtPageDevice::TwipsOf(double dots) const {
    return dots * TwipsPerInch / paper_->logicalDpiX();
}

} // namespace zelvor
