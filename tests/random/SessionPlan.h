#pragma once

#include <QString>
#include <cstdint>

namespace zelvor::random {

/// What a session is told from outside.
struct SessionPlan {
    std::uint32_t seed = 1;
    int acts = 300;
    QString hands; // "toolkit" or "display" of a user at random, "careful" of one who knows what he enters
    QString home;  // where all its files are
    QString radioProgram;

    /// From the environment variable ZELVOR_RANDOM, "SEED ACTS HANDS HOME RADIO" with tabs between them.
    [[nodiscard]] static SessionPlan OfEnvironment();
};

} // namespace zelvor::random
