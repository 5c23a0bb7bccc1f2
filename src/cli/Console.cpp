#include "cli/Console.h"

#include <algorithm>

#include "text/Utf8.h"

namespace zelvor::cli {

namespace {

constexpr char16_t Delete = 0x7F;
constexpr char16_t FirstPicture = 0x2400;
constexpr char16_t DeletePicture = 0x2421;
constexpr char16_t LastControl = 0x9F;
constexpr char16_t Replacement = 0xFFFD;

char16_t PrintableOf(char16_t character) {
    if (character < u' ') {
        return static_cast<char16_t>(FirstPicture + character);
    }
    if (character == Delete) {
        return DeletePicture;
    }
    return character > Delete && character <= LastControl ? Replacement : character;
}

} // namespace

void Console::Complain(std::string_view text) const {
    for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(std::min(end + 1, text.size()))) {
        end = text.find('\n');
        err << "zelvor-cli: " << text.substr(0, end) << '\n';
    }
}

void Console::Complain(std::string_view about, const TextPair& text) const {
    Complain(Printable(about) + ": " + std::string(Say(text)));
}

std::string Printable(std::string_view text) {
    std::u16string characters = Utf16Of(text);
    for (char16_t& character : characters) {
        character = PrintableOf(character);
    }
    return Utf8Of(characters);
}

} // namespace zelvor::cli
