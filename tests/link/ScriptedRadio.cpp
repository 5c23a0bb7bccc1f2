#include "link/ScriptedRadio.h"

#include <algorithm>
#include <utility>

namespace zelvor {

void ScriptedRadio::Attach(FakeSerialPort& port) {
    port.OnSend = [this](std::span<const std::uint8_t> bytes) { Serve(bytes); };
}

void ScriptedRadio::Serve(std::span<const std::uint8_t> command) {
    commands_.push_back(Hex(command));
    if (Hex(command) == "50 52 4F 47 52 41 4D") {
        programming_ = true;
        return Reply({0x06});
    }
    if (!programming_) {
        return;
    }
    if (command.front() == 'E') {
        programming_ = false;
        if (AnswersEnd) {
            DeliverAfter(ReplyDelay, {0x06});
        }
    } else if (command.front() == 0x02) {
        Reply(Bytes(Identity.begin(), Identity.end()));
    } else if (command.front() == 0x06) {
        Reply({0x06});
    } else if (command.front() == 'R') {
        const auto block = Memory.begin() + command[1] * 256 + command[2];
        Bytes reply{'W', command[1], command[2], 0x40};
        reply.insert(reply.end(), block, block + 64);
        Reply(reply);
    } else if (command.front() == 'W') {
        std::copy(command.begin() + 4, command.end(), Memory.begin() + command[1] * 256 + command[2]);
        Reply({0x06});
    }
}

void ScriptedRadio::Reply(Bytes reply) {
    bytesReplied_ += static_cast<int>(reply.size());
    const auto delivery = replies_.Next(std::move(reply));
    if (!delivery) {
        return;
    }
    if (delivery->portVanishes) {
        clock_.At(delivery->delay, [this] { ports_.Port("MSComm1")->Vanish(); });
        return;
    }
    DeliverAfter(delivery->delay, delivery->bytes);
}

void ScriptedRadio::DeliverAfter(int milliseconds, const Bytes& reply) {
    const auto deliver = [this](const Bytes& bytes) {
        if (FakeSerialPort* port = ports_.Port("MSComm1")) {
            port->Deliver(bytes);
        }
    };
    if (!ByteByByte) {
        clock_.At(milliseconds, [=] { deliver(reply); });
        return;
    }
    for (const std::uint8_t byte : reply) {
        clock_.At(milliseconds++, [=] { deliver({byte}); });
    }
}

} // namespace zelvor
