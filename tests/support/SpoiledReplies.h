#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "support/RadioTesting.h"

namespace zelvor {

/// Counts the replies of a radio, and spoils one of them.
class SpoiledReplies {
public:
    struct Ways {
        int delay = 0;                  // of a reply, in milliseconds
        int lateDelay = 0;              // of one that is late
        std::uint8_t corruption = 0xFF; // the bits of the first byte that are turned over
    };
    struct Delivery {
        int delay = 0; // milliseconds
        std::vector<std::uint8_t> bytes;
        bool portVanishes = false; // instead of them
    };

    explicit SpoiledReplies(const Ways& ways) : ways_(ways) {}

    /// Reply n, counted from 1 over the radio's life.
    void Spoil(int reply, Fault fault) {
        spoiled_ = reply;
        fault_ = fault;
    }
    /// What becomes of the next reply; none where it is dropped.
    [[nodiscard]] std::optional<Delivery> Next(std::vector<std::uint8_t> bytes) {
        ++replies_;
        Delivery delivery{ways_.delay, std::move(bytes)};
        if (replies_ != spoiled_) {
            return delivery;
        }
        ++faultsFired_;
        switch (fault_) {
        case Fault::None:
            break;
        case Fault::Drop:
            return std::nullopt;
        case Fault::Cut:
            delivery.bytes.pop_back();
            break;
        case Fault::Corrupt:
            delivery.bytes.front() ^= ways_.corruption;
            break;
        case Fault::Late:
            delivery.delay = ways_.lateDelay;
            break;
        case Fault::Vanish:
            delivery.portVanishes = true;
            break;
        }
        return delivery;
    }

    [[nodiscard]] int Replies() const { return replies_; }
    [[nodiscard]] int FaultsFired() const { return faultsFired_; }

private:
    Ways ways_;
    int replies_ = 0;
    int spoiled_ = 0;
    int faultsFired_ = 0;
    Fault fault_ = Fault::None;
};

} // namespace zelvor
