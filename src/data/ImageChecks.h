#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/Field.h"

/// What would stop or spoil a write of an image to a radio, or the radio itself.
namespace zelvor {

enum class ImageFault : std::uint8_t {
    MissingBeginCode,  // to be sent with a PTT ID that a channel has on
    MissingEndCode,    // the same
    NoPriorityChannel, // the priority mode is Fixed
    UnknownModel,
    BlankPriorityChannel, // it is not programmed
    HalfOwnNumber,        // an own fleet without an own ID, or the other way round
    IllegalValue,
    OutOfRange,               // a frequency outside 100 to 550 MHz
    OffRaster,                // a frequency that is no multiple of 5 or 6.25 kHz
    OutOfMarket,              // a channel's or a test frequency outside the market's band
    NoSpUnmute,               // a channel without a legal one: the windows themselves leave such
    BlankIdlePriorityChannel, // it is not programmed, and the priority mode has no use for it
    RevertNotOffered,         // a revert channel that the priority mode does not offer
    HalfFleetListEntry,       // a fleet without an ID, or the other way round
    EncodeWithoutTransmit,    // an encode tone on a channel without a transmit frequency
};

enum class FaultWeight : std::uint8_t {
    Hint,
    Spoils,
    StopsWrite, // the program refuses to write such an image
};
[[nodiscard]] FaultWeight WeightOf(ImageFault fault);
[[nodiscard]] std::string TextOf(ImageFault fault, Language language);

struct ImageFinding {
    ImageFault fault = ImageFault::IllegalValue;
    std::optional<Field> field; // that it is about
};

/// In the order of the image's sections, what stops a write first.
[[nodiscard]] std::vector<ImageFinding> CheckImage(const DataImage& image);

/// Whether any channel's transmissions send the PTT ID codes.
[[nodiscard]] bool AnyChannelSendsCode(const DataImage& image);

} // namespace zelvor
