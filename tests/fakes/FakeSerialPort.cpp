#include "fakes/FakeSerialPort.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace zelvor {

namespace {

constexpr int LastPortNumber = 20;

} // namespace

std::string Hex(std::span<const std::uint8_t> bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (!text.empty()) {
            text += ' ';
        }
        text += digits[byte >> 4];
        text += digits[byte & 0x0F];
    }
    return text;
}

FakeSerialPort::FakeSerialPort(FakeSerialPorts& ports, std::shared_ptr<FakePortRecord> record)
    : ports_(&ports), record_(std::move(record)) {}

FakeSerialPort::~FakeSerialPort() {
    if (ports_) {
        std::erase(ports_->living_, this);
    }
}

void FakeSerialPort::SetNumber(int number) {
    EXPECT_FALSE(isOpen_) << "The number of the open port " << record_->name << " was changed";
    number_ = number;
    Note("number " + std::to_string(number));
}

void FakeSerialPort::SetSettings(std::string_view settings) {
    EXPECT_FALSE(isOpen_) << "The settings of the open port " << record_->name << " were changed";
    settings_ = settings;
    Note("settings " + settings_);
}

void FakeSerialPort::SetBufferSizes(int inputBytes, int outputBytes) {
    Note("buffers " + std::to_string(inputBytes) + " " + std::to_string(outputBytes));
}

void FakeSerialPort::SetBinaryInput() {
    Note("binary");
}

bool FakeSerialPort::Open() {
    failure_ = isOpen_ || !ports_ ? PortFailure() : ports_->FailureOf(number_);
    if (!isOpen_ && (!ports_ || failure_.fault != PortFault::None)) {
        Note("open failed");
        return false;
    }
    isOpen_ = true;
    isStale_ = false;
    Note("open");
    return true;
}

void FakeSerialPort::Close() {
    isOpen_ = false;
    input_.clear();
    Note("close");
}

void FakeSerialPort::ClearInput() {
    input_.clear();
    Note("clear input");
}

void FakeSerialPort::ClearOutput() {
    Note("clear output");
}

void FakeSerialPort::SetReceiveThreshold(int count) {
    threshold_ = count;
    Note("threshold " + std::to_string(count));
}

void FakeSerialPort::SetReadLength(int count) {
    readLength_ = count;
    Note("read length " + std::to_string(count));
}

std::vector<std::uint8_t> FakeSerialPort::Read() {
    const auto length = readLength_ > 0 ? std::min<std::size_t>(input_.size(), readLength_) : input_.size();
    const auto end = input_.begin() + static_cast<std::ptrdiff_t>(length);
    std::vector<std::uint8_t> bytes(input_.begin(), end);
    input_.erase(input_.begin(), end);
    return bytes;
}

void FakeSerialPort::Send(std::span<const std::uint8_t> bytes) {
    if (!isOpen_) {
        record_->sentWhileClosed = true;
        return;
    }
    Note("send " + Hex(bytes));
    record_->sent.insert(record_->sent.end(), bytes.begin(), bytes.end());
    if (const auto onSend = OnSend) {
        onSend(bytes);
    }
}

void FakeSerialPort::Deliver(std::span<const std::uint8_t> bytes) {
    if (!isOpen_ || bytes.empty()) {
        return;
    }
    input_.insert(input_.end(), bytes.begin(), bytes.end());
    if (threshold_ > 0 && WaitingBytes() >= threshold_) {
        Raise(ReceiveReason::DataReceived);
    }
}

void FakeSerialPort::Vanish() {
    if (ports_) {
        ports_->Missing(number_);
    }
    if (std::exchange(isOpen_, false)) {
        input_.clear();
        Raise(ReceiveReason::Error);
    }
}

void FakeSerialPort::Raise(ReceiveReason reason) {
    if (const auto onReceive = OnReceive) { // a copy: the handler may destroy the port
        onReceive(reason);
    }
}

FakeSerialPorts::~FakeSerialPorts() {
    for (FakeSerialPort* port : living_) {
        port->ports_ = nullptr;
    }
}

std::unique_ptr<SerialPort> FakeSerialPorts::Make(std::string_view objectName) {
    records_.push_back(std::make_shared<FakePortRecord>());
    records_.back()->name = objectName;
    auto port = std::make_unique<FakeSerialPort>(*this, records_.back());
    living_.push_back(port.get());
    if (OnMake) {
        OnMake(*port);
    }
    return port;
}

PortDescription FakeSerialPorts::Describe(int number) {
    if (missing_.contains(number)) {
        return {};
    }
    const auto found = descriptions_.find(number);
    const std::string text = std::to_string(number);
    return found != descriptions_.end() ? found->second : PortDescription{"/dev/fake" + text, "Fake port " + text};
}

void FakeSerialPorts::AllMissing() {
    for (int number = 1; number <= LastPortNumber; ++number) {
        Missing(number);
    }
}

void FakeSerialPorts::Present(int number) {
    missing_.erase(number);
    inUse_.erase(number);
    groups_.erase(number);
}

void FakeSerialPorts::SetDescription(int number, PortDescription description) {
    descriptions_[number] = std::move(description);
}

FakeSerialPort* FakeSerialPorts::Port(std::string_view objectName) const {
    const auto latest = std::find_if(living_.rbegin(), living_.rend(),
                                     [&](const FakeSerialPort* port) { return port->record_->name == objectName; });
    return latest == living_.rend() ? nullptr : *latest;
}

const FakePortRecord& FakeSerialPorts::Record(std::string_view objectName) const {
    static const FakePortRecord none;
    const auto latest = std::find_if(records_.rbegin(), records_.rend(),
                                     [&](const auto& record) { return record->name == objectName; });
    return latest == records_.rend() ? none : **latest;
}

PortFailure FakeSerialPorts::FailureOf(int number) {
    const std::string path = Describe(number).devicePath;
    if (number < 1 || number > LastPortNumber || missing_.contains(number)) {
        return {.fault = PortFault::Missing};
    }
    const bool isHeld = std::ranges::any_of(
        living_, [&](const FakeSerialPort* port) { return port->isOpen_ && port->number_ == number; });
    if (isHeld || inUse_.contains(number)) {
        return {.fault = PortFault::InUse, .devicePath = path};
    }
    if (const auto group = groups_.find(number); group != groups_.end()) {
        return {.fault = PortFault::NotPermitted, .devicePath = path, .group = group->second};
    }
    return {};
}

} // namespace zelvor
