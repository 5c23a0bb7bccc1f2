#pragma once

#include <QElapsedTimer>
#include <functional>
#include <future>

#include "platform/PortNumbering.h"
#include "platform/SerialPort.h"

namespace zelvor {

/// The ports that the machine has at the moment.
[[nodiscard]] std::vector<MachinePort> PortsOfMachine();

/// The machine's ports, numbered as they are when this is made. Adapters come and go: the user's links are looked up at
/// every question, the machine's ports twice a second at most, since that may take tens of milliseconds.
class QtSerialPorts : public SerialPorts {
public:
    /// Asks the machine in the background for the first time: the program's start does not wait for it.
    explicit QtSerialPorts(std::function<std::vector<MachinePort>()> askMachine = PortsOfMachine);

    [[nodiscard]] std::unique_ptr<SerialPort> Make(std::string_view objectName) override;
    [[nodiscard]] PortDescription Describe(int number) override;
    void NumberAnew() override;

private:
    void FinishNumbering();
    void Ask();

    std::function<std::vector<MachinePort>()> askMachine_;
    std::vector<PortLink> firstLinks_;
    std::future<std::vector<MachinePort>> firstPorts_; // valid until they are numbered
    std::vector<MachinePort> ports_;
    QElapsedTimer sinceAsked_; // for ports_
    PortNumbering numbering_;  // where ports have no numbers of their own
};

} // namespace zelvor
