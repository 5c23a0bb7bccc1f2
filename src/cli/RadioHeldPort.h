#pragma once

#include <memory>

#include "platform/SerialPort.h"

namespace zelvor::cli {

/// A port that stays open between the transfers of a command, so that no other program comes between a backup and its
/// write: closing it does nothing while it is held. It is closed with the object.
class RadioHeldPort : public SerialPort {
public:
    explicit RadioHeldPort(std::unique_ptr<SerialPort> port);
    RadioHeldPort(const RadioHeldPort&) = delete;
    RadioHeldPort& operator=(const RadioHeldPort&) = delete;
    ~RadioHeldPort() override;

    void Hold() { isHeld_ = true; }
    /// From now on closing it closes it, as it has to be where its device is gone or another one.
    void LetGo() { isHeld_ = false; }

    void SetNumber(int number) override { port_->SetNumber(number); }
    void SetSettings(std::string_view settings) override { port_->SetSettings(settings); }
    void SetBufferSizes(int inputBytes, int outputBytes) override { port_->SetBufferSizes(inputBytes, outputBytes); }
    void SetBinaryInput() override { port_->SetBinaryInput(); }
    [[nodiscard]] bool Open() override { return port_->Open(); }
    [[nodiscard]] PortFailure Failure() const override { return port_->Failure(); }
    void Close() override;
    [[nodiscard]] bool IsOpen() const override { return port_->IsOpen(); }
    [[nodiscard]] bool IsStale() const override { return port_->IsStale(); }
    void ClearInput() override { port_->ClearInput(); }
    void ClearOutput() override { port_->ClearOutput(); }
    void SetReceiveThreshold(int count) override { port_->SetReceiveThreshold(count); }
    void SetReadLength(int count) override { port_->SetReadLength(count); }
    [[nodiscard]] std::vector<std::uint8_t> Read() override { return port_->Read(); }
    [[nodiscard]] int WaitingBytes() const override { return port_->WaitingBytes(); }
    void Send(std::span<const std::uint8_t> bytes) override { port_->Send(bytes); }

private:
    std::unique_ptr<SerialPort> port_;
    bool isHeld_ = true;
};

} // namespace zelvor::cli
