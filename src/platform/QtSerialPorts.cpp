#include "platform/QtSerialPorts.h"

#include <QDir>
#include <QFileInfo>
#include <QSerialPortInfo>
#include <QStandardPaths>
#include <utility>

#include "platform/QtSerialPort.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr int AskEveryMilliseconds = 500;

bool IsUsbByName(const QString& name) {
    return name.startsWith(u"ttyUSB") || name.startsWith(u"ttyACM") || name.startsWith(u"cu.usb");
}

#ifdef Q_OS_WIN
constexpr bool HasNumberedPorts = true;
#else
constexpr bool HasNumberedPorts = false;
#endif

/// What the user knows the port by. Where ports have numbers of their own the full path says no more than the name,
/// which the toolkit opens as well, above COM9 too.
QString DevicePathOf(const QSerialPortInfo& info) {
    return HasNumberedPorts ? info.portName() : info.systemLocation();
}

std::string TargetOf(const QFileInfo& link) {
    const QString device = link.canonicalFilePath(); // empty where nothing is there
    return FromQString(device.isEmpty() ? link.symLinkTarget() : device);
}

std::vector<PortLink> LinksOfUser() {
    std::vector<PortLink> links;
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                      QStringLiteral("/Zelvor/ports"));
    for (const QFileInfo& entry : folder.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        if (const int number = NumberOfPortName(FromQString(entry.fileName())); number != 0) {
            links.push_back({number, TargetOf(entry)});
        }
    }
    return links;
}

} // namespace

std::vector<MachinePort> PortsOfMachine() {
    std::vector<MachinePort> ports;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        const QString name = info.portName();
        ports.push_back(
            {.name = FromQString(name),
             .description = {FromQString(DevicePathOf(info)), FromQString(info.description())},
             .isUsb = info.hasVendorIdentifier() || IsUsbByName(name),
             .identity = {info.vendorIdentifier(), info.productIdentifier(), FromQString(info.serialNumber())}});
    }
    return WithoutDialIn(std::move(ports));
}

QtSerialPorts::QtSerialPorts(std::function<std::vector<MachinePort>()> askMachine)
    : askMachine_(std::move(askMachine)) {}

void QtSerialPorts::BeginNumbering() {
    if (isNumbered_ || firstPorts_.valid()) {
        return;
    }
    firstLinks_ = LinksOfUser();
    firstPorts_ = std::async(std::launch::async, askMachine_);
    sinceAsked_.start();
}

std::unique_ptr<SerialPort> QtSerialPorts::Make(std::string_view objectName) {
    return std::make_unique<QtSerialPort>(*this, objectName);
}

PortDescription QtSerialPorts::Describe(int number) {
    FinishNumbering();
    if (sinceAsked_.hasExpired(AskEveryMilliseconds)) {
        Ask();
    }
    if constexpr (HasNumberedPorts) {
        const PortNumbers numbers = NumbersByName(ports_);
        const auto found = numbers.find(number);
        return found == numbers.end() ? PortDescription() : found->second;
    } else {
        numbering_.Follow(LinksOfUser(), ports_);
        return numbering_.DeviceOf(number);
    }
}

void QtSerialPorts::NumberAnew() {
    FinishNumbering();
    Ask();
    numbering_.NumberAnew(LinksOfUser(), ports_);
}

void QtSerialPorts::FinishNumbering() {
    BeginNumbering();
    if (!std::exchange(isNumbered_, true)) {
        ports_ = firstPorts_.get();
        numbering_.NumberAnew(firstLinks_, ports_);
    }
}

void QtSerialPorts::Ask() {
    ports_ = askMachine_();
    sinceAsked_.start();
}

} // namespace zelvor
