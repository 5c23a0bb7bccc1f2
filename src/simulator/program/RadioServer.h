#pragma once

#include <csignal>
#include <optional>
#include <string>

#include "data/DataImage.h"
#include "simulator/FaultPlan.h"
#include "simulator/RadioLine.h"
#include "simulator/RadioResponder.h"
#include "simulator/program/Options.h"
#include "simulator/program/PortLink.h"
#include "simulator/program/PseudoTerminal.h"
#include "simulator/program/TracePrinter.h"

namespace zelvor {

/// Serves a radio on a pseudo-terminal with a port number, in real time, until told to stop.
class RadioServer : private RadioLineListener {
public:
    RadioServer(const Options& options, const DataImage& memory);
    ~RadioServer() override;

    /// Opens the port and gives it its number. False, with a complaint on standard error, where that fails.
    [[nodiscard]] bool Open();

    /// Serves until `stop` is set by a signal handler; `waitMask` is the signal mask while waiting, in which those
    /// signals get through. The port is gone and the memory saved afterwards; false where the save failed.
    [[nodiscard]] bool Serve(const volatile std::sig_atomic_t& stop, const sigset_t& waitMask);

private:
    void Deliver(std::uint8_t byte) override;
    void Unplugged(LineTime time) override;
    void CommandTaken(LineTime time, std::span<const std::uint8_t> command, std::string_view description) override;
    void BytesSkipped(LineTime time, std::span<const std::uint8_t> bytes) override;
    void ReplySent(LineTime time, std::span<const std::uint8_t> reply) override;
    void FaultFired(LineTime time, const Fault& fault) override;
    void SessionStarted() override;
    void SessionEnded() override;

    void Wait(const sigset_t& waitMask);
    void ReadPort();
    void PlugInAgain();
    [[nodiscard]] bool OpenPort();
    [[nodiscard]] bool Save();
    void Trace(LineTime time, char direction, std::span<const std::uint8_t> bytes, std::string_view description = {});
    void Remark(LineTime time, const std::string& text);
    void TellUnusedFaults();
    [[nodiscard]] LineTime Now() const;
    [[nodiscard]] std::optional<LineTime> NextDeadline() const;

    Options options_;
    DataImage memory_;
    RadioResponder responder_{memory_};
    FaultPlan faults_;
    RadioLine line_{responder_, faults_, *this};
    PortLink link_;
    TracePrinter trace_;
    std::optional<PseudoTerminal> terminal_; // empty while unplugged
    std::optional<LineTime> plugInAt_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace zelvor
