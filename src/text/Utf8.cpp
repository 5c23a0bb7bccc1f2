#include "text/Utf8.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace zelvor {
namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr char32_t LastCharacter = 0x10FFFF;
constexpr char32_t FirstSurrogate = 0xD800;
constexpr char32_t FirstLowSurrogate = 0xDC00;
constexpr char32_t BehindSurrogates = 0xE000;
constexpr char32_t FirstPaired = 0x10000;

bool IsHigh(char32_t unit) {
    return unit >= FirstSurrogate && unit < FirstLowSurrogate;
}

bool IsLow(char32_t unit) {
    return unit >= FirstLowSurrogate && unit < BehindSurrogates;
}

void Append(std::string& text, char32_t character) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto follow = [&](int shift) { put(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        follow(0);
    } else if (character < FirstPaired) {
        put(0xE0 | character >> 12);
        follow(6);
        follow(0);
    } else {
        put(0xF0 | character >> 18);
        follow(12);
        follow(6);
        follow(0);
    }
}

void Append(std::u16string& text, char32_t character) {
    if (character < FirstPaired) {
        text += static_cast<char16_t>(character);
        return;
    }
    text += static_cast<char16_t>(FirstSurrogate + ((character - FirstPaired) >> 10));
    text += static_cast<char16_t>(FirstLowSurrogate + ((character - FirstPaired) & 0x3FF));
}

/// How many bytes follow the first one, and the bits of that; -1 for a byte that begins no character.
struct Head {
    int following;
    char32_t bits;
};
Head HeadOf(unsigned char byte) {
    if (byte < 0x80) {
        return {0, byte};
    }
    if (byte >= 0xC2 && byte < 0xE0) {
        return {1, static_cast<char32_t>(byte & 0x1F)};
    }
    if (byte >= 0xE0 && byte < 0xF0) {
        return {2, static_cast<char32_t>(byte & 0x0F)};
    }
    if (byte >= 0xF0 && byte < 0xF5) {
        return {3, static_cast<char32_t>(byte & 0x07)};
    }
    return {-1, 0};
}

bool IsShortest(char32_t character, int following) {
    constexpr std::array<char32_t, 4> least{0, 0x80, 0x800, FirstPaired};
    return character >= least[static_cast<std::size_t>(following)];
}

} // namespace

std::string Utf8Of(std::u16string_view text) {
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        if (IsHigh(unit) && i + 1 < text.size() && IsLow(text[i + 1])) {
            ++i;
            Append(utf8, FirstPaired + ((unit - FirstSurrogate) << 10) + (text[i] - FirstLowSurrogate));
        } else {
            Append(utf8, IsHigh(unit) || IsLow(unit) ? Replacement : unit);
        }
    }
    return utf8;
}

std::u16string Utf16Of(std::string_view text) {
    std::u16string utf16;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto [following, bits] = HeadOf(static_cast<unsigned char>(text[i]));
        char32_t character = bits;
        int taken = 0;
        while (taken < following && i + 1 < text.size() && (static_cast<unsigned char>(text[i + 1]) & 0xC0) == 0x80) {
            ++i;
            ++taken;
            character = character << 6 | (static_cast<unsigned char>(text[i]) & 0x3F);
        }
        const bool valid = following >= 0 && taken == following && character <= LastCharacter &&
                           IsShortest(character, following) && !IsHigh(character) && !IsLow(character);
        Append(utf16, valid ? character : Replacement);
    }
    return utf16;
}

std::size_t WholeCharacters(std::string_view text) {
    constexpr std::size_t MostFollowing = 3;
    for (std::size_t behind = 1; behind <= MostFollowing && behind <= text.size(); ++behind) {
        const auto byte = static_cast<unsigned char>(text[text.size() - behind]);
        if ((byte & 0xC0) != 0x80) { // the first one of the last character
            return std::cmp_less_equal(behind, HeadOf(byte).following) ? text.size() - behind : text.size();
        }
    }
    return text.size();
}

} // namespace zelvor
