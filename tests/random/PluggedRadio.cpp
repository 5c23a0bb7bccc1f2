#include "random/PluggedRadio.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <array>
#include <utility>

#include "simulator/FaultPlan.h"
#include "tour/Failure.h"

namespace zelvor::random {

namespace {

constexpr int PortCount = 20;
constexpr std::uint32_t MostFaults = 4;
constexpr std::uint32_t MostReplies = 90; // of which one is spoilt; a read has 20, an entry into test mode 36

void MakeLinks(const QString& radioLink) {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Zelvor/ports");
    folder.mkpath(".");
    for (int number = 1; number <= PortCount; ++number) {
        const QString link = folder.filePath("COM" + QString::number(number));
        QFile::remove(link);
        // The second has no device, the others one that is no serial port.
        QFile::link(number == 1 ? radioLink : number == 2 ? "/dev/no-such-port" : "/dev/null", link);
    }
}

} // namespace

PluggedRadio::PluggedRadio(QString program, QString home, Draws draws)
    : program_(std::move(program)), home_(std::move(home)), draws_(draws) {
    MakeLinks(home_ + "/links/COM1");
    PlugIn();
}

std::string PluggedRadio::Turn() {
    if (radio_) {
        radio_.reset();
        return "unplugged";
    }
    return PlugIn();
}

std::string PluggedRadio::PlugIn() {
    QStringList arguments{"--link-dir", home_ + "/links"};
    QString faults;
    for (std::uint32_t count = draws_.Below(MostFaults); count > 0; --count) {
        const QString fault = SomeFault();
        arguments << "--fault" << fault;
        faults += " " + fault;
    }
    try {
        radio_ = std::make_unique<tour::RadioProgram>(program_, home_ + "/radio.dat", arguments);
    } catch (const tour::Failure& failure) {
        return std::string("not plugged in: ") + failure.what(); // two faults of one reply, for instance
    }
    return "plugged in" + faults.toStdString();
}

QString PluggedRadio::SomeFault() {
    constexpr std::array kinds{"drop@%1",       "corrupt@%1", "cut:1@%1", "delay:150@%1",
                               "delay:2500@%1", "hang@%1",    "unplug@%1"};
    const std::uint32_t kind = draws_.Below(kinds.size());
    const int reply = 1 + static_cast<int>(draws_.Below(MostReplies));
    const QString fault = QString(kinds.at(kind)).arg(reply);
    // Of a reply of one byte nothing can be cut.
    return fault.startsWith("cut") && LongestReply(reply) == 1 ? QString("drop@%1").arg(reply) : fault;
}

} // namespace zelvor::random
