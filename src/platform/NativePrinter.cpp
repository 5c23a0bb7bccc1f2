#include "platform/NativePrinter.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPrinterInfo>

#include "platform/Toolkit.h"

namespace zelvor {

std::unique_ptr<QPrinter> MakePrinter(const InstalledPrinter& printer) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(ToQString(printer.name));
    if (info.isNull()) {
        return nullptr;
    }
    auto made = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    UseOwnPaper(*made, printer);
    return made;
}

// Otherwise the toolkit takes A4 wherever a printer has it.
void UseOwnPaper(QPrinter& printer, const InstalledPrinter& own) {
    const QPageSize paper = QPrinterInfo::printerInfo(ToQString(own.name)).defaultPageSize();
    if (paper.isValid()) {
        printer.setPageSize(paper);
    }
    if (own.isLandscape) {
        printer.setPageOrientation(QPageLayout::Landscape);
    }
}

void CopyChoices(const QPrinter& from, QPrinter& to) {
    to.setPageLayout(from.pageLayout());
    to.setCopyCount(from.copyCount());
    to.setCollateCopies(from.collateCopies());
    to.setPageOrder(from.pageOrder());
    to.setDuplex(from.duplex());
    to.setColorMode(from.colorMode());
}

} // namespace zelvor
