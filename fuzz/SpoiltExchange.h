#pragma once

#include <memory>

#include "SpoiltRadio.h"
#include "link/LinkState.h"

namespace zelvor::fuzz {

/// What every exchange with a spoilt radio runs on: time, the cable and the user.
class SpoiltExchange {
protected:
    explicit SpoiltExchange(FuzzInput& input) : input_(input) {}

    FuzzInput& input_;
    FakeClock clock_;
    FakeSerialPorts ports_;
    SpoiltRadio radio_{input_, clock_, ports_};
    FuzzedUser user_{input_, clock_, radio_};
    LinkState link_;
    std::unique_ptr<SerialPort> port_ = ports_.Make("MSComm1");
};

} // namespace zelvor::fuzz
