#include "platform/QtSerialPort.h"

#include <algorithm>
#include <utility>

#include "platform/DevicePresence.h"
#include "platform/LowLatency.h"
#include "platform/PortAccess.h"
#include "platform/PortEvents.h"
#include "platform/Toolkit.h"

namespace zelvor {

QtSerialPort::QtSerialPort(SerialPorts& ports, std::string_view objectName) : ports_(ports) {
    port_.setObjectName(ToQString(objectName));
    QObject::connect(&port_, &QSerialPort::readyRead, &queue_, [this] { TakeIn(); });
    QObject::connect(&port_, &QSerialPort::errorOccurred, &queue_, [this](auto error) { OnError(error); });
}

QtSerialPort::~QtSerialPort() {
    Close();
}

void QtSerialPort::SetNumber(int number) {
    number_ = number;
}

void QtSerialPort::SetSettings(std::string_view settings) {
    isProbe_ = settings == ProbePortSettings;
}

bool QtSerialPort::Open() {
    if (port_.isOpen()) {
        return true;
    }
    failure_ = {};
    device_ = ports_.Describe(number_).devicePath;
    if (!device_.empty() && OpenDevice()) {
        return true;
    }
    failure_ = FailureOfDevice();
    return false;
}

bool QtSerialPort::OpenDevice() {
    port_.setPortName(ToQString(device_));
    port_.setBaudRate(isProbe_ ? QSerialPort::Baud19200 : QSerialPort::Baud9600);
    port_.setStopBits(isProbe_ ? QSerialPort::OneStop : QSerialPort::TwoStop);
    port_.setParity(QSerialPort::NoParity);
    port_.setDataBits(QSerialPort::Data8);
    port_.setFlowControl(QSerialPort::NoFlowControl);
    if (!port_.open(QIODevice::ReadWrite)) {
        return false;
    }
    // Cables draw their power from these lines; a port without them fails to set them, and works.
    port_.setDataTerminalReady(true);
    port_.setRequestToSend(true);
    AskForLowLatency(port_);
    watch_ = WatchDevice(port_, [this] {
        QMetaObject::invokeMethod(
            &queue_, [this] { CloseIfDeviceIsGone(); }, Qt::QueuedConnection);
    });
    return port_.isOpen();
}

PortFailure QtSerialPort::FailureOfDevice() const {
    if (device_.empty()) {
        return {.fault = PortFault::Missing};
    }
    PortFailure failure = AccessFailure(device_);
    if (failure.fault == PortFault::None) {
        const QSerialPort::SerialPortError error = port_.error();
        failure = {.fault = error == QSerialPort::PermissionError       ? PortFault::InUse
                            : error == QSerialPort::DeviceNotFoundError ? PortFault::Missing
                                                                        : PortFault::Unusable,
                   .devicePath = device_};
    }
    return failure;
}

bool QtSerialPort::IsStale() const {
    return port_.isOpen() && ports_.Describe(number_).devicePath != device_;
}

void QtSerialPort::Close() {
    watch_.reset();
    if (port_.isOpen()) {
        port_.close();
    }
    input_.clear();
    hasArrived_ = false;
}

void QtSerialPort::ClearInput() {
    TakeInWithoutEventLoop(); // what the driver has handed over already
    if (port_.isOpen()) {
        port_.clear(QSerialPort::Input);
    }
    input_.clear();
    hasArrived_ = false;
}

void QtSerialPort::ClearOutput() {
    if (port_.isOpen()) {
        DropUnsent(port_);
    }
}

std::vector<std::uint8_t> QtSerialPort::Read() {
    TakeInWithoutEventLoop();
    const auto length = readLength_ > 0 ? std::min<std::size_t>(input_.size(), readLength_) : input_.size();
    const auto end = input_.begin() + static_cast<std::ptrdiff_t>(length);
    std::vector<std::uint8_t> bytes(input_.begin(), end);
    input_.erase(input_.begin(), end);
    return bytes;
}

int QtSerialPort::WaitingBytes() const {
    TakeInWithoutEventLoop();
    return static_cast<int>(input_.size());
}

void QtSerialPort::Send(std::span<const std::uint8_t> bytes) {
    if (port_.isOpen()) {
        NoteWhatIsSent(port_);
    }
    if (port_.isOpen()) {
        port_.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
        port_.flush(); // or the bytes would wait for the event loop
    }
}

void QtSerialPort::TakeIn() const {
    const QByteArray bytes = port_.readAll();
    if (!bytes.isEmpty()) {
        input_.insert(input_.end(), bytes.begin(), bytes.end());
        hasArrived_ = true;
        QueueReceiveEvent();
    }
}

void QtSerialPort::TakeInWithoutEventLoop() const {
    if (port_.isOpen()) {
        TakeInArrivals(port_); // closes the port where its device has just gone
    }
    if (port_.isOpen()) {
        TakeIn();
    }
}

void QtSerialPort::QueueReceiveEvent() const {
    if (!std::exchange(isQueued_, true)) {
        QMetaObject::invokeMethod(
            &queue_, [this] { RaiseReceiveEvent(); }, Qt::QueuedConnection);
    }
}

void QtSerialPort::RaiseReceiveEvent() const {
    isQueued_ = false;
    const bool hasArrived = std::exchange(hasArrived_, false);
    if (hasArrived && threshold_ > 0 && std::cmp_greater_equal(input_.size(), threshold_)) {
        Raise(ReceiveReason::DataReceived);
    }
}

void QtSerialPort::OnError(QSerialPort::SerialPortError error) {
    if (!port_.isOpen()) {
        return;
    }
    switch (error) {
    case QSerialPort::ResourceError:
        CloseWithoutDevice();
        break;
    case QSerialPort::ReadError:
        // A notification whose bytes were read or cleared before it came is reported in the same words as a device that
        // is gone.
    case QSerialPort::WriteError:
    case QSerialPort::PermissionError: // drivers of Windows have many words for it
    case QSerialPort::DeviceNotFoundError:
    case QSerialPort::UnknownError:
        CloseIfDeviceIsGone();
        break;
    default: // of the asking, and not of the device
        break;
    }
}

void QtSerialPort::CloseIfDeviceIsGone() {
    if (port_.isOpen() && !HasDevice(port_)) {
        CloseWithoutDevice();
    }
}

void QtSerialPort::CloseWithoutDevice() {
    Close(); // or the device that is gone reports the same error for ever
    QMetaObject::invokeMethod(
        &queue_, [this] { Raise(ReceiveReason::Error); }, Qt::QueuedConnection);
}

void QtSerialPort::Raise(ReceiveReason reason) const {
    if (const auto onReceive = OnReceive) { // a copy: the handler may destroy the port
        onReceive(reason);
    }
}

} // namespace zelvor
