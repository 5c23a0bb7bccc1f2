#include "print/PageGrid.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "platform/PageDevice.h"

namespace zelvor {

namespace {

constexpr double ColumnUnits = 130;
constexpr double Rows = 60;
constexpr std::string_view Ellipsis = "…";

constexpr double Gap = 1;            // column units between two texts of a row
constexpr double LeastStretch = 0.8; // letters narrower than that are hard to read
constexpr double TwipsPerPoint = 20;

/// The start of the character that the place lies in: texts are UTF-8.
std::size_t CharacterStart(std::string_view text, std::size_t place) {
    while (place > 0 && place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U) {
        --place;
    }
    return place;
}

/// Keeps about `kept` bytes, half of them from either end.
std::string WithoutMiddle(std::string_view text, std::size_t kept) {
    const std::size_t head = CharacterStart(text, kept / 2);
    std::size_t tail = text.size() - (kept - kept / 2);
    while (tail < text.size() && CharacterStart(text, tail) != tail) {
        ++tail;
    }
    return std::string(text.substr(0, head)) + std::string(Ellipsis) + std::string(text.substr(tail));
}

/// From the text to the next one of its row, or to the edge.
double RoomOf(const CellText& cell, const std::vector<CellText>& texts, const PageGrid& grid, double rightEdge) {
    double end = rightEdge;
    for (const CellText& other : texts) {
        if (other.row == cell.row && other.column > cell.column) {
            end = std::min(end, grid.X(other.column - Gap));
        }
    }
    return end - grid.X(cell.column);
}

/// No character is wider than high, and none takes less than a byte: most texts need not be measured.
bool FitsSurely(std::string_view text, double room) {
    return static_cast<double>(text.size()) * TextSize * TwipsPerPoint <= room;
}

void PrintFitted(PageDevice& device, double x, double y, std::string_view text, double room) {
    const double width = FitsSurely(text, room) ? 0 : device.TextWidth(text);
    if (width <= room) {
        PrintAt(device, x, y, text);
    } else if (room < width * LeastStretch) {
        PrintAt(device, x, y, ShortenToWidth(device, text, room));
    } else {
        device.SetFont({.pointSize = TextSize, .stretch = room / width});
        PrintAt(device, x, y, text);
        device.SetFont({.pointSize = TextSize});
    }
}

} // namespace

PageGrid::PageGrid(const PageDevice& device, Units units)
    : pageWidth_(device.PageWidth()), originX_(pageWidth_ * 0.2 / 2), unitX_(pageWidth_ * 0.9 / ColumnUnits),
      originY_(device.PageHeight() * 0.1 / 2), unitY_(device.PageHeight() * 0.9 / Rows),
      footY_(device.PageHeight() * 0.95) {
    if (units == Units::Whole) {
        for (double* number : {&originX_, &unitX_, &originY_, &unitY_}) {
            *number = std::trunc(*number);
        }
    }
}

void PrintAt(PageDevice& device, double x, double y, std::string_view text) {
    device.DrawText(x, y, text);
}

void PrintCells(PageDevice& device, const PageGrid& grid, const std::vector<CellText>& texts, double rightEdge) {
    device.SetFont({.pointSize = TextSize});
    for (const CellText& cell : texts) {
        PrintFitted(device, grid.X(cell.column), grid.Y(cell.row), cell.text, RoomOf(cell, texts, grid, rightEdge));
    }
}

void PrintCentred(PageDevice& device, const PageGrid& grid, double y, std::string_view text) {
    PrintAt(device, (grid.PageWidth() - device.TextWidth(text)) / 2, y, text);
}

void PrintTitle(PageDevice& device, const PageGrid& grid, double row, std::string_view title) {
    device.SetFont({.pointSize = TitleSize, .bold = true});
    PrintCentred(device, grid, grid.Y(row), title);
}

void PrintFoot(PageDevice& device, const PageGrid& grid, int pageNumber) {
    device.SetFont({.pointSize = TextSize});
    PrintCentred(device, grid, grid.FootY(), "- " + std::to_string(pageNumber) + " -");
}

std::string ShortenToWidth(const PageDevice& device, std::string_view text, double width) {
    if (device.TextWidth(text) <= width) {
        return std::string(text);
    }
    // The most that fits, by halving: a text of any length takes a dozen measurements.
    std::size_t fits = 0;
    std::size_t tooMany = text.size();
    while (tooMany - fits > 1) {
        const std::size_t tried = fits + (tooMany - fits) / 2;
        (device.TextWidth(WithoutMiddle(text, tried)) <= width ? fits : tooMany) = tried;
    }
    return WithoutMiddle(text, fits);
}

} // namespace zelvor
