#pragma once

#include <string_view>

namespace zelvor {

/// The two languages of the program. The state that chooses one is WindowState::LanguageFlag.
enum class Language { English, Chinese };

/// A text that is not in the numbered table: both languages side by side, chosen at the place of use. UTF-8.
struct TextPair {
    std::string_view english;
    std::string_view chinese;

    [[nodiscard]] constexpr std::string_view In(Language language) const {
        return language == Language::Chinese ? chinese : english;
    }
};

} // namespace zelvor
