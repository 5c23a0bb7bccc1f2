#include "cli/PortsCommand.h"

#include "platform/PortNumbering.h"
#include "platform/SerialPort.h"

namespace zelvor::cli {

ExitStatus ListPorts(SerialPorts& ports, const Console& console) {
    for (int number = FirstPortNumber; number <= LastPortNumber; ++number) {
        const PortDescription port = ports.Describe(number);
        console.out << number;
        if (!port.devicePath.empty()) {
            console.out << '\t' << Printable(port.devicePath);
        }
        if (!port.description.empty()) {
            console.out << '\t' << Printable(port.description);
        }
        console.out << '\n';
    }
    return ExitStatus::Done;
}

} // namespace zelvor::cli
