#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/Field.h"
#include "print/PageGrid.h"
#include "print/ReportSection.h"

namespace zelvor {

/// Columns and rows that most sections use.
namespace pagecells {
inline constexpr double TitleRow = 10;
inline constexpr double FirstRow = 12;
inline constexpr double LabelColumn = 4;
inline constexpr double ValueColumn = 40;
} // namespace pagecells

/// One page of a section below the head, filled text by text with what the image says, in a language.
class SectionPage {
public:
    /// Holds the section's title.
    SectionPage(const DataImage& image, Language language, ReportSection section);

    [[nodiscard]] const DataImage& Image() const { return image_; }
    [[nodiscard]] Language TextLanguage() const { return language_; }

    /// An empty text leaves its cell out.
    void Add(double column, double row, std::string_view text);
    void Add(double column, double row, std::u16string_view text);
    void AddWord(double column, double row, Text name);

    [[nodiscard]] const std::vector<CellText>& Texts() const { return texts_; }

private:
    const DataImage& image_;
    Language language_;
    std::vector<CellText> texts_;
};

/// Labels in one column of a page and their values in another, a row each from the first row downwards.
class PageRows {
public:
    PageRows(SectionPage& page, double labelColumn, double valueColumn, double firstRow)
        : page_(page), labelColumn_(labelColumn), valueColumn_(valueColumn), row_(firstRow) {}

    void Add(std::string_view label, std::string_view value);
    void Add(const FieldWord& label, std::string_view value);
    /// With their values as the report prints them.
    void Add(std::span<const Field> fields);

private:
    SectionPage& page_;
    double labelColumn_;
    double valueColumn_;
    double row_;
};

/// A text with a number: "Channel 1".
[[nodiscard]] std::string NumberedWord(Text word, int number, Language language);

} // namespace zelvor
