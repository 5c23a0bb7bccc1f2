#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "simulator/Responder.h"

namespace zelvor::test {

using Bytes = std::vector<std::uint8_t>;

/// Answers.
inline const Bytes Silence{};
inline const Bytes Acknowledged{0x06};

inline Bytes Text(std::string_view text) {
    return {text.begin(), text.end()};
}

inline Bytes Joined(std::initializer_list<Bytes> parts) {
    Bytes all;
    for (const Bytes& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

/// Everything the responder answers to the bytes, one reply behind the other.
inline Bytes Feed(Responder& responder, const Bytes& bytes) {
    Bytes replies;
    for (const std::uint8_t byte : bytes) {
        if (const auto reaction = responder.Take(byte)) {
            replies.insert(replies.end(), reaction->reply.begin(), reaction->reply.end());
        }
    }
    return replies;
}

/// Brings the responder to the data phase.
inline void Enter(Responder& responder) {
    (void)Feed(responder, Joined({Text("PROGRAM"), {0x02}, {0x06}}));
}

} // namespace zelvor::test
