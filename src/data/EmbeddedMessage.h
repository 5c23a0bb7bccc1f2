#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "data/Field.h"

/// The embedded message: two lines of text that the radio keeps, in code page Windows-1252. A line lies at the start of
/// its field, without length and end mark; the rest of the field is 0xFF.
namespace zelvor::embedded_message {

inline constexpr int LineCount = 2;
inline constexpr int FieldSize = 32;
inline constexpr int FirstField = 0x300;
inline constexpr int End = FirstField + LineCount * FieldSize;

inline constexpr std::array<TextField, LineCount> Lines = [] {
    const auto line = [](int n) {
        return TextField{.key = "message.line",
                         .label = TextPair{"Line", "行"},
                         .number = n,
                         .address = FirstField + FieldSize * (n - 1),
                         .size = FieldSize,
                         .characters = TextField::Characters::Windows1252,
                         .blank = u""};
    };
    return std::array{line(1), line(2)};
}();
inline constexpr std::array Fields = std::to_array<Field>({Lines[0], Lines[1]});

/// The characters of a line (0 or 1) before the first 0xFF of its field, at most 32.
[[nodiscard]] std::u16string Load(const DataImage& image, int line);

/// How many characters at the start of a line come back when it was stored: those before the first one that the code
/// page does not have, or that it has as the byte of an erased field.
[[nodiscard]] std::size_t StorableLength(std::u16string_view text);

/// Writes a line into its field and fills the field up with 0xFF. Ends without a word at a character outside the code
/// page, and all that lies behind keeps its bytes. A text of more than 32 characters runs on into the next field; what
/// would go beyond the last is lost.
void Store(DataImage& image, int line, std::u16string_view text);

} // namespace zelvor::embedded_message
