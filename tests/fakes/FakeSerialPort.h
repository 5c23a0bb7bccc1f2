#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SerialPort.h"

namespace zelvor {

/// "57 00 10".
[[nodiscard]] std::string Hex(std::span<const std::uint8_t> bytes);

class FakeSerialPorts;

/// What a fake port has been asked, kept also after the port is gone.
struct FakePortRecord {
    std::string name;
    std::vector<std::string> log;
    std::vector<std::uint8_t> sent;
    bool sentWhileClosed = false;
};

/// A serial port with the test at its far end. Its log has a line for every operation but the queries:
/// "number 1", "settings 9600,N,8,2", "buffers 1024 512", "binary", "open", "open failed", "close", "clear input",
/// "clear output", "threshold 68", "read length 8", "send 50 52". Opening an open port and closing a closed one are
/// logged as well. Changing number or settings of an open port fails the test.
class FakeSerialPort : public SerialPort {
public:
    FakeSerialPort(FakeSerialPorts& ports, std::shared_ptr<FakePortRecord> record);
    FakeSerialPort(const FakeSerialPort&) = delete;
    FakeSerialPort& operator=(const FakeSerialPort&) = delete;
    ~FakeSerialPort() override;

    void SetNumber(int number) override;
    void SetSettings(std::string_view settings) override;
    void SetBufferSizes(int inputBytes, int outputBytes) override;
    void SetBinaryInput() override;
    [[nodiscard]] bool Open() override;
    void Close() override;
    [[nodiscard]] PortFailure Failure() const override { return failure_; }
    [[nodiscard]] bool IsOpen() const override { return isOpen_; }
    [[nodiscard]] bool IsStale() const override { return isOpen_ && isStale_; }
    void ClearInput() override;
    void ClearOutput() override;
    void SetReceiveThreshold(int count) override;
    void SetReadLength(int count) override;
    [[nodiscard]] std::vector<std::uint8_t> Read() override;
    [[nodiscard]] int WaitingBytes() const override { return static_cast<int>(input_.size()); }
    void Send(std::span<const std::uint8_t> bytes) override;

    /// Bytes come in from the far end; the receive event is raised within, where it is due. A closed port loses them.
    void Deliver(std::span<const std::uint8_t> bytes);
    void Deliver(std::initializer_list<std::uint8_t> bytes) { Deliver(std::span(bytes.begin(), bytes.size())); }
    /// The port's number stands for another device from now on, until the port is opened again.
    void BecomeStale() { isStale_ = true; }
    /// The device is unplugged: the port is closed and its number missing until FakeSerialPorts::Present.
    void Vanish();

    [[nodiscard]] const std::vector<std::string>& Log() const { return record_->log; }
    void ClearLog() { record_->log.clear(); }
    /// All bytes sent since the port was made or ClearSent.
    [[nodiscard]] const std::vector<std::uint8_t>& Sent() const { return record_->sent; }
    void ClearSent() { record_->sent.clear(); }
    /// Whether something was sent while the port was closed; such bytes are in neither log nor Sent().
    [[nodiscard]] bool SentWhileClosed() const { return record_->sentWhileClosed; }
    [[nodiscard]] int Number() const { return number_; }
    [[nodiscard]] const std::string& Settings() const { return settings_; }
    [[nodiscard]] int ReceiveThreshold() const { return threshold_; }
    [[nodiscard]] int ReadLength() const { return readLength_; }

    /// The far end: called with the bytes of every Send after they are recorded.
    std::function<void(std::span<const std::uint8_t>)> OnSend;

private:
    friend class FakeSerialPorts;

    void Note(std::string line) { record_->log.push_back(std::move(line)); }
    void Raise(ReceiveReason reason);

    FakeSerialPorts* ports_;
    std::shared_ptr<FakePortRecord> record_;
    int number_ = 1;
    std::string settings_;
    PortFailure failure_;
    bool isOpen_ = false;
    bool isStale_ = false;
    int threshold_ = 0;
    int readLength_ = 0;
    std::vector<std::uint8_t> input_;
};

/// A machine whose twenty ports are all there and free, unless told otherwise.
class FakeSerialPorts : public SerialPorts {
public:
    FakeSerialPorts() = default;
    FakeSerialPorts(const FakeSerialPorts&) = delete;
    FakeSerialPorts& operator=(const FakeSerialPorts&) = delete;
    ~FakeSerialPorts() override;

    [[nodiscard]] std::unique_ptr<SerialPort> Make(std::string_view objectName) override;
    /// "/dev/fake3" and "Fake port 3" unless SetDescription told otherwise; empty for a missing port.
    [[nodiscard]] PortDescription Describe(int number) override;
    void NumberAnew() override { ++numberings_; }
    [[nodiscard]] int Numberings() const { return numberings_; }

    /// Opening the port fails, and nothing is known of it.
    void Missing(int number) { missing_.insert(number); }
    void AllMissing();
    /// Another program holds the port: opening it fails.
    void InUse(int number) { inUse_.insert(number); }
    /// Only members of the group may open the port, and the user is none: opening it fails.
    void NotPermitted(int number, std::string group) { groups_[number] = std::move(group); }
    /// There, free and permitted again.
    void Present(int number);
    void SetDescription(int number, PortDescription description);

    /// Called with every port made, for instance to set OnSend before its owner uses it.
    std::function<void(FakeSerialPort&)> OnMake;

    /// The latest living port of that name; null where there is none.
    [[nodiscard]] FakeSerialPort* Port(std::string_view objectName) const;
    /// The record of the latest port made with that name, living or not; an empty one where there was none.
    [[nodiscard]] const FakePortRecord& Record(std::string_view objectName) const;

private:
    friend class FakeSerialPort;

    [[nodiscard]] PortFailure FailureOf(int number);

    std::set<int> missing_;
    std::set<int> inUse_;
    std::map<int, std::string> groups_; // of ports that are not permitted
    int numberings_ = 0;
    std::map<int, PortDescription> descriptions_;
    std::vector<FakeSerialPort*> living_;
    std::vector<std::shared_ptr<FakePortRecord>> records_;
};

} // namespace zelvor
