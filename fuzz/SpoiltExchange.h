#pragma once

#include <memory>

#include "SpoiltRadio.h"
#include "link/LinkState.h"

namespace zelvor::fuzz {

/// Where an exchange takes its bytes from: what it begins with and what is done meanwhile, the radio's faults, and the
/// user's answers. They may be one.
struct ExchangeInputs {
    FuzzInput& course;
    FuzzInput& radio;
    FuzzInput& user;
};

/// What every exchange with a spoilt radio runs on: time, the cable and the user.
class SpoiltExchange {
public:
    [[nodiscard]] const SpoiltRadio& Radio() const { return radio_; }
    [[nodiscard]] const FuzzedUser& User() const { return user_; }
    /// Milliseconds since its beginning.
    [[nodiscard]] std::int64_t Time() const { return clock_.TickCount(); }

protected:
    explicit SpoiltExchange(const ExchangeInputs& inputs)
        : input_(inputs.course), radio_(inputs.radio, clock_, ports_), user_(inputs.user, clock_, radio_) {}

    FuzzInput& input_;
    FakeClock clock_;
    FakeSerialPorts ports_;
    SpoiltRadio radio_;
    FuzzedUser user_;
    LinkState link_;
    std::unique_ptr<SerialPort> port_ = ports_.Make("MSComm1");
};

} // namespace zelvor::fuzz
