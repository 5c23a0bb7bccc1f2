#include "cli/radio/RadioRig.h"

#include <algorithm>
#include <array>

#include "platform/DataFiles.h"

namespace zelvor::cli {

RadioRig::RadioRig() {
    clock.SetNow({2026, 11, 22, 1, 45, 2});
    ports.OnMake = [this](FakeSerialPort& port) {
        radio.Attach(port);
        const auto serve = port.OnSend;
        port.OnSend = [this, serve](std::span<const std::uint8_t> bytes) {
            if (OnCommand) {
                OnCommand(Hex(bytes));
            }
            if (isConnected) {
                serve(bytes);
            }
        };
    };
    const DataImage::Bytes memory = PatternImage(3).ToAddressOrder();
    std::copy(memory.begin(), memory.end(), radio.Memory.begin());
}

DataImage RadioRig::RadioImage() const {
    return DataImage::FromAddressOrder(radio.Memory);
}

void RadioRig::PutFile(const std::string& path, const DataImage& image) {
    EXPECT_TRUE(WriteDataFile(store, path, image));
}

DataImage RadioRig::FileImage(const std::string& path) {
    const DataFileRead file = ReadDataFile(store, path);
    EXPECT_EQ(file.error, DataFileError::None) << path;
    return file.image;
}

int RadioRig::Entries() const {
    return static_cast<int>(std::count(radio.Commands().begin(), radio.Commands().end(), "50 52 4F 47 52 41 4D"));
}

bool RadioRig::HasWritten() const {
    return std::any_of(radio.Commands().begin(), radio.Commands().end(),
                       [](const std::string& command) { return command.starts_with("57 "); });
}

int RadioRig::CountInLog(const std::string& line) const {
    const std::vector<std::string>& log = ports.Record("MSComm1").log;
    return static_cast<int>(std::count(log.begin(), log.end(), line));
}

void RadioRig::Forget() {
    out.str("");
    errors.str("");
    shown.clear();
    radio.ClearCommands();
}

void RadioRig::Progress::Show(std::string_view what, int value, int maximum) {
    const std::string text = std::string(what) + ' ' + std::to_string(value) + " of " + std::to_string(maximum);
    if (rig_.shown.empty() || !rig_.shown.back().starts_with(what)) {
        rig_.shown.emplace_back();
    }
    rig_.shown.back() = text;
}

void RadioRig::Progress::Clear() {
    if (rig_.OnClear) {
        rig_.OnClear();
    }
}

DataImage PatternImage(int seed) {
    DataImage image;
    for (int address = 0; address < 1024; ++address) {
        image.Set(address, static_cast<std::uint8_t>(address * 7 + address / 64 * 3 + address / 256 + seed));
    }
    constexpr std::array<std::uint8_t, 8> Identity{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF};
    for (std::size_t i = 0; i < Identity.size(); ++i) {
        image.Set(0x1B8 + static_cast<int>(i), Identity[i]);
    }
    for (int channel = 1; channel <= 16; ++channel) {
        image.Set(channel * 16 + 14, 0xFF); // sends no PTT ID code
    }
    image.Set(0x160, 0x00); // no priority channel; see the test of the checks
    return image;
}

} // namespace zelvor::cli
