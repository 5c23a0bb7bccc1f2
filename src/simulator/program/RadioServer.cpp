#include "simulator/program/RadioServer.h"

#include <algorithm>
#include <array>
#include <iostream>

#include <poll.h>

#include "simulator/program/MemoryFile.h"

namespace zelvor {
namespace {

using Nanoseconds = std::chrono::nanoseconds;

timespec ToTimespec(Nanoseconds duration) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    timespec result{};
    result.tv_sec = static_cast<time_t>(seconds.count());
    result.tv_nsec = static_cast<long>((duration - seconds).count());
    return result;
}

void Tell(const std::string& text) {
    std::cerr << "zelvor-radio: " << text << '\n' << std::flush;
}

} // namespace

RadioServer::RadioServer(const Options& options, const DataImage& memory)
    : options_(options), memory_(memory), link_(options.linkDirectory, options.port), trace_(std::cout) {
    for (const Fault& fault : options.faults) {
        faults_.Add(fault);
    }
}

RadioServer::~RadioServer() {
    link_.Remove();
}

bool RadioServer::Open() {
    if (!OpenPort()) {
        return false;
    }
    start_ = std::chrono::steady_clock::now();
    std::cout << "ready: COM" << options_.port << " -> " << terminal_->PortPath().string() << '\n' << std::flush;
    return true;
}

bool RadioServer::OpenPort() {
    terminal_ = PseudoTerminal::Open();
    if (!terminal_) {
        Tell("the system gives no pseudo-terminal");
        return false;
    }
    if (!link_.PointTo(terminal_->PortPath())) {
        Tell("cannot make the link " + link_.Path().string());
        terminal_.reset();
        return false;
    }
    return true;
}

bool RadioServer::Serve(const volatile std::sig_atomic_t& stop, const sigset_t& waitMask) {
    while (stop == 0) {
        Wait(waitMask);
        ReadPort();
        line_.Advance(Now());
        if (plugInAt_ && *plugInAt_ <= Now()) {
            PlugInAgain();
        }
    }
    link_.Remove();
    terminal_.reset();
    TellUnusedFaults();
    return Save();
}

/// Until the other side sends, the next deadline comes or a signal arrives.
void RadioServer::Wait(const sigset_t& waitMask) {
    pollfd port{terminal_ ? terminal_->Descriptor() : -1, POLLIN, 0};
    timespec remaining{};
    const timespec* timeout = nullptr;
    if (const std::optional<LineTime> deadline = NextDeadline()) {
        // The deadline is absolute: however late this wait begins or ends, the next one makes up for it.
        const auto wait = std::chrono::ceil<Nanoseconds>(*deadline - Now());
        remaining = ToTimespec(std::max(wait, Nanoseconds(0)));
        timeout = &remaining;
    }
    ::ppoll(&port, 1, timeout, &waitMask);
}

void RadioServer::ReadPort() {
    if (terminal_) {
        std::array<std::uint8_t, 4096> buffer{};
        const std::size_t count = terminal_->Read(buffer);
        line_.HostSent(std::span(buffer).first(count), Now());
    }
}

std::optional<LineTime> RadioServer::NextDeadline() const {
    const std::optional<LineTime> next = line_.NextDeadline();
    if (next && plugInAt_) {
        return std::min(*next, *plugInAt_);
    }
    return next ? next : plugInAt_;
}

LineTime RadioServer::Now() const {
    return std::chrono::steady_clock::now() - start_;
}

void RadioServer::Deliver(std::uint8_t byte) {
    if (terminal_) {
        terminal_->Write(byte);
    }
}

void RadioServer::Unplugged(LineTime time) {
    link_.Remove();
    terminal_.reset();
    plugInAt_ = Now() + options_.unplugged;
    Remark(time, "unplugged");
}

void RadioServer::PlugInAgain() {
    if (!OpenPort()) {
        plugInAt_ = Now() + options_.unplugged + std::chrono::seconds(1);
        return;
    }
    plugInAt_.reset();
    Remark(Now(), "plugged in again: COM" + std::to_string(options_.port) + " -> " + terminal_->PortPath().string());
}

void RadioServer::CommandTaken(LineTime time, std::span<const std::uint8_t> command, std::string_view description) {
    Trace(time, '>', command, description);
}

void RadioServer::BytesSkipped(LineTime time, std::span<const std::uint8_t> bytes) {
    Trace(time, '?', bytes);
}

void RadioServer::ReplySent(LineTime time, std::span<const std::uint8_t> reply) {
    Trace(time, '<', reply);
}

void RadioServer::FaultFired(LineTime time, const Fault& fault) {
    Remark(time, "fault " + FaultText(fault) + " fired");
}

void RadioServer::SessionStarted() {
    const LineSettings settings = terminal_ ? terminal_->Settings() : RadioLineSettings;
    if (settings != RadioLineSettings) {
        Remark(Now(), "the port is set to " + LineSettingsText(settings) + " and not to " +
                          LineSettingsText(RadioLineSettings));
    }
}

void RadioServer::SessionEnded() {
    [[maybe_unused]] const bool isSaved = Save();
}

bool RadioServer::Save() {
    if (!options_.save || WriteMemoryFile(*options_.save, memory_)) {
        return true;
    }
    Tell("cannot write " + options_.save->string());
    return false;
}

void RadioServer::TellUnusedFaults() {
    for (const Fault& fault : faults_.Waiting()) {
        Tell("fault " + FaultText(fault) + " never fired; the radio gave " + std::to_string(faults_.ReplyCount()) +
             " replies");
    }
}

void RadioServer::Trace(LineTime time, char direction, std::span<const std::uint8_t> bytes,
                        std::string_view description) {
    if (options_.trace) {
        trace_.Bytes(time, direction, bytes, description);
    }
}

void RadioServer::Remark(LineTime time, const std::string& text) {
    Tell(text);
    if (options_.trace) {
        trace_.Remark(time, text);
    }
}

} // namespace zelvor
