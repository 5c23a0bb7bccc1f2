#pragma once

#include <QElapsedTimer>
#include <functional>
#include <future>

#include "platform/PortNumbering.h"
#include "platform/SerialPort.h"

namespace zelvor {

/// The ports that the machine has at the moment.
[[nodiscard]] std::vector<MachinePort> PortsOfMachine();

/// The machine's ports, numbered as they are at BeginNumbering() or at the first question. Adapters come and go: the
/// user's links are looked up at every question, the machine's ports twice a second at most, since that may take tens
/// of milliseconds.
class QtSerialPorts : public SerialPorts {
public:
    explicit QtSerialPorts(std::function<std::vector<MachinePort>()> askMachine = PortsOfMachine);

    /// Asks the machine in the background for the first time. Later calls do nothing.
    void BeginNumbering();

    [[nodiscard]] std::unique_ptr<SerialPort> Make(std::string_view objectName) override;
    [[nodiscard]] PortDescription Describe(int number) override;
    void NumberAnew() override;

private:
    void FinishNumbering();
    void Ask();

    std::function<std::vector<MachinePort>()> askMachine_;
    bool isNumbered_ = false;
    std::vector<PortLink> firstLinks_;
    std::future<std::vector<MachinePort>> firstPorts_; // valid from BeginNumbering until they are numbered
    std::vector<MachinePort> ports_;
    QElapsedTimer sinceAsked_; // for ports_
    PortNumbering numbering_;  // where ports have no numbers of their own
};

} // namespace zelvor
