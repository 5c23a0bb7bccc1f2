#include "sweep/Spoiling.h"

#include "fakes/FakeSerialPort.h"

namespace zelvor::sweep {

namespace {

// A user's byte: milliseconds that he takes, of which bit 0 is Retry, and bit 1 plugs the cable in again.
constexpr std::uint8_t RetryAtLast = 0xFB;
constexpr std::uint8_t CancelAtLast = 0xFA;
constexpr std::uint8_t RetryUnplugged = 0xF9;
constexpr std::uint8_t CancelUnplugged = 0xF8;

constexpr int MostWholeReplies = 27; // that one byte of the radio's tells

constexpr int BehindTheTimeout = 160; // milliseconds: the prompt is up
constexpr int BehindTheAnswer = 310;

std::uint8_t LateByte(int milliseconds) {
    return static_cast<std::uint8_t>(milliseconds / fuzz::SpoiltRadio::LateUnit);
}

std::uint8_t InTime(int timeout) {
    return LateByte(timeout * 4 / 5);
}

Bytes WayOf(const Case& spoilt, const Bytes& reply, int timeout) {
    const auto length = static_cast<std::uint8_t>(reply.size());
    switch (spoilt.spoiling) {
    case Spoiling::Drop:
        return {fuzz::Silent};
    case Spoiling::CutLast:
        return {fuzz::Cut, static_cast<std::uint8_t>(length - 1)};
    case Spoiling::CutToOne:
        return {fuzz::Cut, 1};
    case Spoiling::Wrong:
        return {fuzz::Changed, 0, static_cast<std::uint8_t>(~reply.front())};
    case Spoiling::InPieces:
        return {fuzz::InPieces, static_cast<std::uint8_t>(length / 2), InTime(timeout)};
    case Spoiling::LateInTime:
        return {fuzz::Late, InTime(timeout)};
    case Spoiling::Late:
        return {fuzz::Late, LateByte(timeout + BehindTheTimeout)};
    case Spoiling::Overdue:
        return {fuzz::Late, LateByte(timeout + BehindTheAnswer)};
    case Spoiling::Garbage: {
        Bytes way{fuzz::Foreign, static_cast<std::uint8_t>(length + 2)};
        way.insert(way.end(), reply.begin(), reply.end());
        way.insert(way.end(), {0xAA, 0x55});
        return way;
    }
    case Spoiling::Unplug:
        return {fuzz::Vanished, 1};
    }
    return {};
}

} // namespace

std::string_view NameOf(Spoiling spoiling) {
    constexpr std::array<std::string_view, AllSpoilings.size()> names{
        "drop",         "cut by one", "cut to one", "wrong",          "in pieces",
        "late in time", "late",       "overdue",    "garbage behind", "unplugged"};
    return names[static_cast<std::size_t>(spoiling)];
}

std::string TextOf(const Case& spoilt, const fuzz::SpoiltRadio::Reply& reply) {
    constexpr std::array<std::string_view, 3> answers{"Retry", "Cancel", "Retry in vain"};
    std::string text = "reply " + std::to_string(spoilt.reply) + " (to " + Hex(reply.command) + ") ";
    text += NameOf(spoilt.spoiling);
    text += ", ";
    text += answers[static_cast<std::size_t>(spoilt.answer)];
    return text;
}

bool Exists(const Case& spoilt, const fuzz::SpoiltRadio::Reply& reply) {
    switch (spoilt.spoiling) {
    case Spoiling::CutLast:
    case Spoiling::InPieces:
        return spoilt.answer != Answer::RetryInVain && reply.bytes.size() > 1;
    case Spoiling::CutToOne:
        return spoilt.answer != Answer::RetryInVain && reply.bytes.size() > 2;
    default:
        return spoilt.answer != Answer::RetryInVain || spoilt.spoiling == Spoiling::Unplug;
    }
}

Bytes RadioBytes(const Case& spoilt, const Bytes& reply, int timeout) {
    Bytes bytes;
    int whole = spoilt.reply - 1;
    for (; whole > MostWholeReplies; whole -= MostWholeReplies + 1) {
        bytes.push_back(MostWholeReplies * fuzz::WayCount + fuzz::Whole);
    }
    Bytes way = WayOf(spoilt, reply, timeout);
    way.front() = static_cast<std::uint8_t>(way.front() + whole * fuzz::WayCount);
    bytes.insert(bytes.end(), way.begin(), way.end());
    return bytes;
}

Bytes UserBytes(const Case& spoilt) {
    switch (spoilt.answer) {
    case Answer::Retry:
        return {RetryAtLast};
    case Answer::Cancel:
        return {CancelAtLast};
    case Answer::RetryInVain:
        return {RetryUnplugged, CancelUnplugged};
    }
    return {};
}

} // namespace zelvor::sweep
