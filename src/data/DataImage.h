#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace zelvor {

/// The document: a byte-exact copy of the radio's 1024-byte memory.
///
/// A radio address A (0x000 to 0x3FF) is row A / 64 and column A % 64 of 16 rows by 64 columns. The array lies in
/// memory column by column: its image index is L = column * 16 + row. Files, wire and memory map all go in address
/// order; the transposition between the two happens in this class and nowhere else.
class DataImage {
public:
    static constexpr std::size_t Size = 1024;
    static constexpr int Rows = 16;
    static constexpr int Columns = 64;

    using Bytes = std::array<std::uint8_t, Size>;

    /// All bytes 0xFF, as an erased memory.
    DataImage() { cells_.fill(0xFF); }

    /// The image whose byte at each radio address is the byte at that place of `bytes`.
    [[nodiscard]] static DataImage FromAddressOrder(std::span<const std::uint8_t, Size> bytes);
    [[nodiscard]] Bytes ToAddressOrder() const;

    /// The byte at a radio address, 0x000 to 0x3FF.
    [[nodiscard]] std::uint8_t At(int address) const { return cells_[IndexOf(address)]; }
    void Set(int address, std::uint8_t value) { cells_[IndexOf(address)] = value; }

    /// Replaces the bits in mask by those of value.
    void SetBits(int address, std::uint8_t mask, std::uint8_t value);

    /// The byte at an image index L, 0 to 1023.
    [[nodiscard]] std::uint8_t AtIndex(int index) const { return cells_[static_cast<std::size_t>(index)]; }
    void SetIndex(int index, std::uint8_t value) { cells_[static_cast<std::size_t>(index)] = value; }

    void Fill(std::uint8_t value) { cells_.fill(value); }

    [[nodiscard]] static constexpr int AddressOfIndex(int index) { return index % Rows * Columns + index / Rows; }
    [[nodiscard]] static constexpr int IndexOfAddress(int address) {
        return address % Columns * Rows + address / Columns;
    }

    bool operator==(const DataImage&) const = default;

private:
    static constexpr std::size_t IndexOf(int address) { return static_cast<std::size_t>(IndexOfAddress(address)); }

    Bytes cells_{}; // by image index
};

} // namespace zelvor
