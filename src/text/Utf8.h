#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelvor {

/// The same text in the other encoding. What is no valid text becomes U+FFFD.
[[nodiscard]] std::string Utf8Of(std::u16string_view text);
[[nodiscard]] std::u16string Utf16Of(std::string_view text);

/// How many bytes of a text in UTF-8 come before a last character that is not complete yet; all where there is none.
[[nodiscard]] std::size_t WholeCharacters(std::string_view text);

} // namespace zelvor
