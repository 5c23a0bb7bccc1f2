#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string_view>

#include "data/BlankImage.h"
#include "data/DataImage.h"

namespace zelvor::testing {

/// The bytes of a text of hexadecimal pairs, stored in address order from `address` on.
inline void StoreHex(DataImage& image, int address, std::string_view hex) {
    const auto digit = [](char c) { return c <= '9' ? c - '0' : c - 'A' + 10; };
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        image.Set(address++, static_cast<std::uint8_t>(digit(hex[i]) * 16 + digit(hex[i + 1])));
    }
}

inline void StoreBytes(DataImage& image, int address, std::initializer_list<int> bytes) {
    for (const int byte : bytes) {
        image.Set(address++, static_cast<std::uint8_t>(byte));
    }
}

/// The document of a new 4618 with one channel.
inline DataImage SampleImage() {
    DataImage image;
    image.Set(0x1BD, 0x01);
    image.Set(0x1BE, 0xF8);
    InitAllFrameData(image);
    StoreHex(image, 0x010,
             "0025511425060045"
             "9E0213A8"
             "02BFB0F8");
    image.Set(0x17E, 0x01);
    return image;
}

inline DataImage RandomImage(std::mt19937& random) {
    DataImage image;
    std::uniform_int_distribution<int> byte(0, 255);
    for (int address = 0; address < 1024; ++address) {
        image.Set(address, static_cast<std::uint8_t>(byte(random)));
    }
    return image;
}

} // namespace zelvor::testing
