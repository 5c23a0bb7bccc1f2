#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "SpoiltRadio.h"

namespace zelvor::sweep {

using Bytes = std::vector<std::uint8_t>;

/// What is done to the one reply of a run that does not come as it should.
enum class Spoiling {
    Drop,
    CutLast,    // its last byte does not come
    CutToOne,   // only its first byte does
    Wrong,      // all bits of its first byte are inverted
    InPieces,   // in two, with most of the time-out between them
    LateInTime, // at most of the time-out
    Late,       // while the prompt is up
    Overdue,    // behind the answer to the prompt, amid whatever is under way then
    Garbage,    // two bytes more behind it
    Unplug,     // the cable comes out instead
};
inline constexpr std::array AllSpoilings{
    Spoiling::Drop,       Spoiling::CutLast, Spoiling::CutToOne, Spoiling::Wrong,   Spoiling::InPieces,
    Spoiling::LateInTime, Spoiling::Late,    Spoiling::Overdue,  Spoiling::Garbage, Spoiling::Unplug};

/// What the user answers. In vain: Retry with the cable still out, and Cancel when asked again.
enum class Answer { Retry, Cancel, RetryInVain };

struct Case {
    int reply = 0; // from 1; 0 where none is spoilt
    Spoiling spoiling = Spoiling::Drop;
    Answer answer = Answer::Retry;
};

[[nodiscard]] std::string_view NameOf(Spoiling spoiling);
[[nodiscard]] std::string TextOf(const Case& spoilt, const fuzz::SpoiltRadio::Reply& reply);

/// Whether there is a case: what is in one byte can be cut no shorter, and only a cable that is out is left out.
[[nodiscard]] bool Exists(const Case& spoilt, const fuzz::SpoiltRadio::Reply& reply);

/// The radio's bytes of a case: the reply as it would come, in an exchange with this time-out in milliseconds.
[[nodiscard]] Bytes RadioBytes(const Case& spoilt, const Bytes& reply, int timeout);
/// The user's bytes.
[[nodiscard]] Bytes UserBytes(const Case& spoilt);

} // namespace zelvor::sweep
