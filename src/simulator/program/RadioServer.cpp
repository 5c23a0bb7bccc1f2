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
    : options_(options), loaded_(memory), radio_(FreshRadio()), link_(options.linkDirectory, options.port),
      trace_(std::cout) {
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
    if (options_.serveMany && !watch_.Watch(terminal_->PortPath())) {
        Tell("the system does not tell when the port is closed");
        return false;
    }
    return true;
}

bool RadioServer::Serve(const volatile std::sig_atomic_t& stop, const sigset_t& waitMask) {
    while (stop == 0 && !IsAllServed()) {
        Wait(waitMask);
        if (watch_.TakeRelease() && isUsed_) {
            ChangeRadio();
        }
        ReadPort();
        radio_->line.Advance(Now());
        if (plugInAt_ && *plugInAt_ <= Now()) {
            PlugInAgain();
        }
    }
    link_.Remove();
    terminal_.reset();
    TellUnusedFaults();
    // The memory of a radio that nobody has used is not to replace that of the last one.
    return (options_.serveMany && !isUsed_) ? isSaved_ : Save() && isSaved_;
}

std::unique_ptr<RadioServer::Radio> RadioServer::FreshRadio() {
    RadioLineListener& listener = *this;
    return std::make_unique<Radio>(loaded_, faults_, listener);
}

void RadioServer::ChangeRadio() {
    if (!watch_.IsInUse()) { // or what there is to read may be the next program's
        ReadPort();
        radio_->line.Advance(LineTime::max()); // what was handed over just before the port was closed
    }
    isSaved_ = Save() && isSaved_;
    ++served_;
    if (options_.trace) {
        trace_.Remark(Now(),
                      "session " + std::to_string(served_) + " of " + std::to_string(*options_.serveMany) + " is over");
    }
    isUsed_ = false;
    radio_ = FreshRadio();
    if (terminal_) {
        terminal_->DropSent();
    }
}

/// Until the other side sends, the next deadline comes or a signal arrives.
void RadioServer::Wait(const sigset_t& waitMask) {
    std::array<pollfd, 2> events{
        {{terminal_ ? terminal_->Descriptor() : -1, POLLIN, 0}, {watch_.Descriptor(), POLLIN, 0}}};
    timespec remaining{};
    const timespec* timeout = nullptr;
    if (const std::optional<LineTime> deadline = NextDeadline()) {
        // The deadline is absolute: however late this wait begins or ends, the next one makes up for it.
        const auto wait = std::chrono::ceil<Nanoseconds>(*deadline - Now());
        remaining = ToTimespec(std::max(wait, Nanoseconds(0)));
        timeout = &remaining;
    }
    ::ppoll(events.data(), events.size(), timeout, &waitMask);
}

void RadioServer::ReadPort() {
    if (terminal_) {
        std::array<std::uint8_t, 4096> buffer{};
        const std::size_t count = terminal_->Read(buffer);
        radio_->line.HostSent(std::span(buffer).first(count), Now());
    }
}

std::optional<LineTime> RadioServer::NextDeadline() const {
    const std::optional<LineTime> next = radio_->line.NextDeadline();
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
    watch_.Forget();
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
    isUsed_ = true;
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
    if (!options_.save || WriteMemoryFile(*options_.save, radio_->memory)) {
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
