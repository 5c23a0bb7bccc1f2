#pragma once

#include "text/Language.h"

namespace zelvor {

class Clock;
class MessageBoxes;
class SerialPort;
struct LinkState;

/// What an exchange with the radio is made with, whoever runs it: the state that it shares with the other exchanges,
/// the port, time, and who asks the user, in the user's language. All must outlive the exchange.
struct RadioLink {
    LinkState& state;
    SerialPort& port;
    Clock& clock;
    MessageBoxes& messages;
    Language language{};
};

} // namespace zelvor
