#pragma once

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <QString>
#include <memory>

namespace zelvor {

/// A PDF file that is being written. It takes its place when it is complete: until then, and where writing fails,
/// what was there before stays as it was.
class PdfFile {
public:
    /// Null where the file cannot be written, or where there is something else than a file: a device, a folder.
    [[nodiscard]] static std::unique_ptr<PdfFile> Begin(const QString& file, const QPageLayout& layout,
                                                        const QString& title);
    /// Upright with narrow margins.
    [[nodiscard]] static QPageLayout UsualLayout(QPageSize::PageSizeId paper = QPageSize::A4);

    [[nodiscard]] QPdfWriter& Paper() { return writer_; }
    /// To be called when nothing is painted on it any more. False where the file could not be written.
    bool Finish();

private:
    explicit PdfFile(const QString& file);

    QSaveFile file_;
    QPdfWriter writer_{&file_};
};

} // namespace zelvor
