#pragma once

#include <csignal>
#include <memory>
#include <optional>
#include <string>

#include "data/DataImage.h"
#include "simulator/FaultPlan.h"
#include "simulator/RadioLine.h"
#include "simulator/RadioResponder.h"
#include "simulator/program/Options.h"
#include "simulator/program/PortLink.h"
#include "simulator/program/PortWatch.h"
#include "simulator/program/PseudoTerminal.h"
#include "simulator/program/TracePrinter.h"

namespace zelvor {

/// Serves a radio on a pseudo-terminal with a port number, in real time, until told to stop, or until the sessions that
/// were asked for are served. Such a session lasts from the entry into one of the radio's modes until no program has
/// the port open any more, so that a program may read, write and read again in it. A pulled plug does not end it.
class RadioServer : private RadioLineListener {
public:
    RadioServer(const Options& options, const DataImage& memory);
    ~RadioServer() override;

    /// Opens the port and gives it its number. False, with a complaint on standard error, where that fails.
    [[nodiscard]] bool Open();

    /// Serves until `stop` is set by a signal handler or all sessions are served; `waitMask` is the signal mask while
    /// waiting, in which those signals get through. The port is gone and the memory saved afterwards; false where the
    /// save failed.
    [[nodiscard]] bool Serve(const volatile std::sig_atomic_t& stop, const sigset_t& waitMask);

private:
    /// A radio at the line, as it is switched on.
    struct Radio {
        Radio(const DataImage& loaded, FaultPlan& faults, RadioLineListener& listener)
            : memory(loaded), line(responder, faults, listener) {}

        DataImage memory;
        RadioResponder responder{memory};
        RadioLine line;
    };

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
    [[nodiscard]] std::unique_ptr<Radio> FreshRadio();
    void ChangeRadio();
    [[nodiscard]] bool IsAllServed() const { return options_.serveMany && served_ >= *options_.serveMany; }
    [[nodiscard]] bool OpenPort();
    [[nodiscard]] bool Save();
    void Trace(LineTime time, char direction, std::span<const std::uint8_t> bytes, std::string_view description = {});
    void Remark(LineTime time, const std::string& text);
    void TellUnusedFaults();
    [[nodiscard]] LineTime Now() const;
    [[nodiscard]] std::optional<LineTime> NextDeadline() const;

    Options options_;
    DataImage loaded_;
    FaultPlan faults_;
    std::unique_ptr<Radio> radio_;
    bool isUsed_ = false; // the radio has been in one of its modes
    bool isSaved_ = true; // all that was to be saved
    int served_ = 0;      // sessions
    PortLink link_;
    PortWatch watch_; // where sessions are counted
    TracePrinter trace_;
    std::optional<PseudoTerminal> terminal_; // empty while unplugged
    std::optional<LineTime> plugInAt_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace zelvor
