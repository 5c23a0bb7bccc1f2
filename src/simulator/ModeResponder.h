#pragma once

#include <cstdint>
#include <vector>

#include "data/ModelCatalogue.h"
#include "simulator/Responder.h"

/// What the radio's modes have in common.
namespace zelvor {

namespace command {

inline constexpr std::uint8_t IdentityRequest = 0x02;
inline constexpr std::uint8_t Acknowledge = 0x06;
inline constexpr std::uint8_t End = 'E';

} // namespace command

/// The radio's side of one of its modes. RadioResponder finds the entry of the mode among the bytes of the line.
class ModeResponder : public Responder {
public:
    /// The mode's entry has come: a session begins, whatever went before.
    [[nodiscard]] virtual Reaction Enter() = 0;

    /// Whether the next byte is data, whatever it looks like: no entry begins or goes on with it.
    [[nodiscard]] virtual bool ExpectsData() const { return false; }

protected:
    [[nodiscard]] static std::vector<std::uint8_t> IdentityReply(const DataImage& memory) {
        const ModelIdentity identity = IdentityOf(memory);
        return {identity.begin(), identity.end()};
    }
};

} // namespace zelvor
