#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "platform/Clock.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

enum class ReportPaper { A4, Letter };

struct ReportRequest {
    std::string file;
    std::string output;                // the PDF file
    std::vector<std::string> sections; // none: all
    ReportPaper paper = ReportPaper::A4;
    LocalTime now;
};

/// Prints the data report into a PDF file, as the windows would; never over the data file itself. Needs the toolkit's
/// application with fonts.
[[nodiscard]] ExitStatus Report(const ReportRequest& request, FileStore& store, const Console& console);

} // namespace zelvor::cli
