#pragma once

#include <functional>
#include <optional>
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

/// Stands for 0 in some fields. Intended: it is Chinese whatever the language is, unlike the word of the windows.
inline constexpr std::string_view PrintedOff = "关";

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

    /// What the windows show for a field; empty where they show nothing.
    [[nodiscard]] std::string ValueOf(const ListField& field) const;
    [[nodiscard]] std::string ValueOf(const NumberField& field) const;
    /// On and off in words.
    [[nodiscard]] std::string_view ValueOf(const CheckField& field) const { return EnabledWord(IsOn(field)); }
    [[nodiscard]] std::string_view EnabledWord(bool enabled) const;
    [[nodiscard]] std::string ValueOf(const Field& field) const;

    /// The same, with PrintedOff for 0.
    [[nodiscard]] std::string ValueOrOff(const ListField& field) const;
    [[nodiscard]] std::string ValueOrOff(const NumberField& field) const;
    /// Whether a field shows the value 0.
    [[nodiscard]] bool IsZero(const NumberField& field) const;

    [[nodiscard]] const std::vector<CellText>& Texts() const { return texts_; }

private:
    [[nodiscard]] bool IsOn(const CheckField& field) const { return zelvor::IsOn(field, image_.At(field.address)); }

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
    void Add(const ListField& field);
    void Add(const CheckField& field) { Add(field.label, page_.ValueOf(field)); }
    void Add(const NumberField& field) { Add(field.label, page_.ValueOf(field)); }

    /// What is printed in place of a field's value; nothing: the value.
    using Instead = std::function<std::optional<std::string>(const Field& field)>;
    void Add(std::span<const Field> fields, const Instead& instead = {});

private:
    SectionPage& page_;
    double labelColumn_;
    double valueColumn_;
    double row_;
};

/// A text with a number: "Channel 1".
[[nodiscard]] std::string NumberedWord(Text word, int number, Language language);

/// A text, or what stands for an empty one.
[[nodiscard]] std::string OrElse(const std::string& text, std::string_view instead);

} // namespace zelvor
