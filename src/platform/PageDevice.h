#pragma once

#include <string_view>

namespace zelvor {

struct PageFont {
    std::string_view family = ""; // empty: the device's own
    double pointSize = 10;
    bool bold = false;
    double stretch = 1; // of the characters' width: 0.8 for letters a fifth narrower
};

/// A printer, page by page. All lengths are twips (1/1440 inch) from the page's printable top left corner.
class PageDevice {
public:
    virtual ~PageDevice() = default;
    /// Whether there is something to print on: a printer of the system, or a file chosen in the set-up dialog.
    [[nodiscard]] virtual bool IsAvailable() = 0;
    /// The system's printer set-up dialog, which offers its printers and a PDF file; false where it was cancelled. What
    /// is chosen there holds until the program ends. Until then the system's default printer is used.
    [[nodiscard]] virtual bool ShowSetup() = 0;

    /// Starts a document, on its first page; false where the printer cannot be opened.
    [[nodiscard]] virtual bool BeginDocument(std::string_view name) = 0;
    /// False where the printer fails. That ends the document, of which nothing more is printed.
    [[nodiscard]] virtual bool NewPage() = 0;
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
