#include "platform/PdfFile.h"

#include <QFileInfo>
#include <QMarginsF>

namespace zelvor {

namespace {

constexpr int DotsPerInch = 1200;
constexpr double MarginPoints = 10;

/// Also where a link leads to it.
bool IsSomethingElse(const QString& file) {
    const QFileInfo info(file);
    return info.exists() && !info.isFile();
}

} // namespace

PdfFile::PdfFile(const QString& file) : file_(file) {
    file_.setDirectWriteFallback(true); // the folder may not take a second file
}

std::unique_ptr<PdfFile> PdfFile::Begin(const QString& file, const QPageLayout& layout, const QString& title) {
    if (IsSomethingElse(file)) {
        return nullptr;
    }
    std::unique_ptr<PdfFile> pdf(new PdfFile(file));
    if (!pdf->file_.open(QIODevice::WriteOnly)) {
        return nullptr;
    }
    pdf->writer_.setResolution(DotsPerInch);
    pdf->writer_.setPageLayout(layout);
    pdf->writer_.setTitle(title);
    return pdf;
}

QPageLayout PdfFile::UsualLayout(QPageSize::PageSizeId paper) {
    return {QPageSize(paper), QPageLayout::Portrait, QMarginsF(MarginPoints, MarginPoints, MarginPoints, MarginPoints)};
}

// Without the flush an error of the last bytes would not count.
bool PdfFile::Finish() {
    if (!file_.flush()) {
        file_.cancelWriting();
    }
    return file_.commit(); // where writing failed it leaves what was there
}

} // namespace zelvor
