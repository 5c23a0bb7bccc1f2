// The small texts that come from outside: the settings file, the names of backups, of port links and of the machine's
// ports, the faults on a command line, texts in both encodings, and numbers.

#include <set>

#include "FuzzInput.h"
#include "Require.h"
#include "platform/BackupName.h"
#include "platform/PortNumbering.h"
#include "platform/SettingsText.h"
#include "simulator/FaultPlan.h"
#include "text/Decimal.h"
#include "text/Utf8.h"

namespace zelvor::fuzz {
namespace {

void CheckSettings(FuzzInput& input) {
    const std::string value = input.TakeText(input.TakeByte());
    const std::string text = input.TakeRestAsText();
    const std::string other = SettingOf(text, "BackUp", "LastModel");
    const std::string changed = WithSetting(text, "BackUp", "Language", value);
    Require(SettingOf(changed, "BackUp", "Language") == value, "a setting is read as it was written");
    Require(SettingOf(changed, "BackUp", "LastModel") == other, "another setting stays");
    Require(WithSetting(changed, "BackUp", "Language", value) == changed, "a setting once more changes nothing");
}

void CheckNames(FuzzInput& input) {
    const std::string text = input.TakeRestAsText();
    if (const auto name = BackupName::Parse(text)) {
        Require(name->Text() == text && name->number >= 1, "a backup's name is the text that it was read from");
    }
    const int number = NumberOfPortName(text);
    Require(number == 0 || text == "COM" + std::to_string(number), "a port's number is in its name");
    if (const auto fault = ParseFault(text)) {
        Require(ParseFault(FaultText(*fault)) == fault, "a fault is told as it can be given");
    }
    const std::string plain = Utf8Of(Utf16Of(text));
    Require(Utf8Of(Utf16Of(plain)) == plain, "a text in UTF-8 stays as it is");
    const Decimal decimal = Decimal::Leading(text);
    Require(Decimal::Leading(decimal.Format(1, 10)) == decimal, "a number is read as it was written");
}

MachinePort TakePort(FuzzInput& input) {
    const std::uint8_t kind = input.TakeByte();
    const std::string name = input.TakeText(kind % 8);
    const UsbIdentity identity{kind & 1, kind & 2, std::string((kind >> 3) & 1, 's')};
    return {name, {"/dev/" + name, {}}, (kind & 0x20) != 0, (kind & 0x40) != 0 ? identity : UsbIdentity()};
}

void CheckPorts(FuzzInput& input) {
    PortNumbering numbering;
    bool hadLinks = false; // since the numbering began
    while (!input.IsEmpty()) {
        std::vector<MachinePort> ports;
        std::set<std::string> paths;
        for (int count = input.TakeByte() % 26; count > 0; --count) {
            const MachinePort port = TakePort(input);
            if (paths.insert(port.description.devicePath).second) {
                ports.push_back(port);
            }
        }
        std::vector<PortLink> links;
        for (int count = input.TakeByte() % 4; count > 0; --count) {
            links.push_back({FirstPortNumber + input.TakeByte() % LastPortNumber, "/dev/" + input.TakeText(2)});
        }
        hadLinks = hadLinks || !links.empty();
        if (input.TakeBool()) {
            hadLinks = !links.empty();
            numbering.NumberAnew(links, ports);
        } else {
            numbering.Follow(links, ports);
        }
        std::set<std::string> numbered;
        for (int number = FirstPortNumber; number <= LastPortNumber; ++number) {
            const std::string path = numbering.DeviceOf(number).devicePath;
            const bool isNew = path.empty() || numbered.insert(path).second;
            Require(isNew || hadLinks, "a device that no link has named has one number");
            Require(path.empty() || paths.contains(path) || !links.empty(),
                    "a number stands for a device that is there");
        }
        Require(numbering.DeviceOf(LastPortNumber + 1).devicePath.empty(), "there are 20 numbers");
    }
}

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace zelvor::fuzz;
    FuzzInput input(bytes, count);
    switch (input.TakeByte() % 3) {
    case 0:
        CheckSettings(input);
        break;
    case 1:
        CheckNames(input);
        break;
    default:
        CheckPorts(input);
    }
    return 0;
}
