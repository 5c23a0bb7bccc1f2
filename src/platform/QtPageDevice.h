#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <memory>
#include <utility>

#include "platform/PageDevice.h"
#include "platform/PageTexts.h"
#include "platform/PdfFile.h"
#include "platform/PrintChoice.h"

namespace zelvor {

/// A printer of the system, or a PDF file in its place. Texts are set in a font that has Chinese characters too, so
/// that they stay texts in a PDF file.
class QtPageDevice : public PageDevice {
public:
    /// With a file the pages go there as PDF, whatever printers there are.
    explicit QtPageDevice(const QString& pdfFile = {}, PrinterLookUp::Ask ask = zelvor::AskForPrinters,
                          std::chrono::milliseconds patience = PrinterLookUp::Patience)
        : choice_(pdfFile, std::move(ask), patience) {}
    /// For a program that has no dialogs.
    QtPageDevice(const QString& pdfFile, const QPageLayout& layout) : QtPageDevice(pdfFile) {
        choice_.UseLayout(layout);
    }
    QtPageDevice(const QtPageDevice&) = delete;
    QtPageDevice& operator=(const QtPageDevice&) = delete;
    ~QtPageDevice() override;

    void FindTarget(std::function<void(const PageTarget& target)> found) override;
    void AskForPrinters(std::function<void(bool isAnswered)> told) override;
    [[nodiscard]] bool ShowSetup(std::string_view documentFile) override;
    [[nodiscard]] bool BeginDocument(std::string_view name) override;
    [[nodiscard]] bool NewPage() override;
    void EndDocument() override;
    /// Whether the last document came to its end and, where it went to a file, that could be written.
    [[nodiscard]] bool IsWritten() const { return isWritten_; }
    [[nodiscard]] double PageWidth() const override;
    [[nodiscard]] double PageHeight() const override;
    void SetFont(const PageFont& font) override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight() const override;
    void DrawText(double x, double y, std::string_view text) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;

private:
    [[nodiscard]] double DotsOf(double twips) const;
    [[nodiscard]] double TwipsOf(double dots) const;

    PrintChoice choice_;
    bool isWritten_ = false;

    // In a document.
    std::unique_ptr<PdfFile> pdf_;
    QPagedPaintDevice* paper_ = nullptr; // a printer, or that of pdf_
    QPainter painter_;
    QString family_; // of texts without a family of their own; looked up once
    std::unique_ptr<PageTexts> texts_;
    double stretch_ = 1;
};

} // namespace zelvor
