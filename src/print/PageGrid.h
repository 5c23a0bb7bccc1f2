#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelvor {

class PageDevice;

/// The cells of a printed page: 130 column units wide, 60 rows high within the margins. Positions are in the device's
/// twips.
class PageGrid {
public:
    /// The tuning report uses the grid as it comes out; the data report cuts origin and units to whole twips.
    enum class Units { Exact, Whole };

    PageGrid(const PageDevice& device, Units units);

    [[nodiscard]] double X(double column) const { return originX_ + column * unitX_; }
    [[nodiscard]] double Y(double row) const { return originY_ + row * unitY_; }
    /// Where a ruled line ends: nine tenths of the page's width.
    [[nodiscard]] double LineEnd() const { return 9 * originX_; }
    /// Top of the page's foot.
    [[nodiscard]] double FootY() const { return footY_; }
    [[nodiscard]] double PageWidth() const { return pageWidth_; }

private:
    double pageWidth_;
    double originX_;
    double unitX_;
    double originY_;
    double unitY_;
    double footY_;
};

/// A text at a cell of the page's grid.
struct CellText {
    double column;
    double row;
    std::string text;

    bool operator==(const CellText&) const = default;
};

/// Sizes of the reports' texts, in points.
inline constexpr double TitleSize = 16;
inline constexpr double TextSize = 10;

/// The one way in which the reports put a text on the page: (x, y) is the top left corner of its line.
void PrintAt(PageDevice& device, double x, double y, std::string_view text);

/// Prints each text at its cell, in the usual size. What would run into the next text of its row, or over rightEdge, is
/// set in narrower letters or, where that does not do, shortened in the middle.
void PrintCells(PageDevice& device, const PageGrid& grid, const std::vector<CellText>& texts, double rightEdge);

/// In the middle of the page's width by the text's measured width.
void PrintCentred(PageDevice& device, const PageGrid& grid, double y, std::string_view text);

/// In bold letters, centred in a row.
void PrintTitle(PageDevice& device, const PageGrid& grid, double row, std::string_view title);

/// "- 1 -" at the foot of the page, in the usual size.
void PrintFoot(PageDevice& device, const PageGrid& grid, int pageNumber);

/// The text where it is no wider than so many twips, else with its middle left out for an ellipsis.
[[nodiscard]] std::string ShortenToWidth(const PageDevice& device, std::string_view text, double width);

} // namespace zelvor
