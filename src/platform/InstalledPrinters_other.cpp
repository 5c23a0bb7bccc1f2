#include <QPrinterInfo>

#include "platform/InstalledPrinters.h"
#include "platform/Toolkit.h"

namespace zelvor {

// A printer's orientation is among what the toolkit takes over from these systems by itself.
std::vector<InstalledPrinter> AskForPrinters() {
    const QString preferred = QPrinterInfo::defaultPrinterName();
    std::vector<InstalledPrinter> printers;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) {
        printers.push_back({.name = FromQString(name), .isDefault = name == preferred});
    }
    return printers;
}

} // namespace zelvor
