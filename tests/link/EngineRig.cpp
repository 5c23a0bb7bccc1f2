#include "link/EngineRig.h"

#include <algorithm>

namespace zelvor {

std::uint8_t PatternAt(int address) {
    return static_cast<std::uint8_t>(address * 7 + address / 64 * 3 + address / 256 + 1);
}

Message ModelPrompt() {
    return {"Warning", "Model type is wrong.Overwrite?", MessageIcon::Exclamation, MessageButtons::OkCancel,
            MessageAnswer::Cancel};
}

Message ReadingCompleted() {
    return {"", "Reading Completed", MessageIcon::Information, MessageButtons::Ok, MessageAnswer::Ok};
}

Message WritingCompleted() {
    return {"", "Writing Completed", MessageIcon::Information, MessageButtons::Ok, MessageAnswer::Ok};
}

Bytes IdentityReply() {
    return {0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF};
}

Bytes BlockReply(int block) {
    const int first = (block - 1) * 64;
    Bytes reply{0x57, static_cast<std::uint8_t>(first / 256), static_cast<std::uint8_t>(first % 256), 0x40};
    for (int i = 0; i < 64; ++i) {
        reply.push_back(PatternAt(first + i));
    }
    return reply;
}

EngineRig::EngineRig(int transferMode) : serialPort(ports.Make("MSComm1")) {
    link.TransferMode = transferMode;
    UseLanguage(Language::English);
}

EngineRig::~EngineRig() = default;

void EngineRig::UsePattern() {
    FillImageWithPattern();
    for (int address = 0; address < 1024; ++address) {
        radio.Memory[static_cast<std::size_t>(address)] = PatternAt(address);
    }
    radio.Identity[5] = PatternAt(0x1BD);
    radio.Identity[6] = PatternAt(0x1BE);
}

void EngineRig::FillImageWithPattern() {
    for (int address = 0; address < 1024; ++address) {
        document.Image.Set(address, PatternAt(address));
    }
}

void EngineRig::UseLanguage(Language language) {
    engine.reset(); // before the other one listens to the port
    engine = std::make_unique<CloneEngine>(document, RadioLink{link, *serialPort, clock, messages, language}, *this);
    LoadAgain(link.TransferMode);
}

void EngineRig::LoadAgain(int transferMode) {
    link.TransferMode = transferMode;
    engine->Load();
    events.clear();
}

void EngineRig::ToEntry() {
    engine->Start();
    clock.Advance(10);
}

void EngineRig::ToIdentity() {
    ToEntry();
    Answer({0x06});
}

void EngineRig::ToConfirmation() {
    ToIdentity();
    Answer(IdentityReply());
}

void EngineRig::ToData() {
    if (Link().TransferMode == Write) { // a radio that the model check accepts
        document.Image.Set(0x1BD, 0x01);
        document.Image.Set(0x1BE, 0xF8);
    }
    ToConfirmation();
    Answer({0x06});
}

void EngineRig::Answer(const Bytes& reply) {
    Port().Deliver(reply);
    clock.Advance(1);
}

void EngineRig::AnswerUntilStep(int step) {
    while (Link().StepCount < step) {
        if (Link().TransferMode == Read) {
            Answer(BlockReply(std::min(Link().StepCount, 16)));
        }
        Answer({0x06});
    }
}

std::string EngineRig::TimerState(std::string_view timer) const {
    return IsRunning(timer) ? std::to_string(clock.IntervalOf(timer)) : "off";
}

std::string EngineRig::TakeSent() {
    std::string sent = Hex(Port().Sent());
    Port().ClearSent();
    return sent;
}

int EngineRig::Count(const std::string& event) const {
    return static_cast<int>(std::count(events.begin(), events.end(), event));
}

void EngineRig::OnReadCompleted() {
    events.emplace_back("read completed");
    if (WhenReadCompleted) {
        WhenReadCompleted();
    }
}

} // namespace zelvor
