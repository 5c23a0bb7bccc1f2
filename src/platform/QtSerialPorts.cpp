#include "platform/QtSerialPorts.h"

#include <QDir>
#include <QFileInfo>
#include <QSerialPortInfo>
#include <QStandardPaths>

#include "platform/QtSerialPort.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr int AskEveryMilliseconds = 500;

std::vector<MachinePort> AskMachine() {
    std::vector<MachinePort> ports;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        const QString name = info.portName();
        const bool isUsb = info.hasVendorIdentifier() || name.startsWith(u"ttyUSB") || name.startsWith(u"ttyACM") ||
                           name.startsWith(u"cu.usb");
        ports.push_back(
            {FromQString(name), {FromQString(info.systemLocation()), FromQString(info.description())}, isUsb});
    }
    return ports;
}

[[maybe_unused]] std::string TargetOf(const QFileInfo& link) {
    const QString device = link.canonicalFilePath(); // empty where nothing is there
    return FromQString(device.isEmpty() ? link.symLinkTarget() : device);
}

[[maybe_unused]] std::vector<PortLink> LinksOfUser() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                      QStringLiteral("/Zelvor/ports"));
    std::vector<PortLink> links;
    for (const QFileInfo& entry : folder.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        if (const int number = NumberOfPortName(FromQString(entry.fileName())); number != 0) {
            links.push_back({number, TargetOf(entry)});
        }
    }
    return links;
}

} // namespace

std::unique_ptr<SerialPort> QtSerialPorts::Make(std::string_view objectName) {
    return std::make_unique<QtSerialPort>(*this, objectName);
}

PortDescription QtSerialPorts::Describe(int number) {
    const PortNumbers numbers = Numbers();
    const auto found = numbers.find(number);
    return found == numbers.end() ? PortDescription() : found->second;
}

PortNumbers QtSerialPorts::Numbers() {
#ifdef Q_OS_WIN
    return NumbersByName(PortsOfMachine());
#else
    return NumbersByLinksAndOrder(LinksOfUser(), PortsOfMachine());
#endif
}

const std::vector<MachinePort>& QtSerialPorts::PortsOfMachine() {
    if (!sinceAsked_.isValid() || sinceAsked_.hasExpired(AskEveryMilliseconds)) {
        ports_ = AskMachine();
        sinceAsked_.start();
    }
    return ports_;
}

} // namespace zelvor
