#pragma once

#include <QElapsedTimer>

#include "platform/PortNumbering.h"
#include "platform/SerialPort.h"

namespace zelvor {

/// The machine's ports. What has which number is looked up anew all the time, for adapters come and go: the user's
/// links at every question, the machine's ports twice a second at most, since that may take tens of milliseconds.
class QtSerialPorts : public SerialPorts {
public:
    [[nodiscard]] std::unique_ptr<SerialPort> Make(std::string_view objectName) override;
    [[nodiscard]] PortDescription Describe(int number) override;

private:
    [[nodiscard]] PortNumbers Numbers();
    [[nodiscard]] const std::vector<MachinePort>& PortsOfMachine();

    std::vector<MachinePort> ports_;
    QElapsedTimer sinceAsked_; // for ports_; not started before the first question
};

} // namespace zelvor
