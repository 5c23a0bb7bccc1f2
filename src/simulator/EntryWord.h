#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zelvor {

/// Finds an entry such as "PROGRAM" in a run of bytes. The word's first letter must not come in it again.
class EntryWord {
public:
    explicit constexpr EntryWord(std::string_view word) : word_(word) {}

    /// Takes the next byte; true where it is the word's last.
    [[nodiscard]] bool Take(std::uint8_t byte) {
        matched_ = Fits(byte, matched_) ? matched_ + 1 : 0;
        if (matched_ == 0 && Fits(byte, 0)) {
            matched_ = 1;
        }
        return matched_ == word_.size();
    }

    /// Whether the byte goes on with a word of which enough is there that its letters are no commands.
    [[nodiscard]] bool Claims(std::uint8_t byte) const { return matched_ >= ClaimingLength && Fits(byte, matched_); }

    void Forget() { matched_ = 0; }
    [[nodiscard]] std::size_t Length() const { return word_.size(); }

private:
    static constexpr std::size_t ClaimingLength = 3; // no command has three letters of an entry in it

    [[nodiscard]] bool Fits(std::uint8_t byte, std::size_t place) const {
        return place < word_.size() && static_cast<std::uint8_t>(word_[place]) == byte;
    }

    std::string_view word_;
    std::size_t matched_ = 0;
};

} // namespace zelvor
