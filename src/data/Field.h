#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "data/DataImage.h"
#include "data/Fields.h"
#include "text/Language.h"

namespace zelvor {

/// What a field can be given, as texts that Field::Parse takes.
struct LegalValues {
    struct Range {
        std::string first;
        std::string last;
        std::string step;

        bool operator==(const Range&) const = default;
    };
    struct Characters {
        TextField::Characters kind;
        int least; // characters
        int most;

        bool operator==(const Characters&) const = default;
    };

    bool mayBeEmpty = false;             // the empty text is one of them
    std::vector<std::string> words = {}; // values that stand by themselves
    std::optional<Range> range = {};
    std::optional<Range> codes = {}; // beside the range
    std::optional<Characters> characters = {};

    bool operator==(const LegalValues&) const = default;
};

/// One row of the field tables, whatever its kind: what lists, documents, searches or sets fields without knowing them
/// uses it. A kind of row has the functions that FieldOperations calls.
class Field {
public:
    /// The row must outlive it.
    template<typename Row>
    requires(!std::same_as<Row, Field>) constexpr Field(const Row& row) : row_(&row), operations_(&OperationsOf<Row>) {}
    template<typename Row>
    requires(!std::same_as<Row, Field>) Field(const Row&&)
    = delete;

    [[nodiscard]] std::string Key() const { return operations_->key(row_); }
    /// Its first byte, and how many they are.
    [[nodiscard]] int Address() const { return operations_->address(row_); }
    [[nodiscard]] int Size() const { return operations_->size(row_); }
    [[nodiscard]] std::string Label(Language language) const { return operations_->label(row_, language); }

    /// The value as its dialog shows it, legal or not, in UTF-8; empty where it shows none.
    [[nodiscard]] std::string Show(const DataImage& image, Language language) const {
        return operations_->show(row_, image, language);
    }
    [[nodiscard]] LegalValues Legal(Language language) const { return operations_->legal(row_, language); }
    /// Stores the value that Show shows as this text, in either language, blanks at its ends aside. False, and nothing
    /// is stored, where no legal value is shown so: unlike a dialog it corrects nothing.
    [[nodiscard]] bool Parse(std::string_view text, DataImage& image) const {
        return operations_->parse(row_, text, image);
    }
    /// Whether the bytes are those of a legal value. A byte that was never stored, and shows a legal value, is one; of
    /// a text only what it shows counts.
    [[nodiscard]] bool HoldsLegal(const DataImage& image) const { return operations_->holdsLegal(row_, image); }
    /// Stores the value of a blank image; of a field whose value depends on the model, none.
    void StoreBlank(DataImage& image) const { operations_->storeBlank(row_, image); }

    /// Whether it is that row.
    [[nodiscard]] bool Is(const void* row) const { return row_ == row; }
    /// The row, where it is of that kind; otherwise null.
    template<typename Row>
    [[nodiscard]] const Row* As() const {
        return operations_ == &OperationsOf<Row> ? &Of<Row>(row_) : nullptr;
    }

private:
    struct Operations {
        std::string (*key)(const void*);
        int (*address)(const void*);
        int (*size)(const void*);
        std::string (*label)(const void*, Language);
        std::string (*show)(const void*, const DataImage&, Language);
        LegalValues (*legal)(const void*, Language);
        bool (*parse)(const void*, std::string_view, DataImage&);
        bool (*holdsLegal)(const void*, const DataImage&);
        void (*storeBlank)(const void*, DataImage&);
    };

    template<typename Row>
    static const Row& Of(const void* row) {
        return *static_cast<const Row*>(row);
    }

    template<typename Row>
    static constexpr Operations OperationsOf{
        .key = [](const void* row) { return KeyOf(Of<Row>(row)); },
        .address = [](const void* row) { return AddressOf(Of<Row>(row)); },
        .size = [](const void* row) { return SizeOf(Of<Row>(row)); },
        .label = [](const void* row, Language language) { return LabelOf(Of<Row>(row), language); },
        .show = [](const void* row, const DataImage& image,
                   Language language) { return ShowValue(Of<Row>(row), image, language); },
        .legal = [](const void* row, Language language) { return LegalValuesOf(Of<Row>(row), language); },
        .parse = [](const void* row, std::string_view text,
                    DataImage& image) { return ParseValue(Of<Row>(row), text, image); },
        .holdsLegal = [](const void* row, const DataImage& image) { return HoldsLegalValue(Of<Row>(row), image); },
        .storeBlank = [](const void* row, DataImage& image) { StoreBlankValue(Of<Row>(row), image); },
    };

    const void* row_;
    const Operations* operations_;
};

// The kinds of Fields.h.

[[nodiscard]] std::string KeyOf(const ListField& field);
[[nodiscard]] int AddressOf(const ListField& field);
[[nodiscard]] int SizeOf(const ListField& field);
[[nodiscard]] std::string LabelOf(const ListField& field, Language language);
[[nodiscard]] std::string ShowValue(const ListField& field, const DataImage& image, Language language);
[[nodiscard]] LegalValues LegalValuesOf(const ListField& field, Language language);
[[nodiscard]] bool ParseValue(const ListField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const ListField& field, const DataImage& image);
void StoreBlankValue(const ListField& field, DataImage& image);

[[nodiscard]] std::string KeyOf(const CheckField& field);
[[nodiscard]] int AddressOf(const CheckField& field);
[[nodiscard]] int SizeOf(const CheckField& field);
[[nodiscard]] std::string LabelOf(const CheckField& field, Language language);
/// "On" or "Off".
[[nodiscard]] std::string ShowValue(const CheckField& field, const DataImage& image, Language language);
[[nodiscard]] LegalValues LegalValuesOf(const CheckField& field, Language language);
[[nodiscard]] bool ParseValue(const CheckField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const CheckField& field, const DataImage& image);
void StoreBlankValue(const CheckField& field, DataImage& image);

[[nodiscard]] std::string KeyOf(const NumberField& field);
[[nodiscard]] int AddressOf(const NumberField& field);
[[nodiscard]] int SizeOf(const NumberField& field);
[[nodiscard]] std::string LabelOf(const NumberField& field, Language language);
[[nodiscard]] std::string ShowValue(const NumberField& field, const DataImage& image, Language language);
[[nodiscard]] LegalValues LegalValuesOf(const NumberField& field, Language language);
[[nodiscard]] bool ParseValue(const NumberField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const NumberField& field, const DataImage& image);
void StoreBlankValue(const NumberField& field, DataImage& image);

/// With the number behind it where it has one: "dtmf.autodial-memory.3".
[[nodiscard]] std::string KeyOf(const TextField& field);
[[nodiscard]] int AddressOf(const TextField& field);
[[nodiscard]] int SizeOf(const TextField& field);
[[nodiscard]] std::string LabelOf(const TextField& field, Language language);
[[nodiscard]] std::string ShowValue(const TextField& field, const DataImage& image, Language language);
[[nodiscard]] LegalValues LegalValuesOf(const TextField& field, Language language);
/// Whether a text has no character that the field does not take as it stands.
[[nodiscard]] bool HasItsCharacters(const TextField& field, std::string_view text);
[[nodiscard]] bool ParseValue(const TextField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const TextField& field, const DataImage& image);
void StoreBlankValue(const TextField& field, DataImage& image);

/// The rows of tables behind each other, as one table.
template<typename First, std::size_t... Sizes>
[[nodiscard]] constexpr auto Joined(const First& first, const std::array<Field, Sizes>&... others) {
    return std::apply([](const auto&... rows) { return std::array{rows...}; }, std::tuple_cat(first, others...));
}

/// A text without the blanks at its ends.
[[nodiscard]] std::string_view Trimmed(std::string_view text);

} // namespace zelvor
