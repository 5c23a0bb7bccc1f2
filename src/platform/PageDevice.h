#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zelvor {

struct PageFont {
    std::string_view family{}; // empty: the device's own
    double pointSize = 10;
    bool bold = false;
    double stretch = 1; // of the characters' width: 0.8 for letters a fifth narrower
};

/// Where a document goes.
struct PageTarget {
    enum class Kind {
        None, // there is no printer, and no file is chosen
        NoAnswer,
        Printer,
        File,
    };
    Kind kind = Kind::None;
    std::string name;          // of the printer, or full path of the PDF file in the platform's spelling; UTF-8
    bool replacesFile = false; // the file is there already
};

/// A printer, page by page. All lengths are twips (1/1440 inch) from the page's printable top left corner.
///
/// The printing system is asked without holding the window, and may not answer at all. What is told is told once, from
/// the event loop or at once, after some seconds at the latest, and not any more once the device is gone.
class PageDevice {
public:
    virtual ~PageDevice() = default;
    /// Finds out where the next document goes: to what was chosen in the set-up dialog, else to the system's default
    /// printer, else to its first one.
    virtual void FindTarget(std::function<void(const PageTarget& target)> found) = 0;
    /// Asks the printing system anew for its printers; tells whether it answered.
    virtual void AskForPrinters(std::function<void(bool isAnswered)> told) = 0;
    /// The system's printer set-up dialog, which offers its printers and a PDF file with a name made from the
    /// document's; where the printing system did not answer AskForPrinters, a dialog for the PDF file alone. It asks by
    /// itself before it takes a file that is there already. False where it was cancelled. What is chosen there holds
    /// until the program ends.
    [[nodiscard]] virtual bool ShowSetup(std::string_view documentFile) = 0;

    /// Starts a document, on its first page, on what FindTarget has found last; false where the printer cannot be
    /// opened, or the file cannot be written or is something else than a file.
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
