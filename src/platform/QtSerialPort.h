#pragma once

#include <QObject>
#include <QSerialPort>
#include <memory>

#include "platform/SerialPort.h"

namespace zelvor {

/// A port on QSerialPort. The receive event is a queued one, so that its handler may close or destroy the port.
class QtSerialPort : public SerialPort {
public:
    /// ports tells the device behind the number when the port is opened.
    QtSerialPort(SerialPorts& ports, std::string_view objectName);
    QtSerialPort(const QtSerialPort&) = delete;
    QtSerialPort& operator=(const QtSerialPort&) = delete;
    ~QtSerialPort() override;

    void SetNumber(int number) override;
    void SetSettings(std::string_view settings) override;
    /// The system has buffers of its own, and larger ones.
    void SetBufferSizes(int /*inputBytes*/, int /*outputBytes*/) override {}
    /// Nothing here translates characters.
    void SetBinaryInput() override {}
    [[nodiscard]] bool Open() override;
    [[nodiscard]] PortFailure Failure() const override { return failure_; }
    void Close() override;
    [[nodiscard]] bool IsOpen() const override { return port_.isOpen(); }
    [[nodiscard]] bool IsStale() const override;
    void ClearInput() override;
    void ClearOutput() override;
    void SetReceiveThreshold(int count) override { threshold_ = count; }
    void SetReadLength(int count) override { readLength_ = count; }
    [[nodiscard]] std::vector<std::uint8_t> Read() override;
    [[nodiscard]] int WaitingBytes() const override;
    void Send(std::span<const std::uint8_t> bytes) override;

private:
    [[nodiscard]] bool OpenDevice();
    [[nodiscard]] PortFailure FailureOfDevice() const;
    void TakeIn() const;
    void TakeInWithoutEventLoop() const;
    void QueueReceiveEvent() const;
    void RaiseReceiveEvent() const;
    void OnError(QSerialPort::SerialPortError error);
    void CloseIfDeviceIsGone();
    void CloseWithoutDevice();
    void Raise(ReceiveReason reason) const;

    SerialPorts& ports_;
    // What waits in the driver counts as waiting, so that a query takes it in.
    mutable QSerialPort port_;
    mutable std::vector<std::uint8_t> input_;
    mutable bool hasArrived_ = false; // since the last receive event
    mutable bool isQueued_ = false;   // a receive event
    int number_ = 1;
    std::string device_; // of the number, when the port was opened
    PortFailure failure_;
    bool isProbe_ = false;
    int threshold_ = 0;
    int readLength_ = 0;
    std::unique_ptr<QObject> watch_; // of the device, while the port is open
    mutable QObject queue_;          // receiver of our queued calls, which are gone with it
};

} // namespace zelvor
