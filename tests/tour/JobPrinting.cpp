// Both reports, printed to PDF.

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

/// Seven sections of a page each, and the sixteen channels four by four.
constexpr int DataReportPages = 11;

/// For a question to the window thread.
QWidget* OkOfPrintSetup() {
    const QWidget* dialog = WindowOnTop();
    const auto* buttons = dialog ? dialog->findChild<QDialogButtonBox*>() : nullptr;
    return buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr;
}

QByteArray ContentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int PagesOf(const QByteArray& pdf) {
    return static_cast<int>(pdf.count("/Type /Page\n"));
}

} // namespace

void Job::PrintReport() {
    user_.ChooseByMouse("MnuFile", "MnuFilePrint");
    boxes_.ExpectDialog("frmPrintList", words_.printCaption);
    ChoosePdf();
    Check("OK waits for a choice", windows_.Ask([] { return !WidgetOnTop("cmdOK")->isEnabled(); }));
    user_.Click("cmdSelectAll");
    screenshots_.Take("print-list");
    user_.Click("cmdOK");
    boxes_.WaitUntilGone("frmPrintList");
    TakePdf("data-report", DataReportPages);
    Done("File > Print: all eight sections on 11 pages");
}

/// What is chosen holds for the tuning report too.
void Job::ChoosePdf() {
    user_.Click("cmdPrintSetup");
    windows_.WaitUntil("the print set-up dialog", [] { return IsOnTop("dlgPrint"); });
    user_.TabTo("printers");
    user_.Press(Qt::Key_End); // behind all printers: the PDF file
    user_.ClickOn("the file name", [] { return WidgetOnTop("filename"); });
    user_.Press(Qt::Key_A, Qt::ControlModifier);
    user_.Type(PdfFile());
    windows_.WaitUntil("the path typed", [&] { return TextOnTop("filename") == PdfFile(); });
    if (windows_.Ask([] { return QApplication::activePopupWidget() != nullptr; })) {
        user_.Press(Qt::Key_Escape); // the list of the completer
    }
    screenshots_.Take("print-setup");
    user_.ClickOn("OK of the print set-up", OkOfPrintSetup);
    windows_.WaitUntil("the list of what to print", [] { return IsOnTop("frmPrintList"); });
}

void Job::PrintTuningReport() {
    user_.Click("CmdPrint");
    boxes_.Expect(words_.printTuning);
    screenshots_.Take("print-tuning");
    boxes_.Answer(QMessageBox::Ok);
    TakePdf("tuning-report", 1);
    Done("test mode, Print: all tuning data on a page");
}

QString Job::PdfFile() const {
    return QFileInfo(round_.dataFile).path() + "/report.pdf";
}

void Job::TakePdf(const QString& what, int pages) {
    windows_.WaitUntil("the PDF file", [this] { return ContentOf(PdfFile()).trimmed().endsWith("%%EOF"); });
    CheckEqual("number of pages of the " + what.toStdString(), QString::number(PagesOf(ContentOf(PdfFile()))),
               QString::number(pages));
    screenshots_.Keep(what, PdfFile());
    Check("the PDF file can be removed", QFile::remove(PdfFile()));
}

} // namespace zelvor::tour
