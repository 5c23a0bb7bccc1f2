#pragma once

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <QString>
#include <memory>

#include "platform/PageDevice.h"

namespace zelvor {

/// A printer of the system, or a PDF file in its place. Texts are set in a font that has Chinese characters too, so
/// that they stay texts in a PDF file.
class QtPageDevice : public PageDevice {
public:
    /// With a file the pages go there as PDF, whatever printers there are.
    explicit QtPageDevice(QString pdfFile = {});
    QtPageDevice(const QtPageDevice&) = delete;
    QtPageDevice& operator=(const QtPageDevice&) = delete;
    ~QtPageDevice() override;

    [[nodiscard]] bool IsAvailable() override;
    [[nodiscard]] bool ShowSetup() override;
    [[nodiscard]] bool BeginDocument(std::string_view name) override;
    [[nodiscard]] bool NewPage() override;
    void EndDocument() override;
    [[nodiscard]] double PageWidth() const override;
    [[nodiscard]] double PageHeight() const override;
    void SetFont(const PageFont& font) override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight() const override;
    void DrawText(double x, double y, std::string_view text) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;

private:
    void MakePrinter();
    [[nodiscard]] bool PrintsToFile() const;
    [[nodiscard]] double DotsOf(double twips) const;
    [[nodiscard]] double TwipsOf(double dots) const;

    QString pdfFile_;
    std::unique_ptr<QPrinter> printer_; // made when needed: asking for the system's printers takes time
    bool isChosen_ = false;             // printer_ is as the set-up dialog left it
    QPainter painter_;
    QString family_; // of texts without a family of their own; looked up once
    QFont font_;
    double ascent_ = 0; // of the font, in dots
    double stretch_ = 1;
};

} // namespace zelvor
