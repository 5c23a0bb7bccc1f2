#include "data/EmbeddedMessage.h"

#include <algorithm>

#include "data/Windows1252.h"

namespace zelvor::embedded_message {

namespace {

constexpr int FieldOf(int line) {
    return FirstField + line * FieldSize;
}

} // namespace

std::u16string Load(const DataImage& image, int line) {
    return LoadCode(image, Lines[static_cast<std::size_t>(line)]);
}

std::size_t StorableLength(std::u16string_view text) {
    const auto isLost = [](char16_t character) {
        const auto byte = Windows1252Byte(character);
        return !byte || *byte == ErasedByte;
    };
    return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isLost) - text.begin());
}

void Store(DataImage& image, int line, std::u16string_view text) {
    int address = FieldOf(line);
    for (const char16_t character : text) {
        const auto byte = Windows1252Byte(character);
        if (!byte || address == End) {
            return;
        }
        image.Set(address++, *byte);
    }
    while (address < FieldOf(line) + FieldSize) {
        image.Set(address++, ErasedByte);
    }
}

} // namespace zelvor::embedded_message
