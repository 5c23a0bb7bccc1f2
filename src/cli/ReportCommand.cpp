#include "cli/ReportCommand.h"

#include <QDir>
#include <QFileInfo>

#include "cli/RadioFile.h"
#include "cli/SameFile.h"
#include "cli/Sections.h"
#include "platform/FontCheck.h"
#include "platform/PdfFile.h"
#include "platform/QtPageDevice.h"
#include "platform/Toolkit.h"
#include "print/DataReport.h"

namespace zelvor::cli {

namespace {

constexpr TextPair NoFont{"no font is installed, so texts are printed as empty boxes",
                          "系统没有安装字体，文字将打印为空框"};

/// As the windows name a document: its full path.
std::string FileNameOf(const std::string& path) {
    return FromQString(QDir::toNativeSeparators(QFileInfo(ToQString(path)).absoluteFilePath()));
}

QPageSize::PageSizeId PaperOf(ReportPaper paper) {
    switch (paper) {
    case ReportPaper::Letter:
        return QPageSize::Letter;
    case ReportPaper::A4:
        break;
    }
    return QPageSize::A4;
}

} // namespace

ExitStatus Report(const ReportRequest& request, FileStore& store, const Console& console) {
    if (OverwritesInput(request.output, request.file, console)) {
        return ExitStatus::Usage;
    }
    const std::optional<RadioFile> file = ReadRadioFile(store, request.file, console);
    if (!file) {
        return ExitStatus::File;
    }
    if (!HasFont()) {
        console.Complain(console.Say(NoFont));
    }
    QtPageDevice device(ToQString(request.output), PdfFile::UsualLayout(PaperOf(request.paper)));
    PrintDataReport(device, BuildDataReport(file->image, ReportSelectionOf(request.sections), FileNameOf(request.file),
                                            console.language, request.now));
    if (!device.IsWritten()) {
        console.Complain(request.output, Unwritable);
        return ExitStatus::File;
    }
    return ExitStatus::Done;
}

} // namespace zelvor::cli
