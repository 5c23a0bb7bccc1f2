#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace zelvor::fuzz {

/// The bytes of one run, taken piece by piece from the front. Behind their end there are zeros and empty texts.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* bytes, std::size_t count) : rest_(bytes, count) {}

    [[nodiscard]] bool IsEmpty() const { return rest_.empty(); }

    std::uint8_t TakeByte() {
        const std::span<const std::uint8_t> piece = Take(1);
        return piece.empty() ? std::uint8_t{0} : piece.front();
    }
    bool TakeBool() { return (TakeByte() & 1) != 0; }
    /// 0 to count - 1, of two bytes.
    int TakeBelow(int count) {
        const int low = TakeByte();
        return (TakeByte() * 256 + low) % count;
    }
    std::vector<std::uint8_t> TakeBytes(std::size_t atMost) {
        const std::span<const std::uint8_t> piece = Take(atMost);
        return {piece.begin(), piece.end()};
    }
    std::string TakeText(std::size_t atMost) {
        const std::span<const std::uint8_t> piece = Take(atMost);
        return {piece.begin(), piece.end()};
    }
    std::string TakeRestAsText() { return TakeText(rest_.size()); }

private:
    std::span<const std::uint8_t> Take(std::size_t atMost) {
        const std::span<const std::uint8_t> piece = rest_.first(std::min(atMost, rest_.size()));
        rest_ = rest_.subspan(piece.size());
        return piece;
    }

    std::span<const std::uint8_t> rest_;
};

} // namespace zelvor::fuzz
