#pragma once

#include <string_view>

namespace zelvor {

struct PageFont {
    std::string_view family = ""; // empty: the device's own
    double pointSize = 10;
    bool bold = false;
};

/// A printer, page by page. All lengths are twips (1/1440 inch) from the page's printable top left corner.
class PageDevice {
public:
    virtual ~PageDevice() = default;
    /// Whether the system has a printer.
    [[nodiscard]] virtual bool IsAvailable() = 0;
    /// The system's printer set-up dialog; false where it was cancelled.
    [[nodiscard]] virtual bool ShowSetup() = 0;

    /// Starts a document, on its first page; false where the printer cannot be opened.
    [[nodiscard]] virtual bool BeginDocument(std::string_view name) = 0;
    virtual void NewPage() = 0;
    /// Sends the document off.
    virtual void EndDocument() = 0;

    /// Of the printable area; only between BeginDocument and EndDocument, as all that follows.
    [[nodiscard]] virtual double PageWidth() const = 0;
    [[nodiscard]] virtual double PageHeight() const = 0;
    virtual void SetFont(const PageFont& font) = 0;
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextHeight() const = 0;
    /// (x, y) is the top left corner of the text's line.
    virtual void DrawText(double x, double y, std::string_view text) = 0;
    virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
};

} // namespace zelvor
