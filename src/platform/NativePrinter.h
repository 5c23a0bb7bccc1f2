#pragma once

#include <QPrinter>
#include <memory>

#include "platform/InstalledPrinters.h"

namespace zelvor {

/// The printer with its own paper and orientation; null where it is gone.
[[nodiscard]] std::unique_ptr<QPrinter> MakePrinter(const InstalledPrinter& printer);

/// Gives the toolkit's printer the paper and the orientation that this one has.
void UseOwnPaper(QPrinter& printer, const InstalledPrinter& own);

/// What the set-up dialog shows of a printer's choices, from one to another.
void CopyChoices(const QPrinter& from, QPrinter& to);

} // namespace zelvor
