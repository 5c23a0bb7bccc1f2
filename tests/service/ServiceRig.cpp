#include "service/ServiceRig.h"

#include <sstream>
#include <utility>

namespace zelvor {

std::vector<std::uint8_t> Bytes(const std::string& hex) {
    std::vector<std::uint8_t> bytes;
    std::istringstream text(hex);
    for (std::string pair; text >> pair;) {
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(pair, nullptr, 16)));
    }
    return bytes;
}

ServiceRig::ServiceRig() {
    ports.OnMake = [this](FakeSerialPort& port) {
        port.OnSend = [this, &port](std::span<const std::uint8_t> command) {
            sent.push_back(Hex(command));
            times.push_back(clock.TickCount());
            Serve(port, sent.back());
        };
    };
}

std::vector<std::string> ServiceRig::TakeSent() {
    times.clear();
    return std::exchange(sent, {});
}

bool ServiceRig::IsPortOpen() const {
    const FakeSerialPort* port = ports.Port("MSComm1");
    return port != nullptr && port->IsOpen();
}

bool ServiceRig::IsRunning(std::string_view timer) const {
    const Timer* found = clock.FindTimer(timer);
    return found != nullptr && found->IsEnabled();
}

std::int64_t ServiceRig::TimeOfPrompt(const std::function<void()>& start) {
    prompted_ = -1;
    messages.Expect(ConnectionPrompt(), [this] {
        prompted_ = clock.TickCount();
        return MessageAnswer::Cancel;
    });
    start();
    clock.Advance(1000);
    return prompted_;
}

void ServiceRig::Serve(FakeSerialPort& port, const std::string& command) {
    const auto special = replies.find(command);
    std::vector<std::uint8_t> reply = Bytes(special != replies.end() ? special->second : UsualReply(command));
    if (reply.empty()) {
        return;
    }
    const auto delivery = replies_.Next(std::move(reply));
    if (!delivery) {
        return;
    }
    if (delivery->portVanishes) {
        clock.At(delivery->delay, [&port] { port.Vanish(); });
        return;
    }
    clock.At(delivery->delay, [this, bytes = delivery->bytes] {
        if (FakeSerialPort* living = ports.Port("MSComm1"); living != nullptr && living->IsOpen()) {
            living->Deliver(bytes);
        }
    });
}

std::string ServiceRig::UsualReply(const std::string& command) const {
    if (command == "02") {
        return "50 34 36 31 38 01 F8 FF";
    }
    if (command == "4E 52 4B") {
        return "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 41 0E 0F 10 30 31 32 33 34 35 36 37 19 1A 1B 1C 1D 1E 1F 20 21";
    }
    if (command == "50") {
        return "01 02 03 04 05 06 07 08 09 0A";
    }
    if (command == "05") {
        std::vector<std::uint8_t> record;
        for (int byte = 1; byte <= 62; ++byte) {
            record.push_back(static_cast<std::uint8_t>(100 + byte));
        }
        return Hex(record);
    }
    if (command.starts_with("10 ")) {
        return ChannelRecord(std::stoi(command.substr(3), nullptr, 16));
    }
    if (command == "07") {
        return "01 02 03 04 05 06";
    }
    if (command.size() == 5 && command.ends_with(" 0A")) {
        return Hex(std::vector{static_cast<std::uint8_t>(measured)});
    }
    return "06";
}

std::string ServiceRig::ChannelRecord(int channel) const {
    std::vector<std::uint8_t> record;
    for (int i = 0; i < 8; ++i) {
        record.push_back(document.Image.At(0x280 + (channel - 1) * 8 + i));
    }
    return Hex(record);
}

} // namespace zelvor
