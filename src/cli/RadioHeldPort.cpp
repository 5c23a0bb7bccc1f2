#include "cli/RadioHeldPort.h"

#include <utility>

namespace zelvor::cli {

RadioHeldPort::RadioHeldPort(std::unique_ptr<SerialPort> port) : port_(std::move(port)) {
    port_->OnReceive = [this](ReceiveReason reason) {
        if (const auto onReceive = OnReceive) { // a copy: the handler may end the exchange
            onReceive(reason);
        }
    };
}

RadioHeldPort::~RadioHeldPort() {
    port_->OnReceive = nullptr;
    if (port_->IsOpen()) {
        port_->Close();
    }
}

void RadioHeldPort::Close() {
    if (!isHeld_) {
        port_->Close();
    }
}

} // namespace zelvor::cli
