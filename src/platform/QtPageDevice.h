#pragma once

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <QString>
#include <memory>

#include "platform/PageDevice.h"

namespace zelvor {

/// A printer of the system, or a PDF file in its place.
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
    void NewPage() override;
    void EndDocument() override;
    [[nodiscard]] double PageWidth() const override;
    [[nodiscard]] double PageHeight() const override;
    void SetFont(const PageFont& font) override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight() const override;
    void DrawText(double x, double y, std::string_view text) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;

private:
    QPrinter& Printer();
    [[nodiscard]] double DotsOf(double twips) const;
    [[nodiscard]] double TwipsOf(double dots) const;

    QString pdfFile_;
    std::unique_ptr<QPrinter> printer_; // made when first needed: asking for the system's printers takes time
    QPainter painter_;
    QFont font_;
};

} // namespace zelvor
