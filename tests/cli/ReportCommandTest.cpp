#include "cli/ReportCommand.h"

#include <QFile>

#include "cli/CliFixture.h"
#include "platform/PdfFile.h"
#include "platform/QtPageDevice.h"
#include "platform/Toolkit.h"
#include "print/DataReport.h"
#include "support/TestDirectory.h"

namespace zelvor::cli {
namespace {

class ReportTest : public CliTest {
protected:
    /// A full name as the windows have it.
#ifdef Q_OS_WIN
    static constexpr const char* Source = "C:\\a.dat";
#else
    static constexpr const char* Source = "/a.dat";
#endif

    ReportTest() {
        Put(Source, Programmed());
    }

    ExitStatus ReportInto(const std::string& output, const std::vector<std::string>& sections,
                          ReportPaper paper = ReportPaper::A4) {
        return Report({.file = Source, .output = output, .sections = sections, .paper = paper, .now = Now}, store,
                      console);
    }

    static QByteArray Content(const std::string& path) {
        QFile pdf(ToQString(path));
        return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
    }

    /// Without its date and number, which differ from file to file.
    static QByteArray Pages(const QByteArray& pdf) {
        const qsizetype first = pdf.indexOf("/Type /Page\n");
        return pdf.mid(first, pdf.indexOf("xref\n") - first);
    }

    static constexpr LocalTime Now{.year = 2026, .month = 11, .day = 22, .hour = 1, .minute = 45, .second = 2};
    zelvor::testing::TestDirectory folder;
    const std::string file = zelvor::testing::Utf8(folder / "report.pdf");
};

TEST_F(ReportTest, PrintsThePagesOfTheChosenSections) {
    EXPECT_EQ(ReportInto(file, {}), ExitStatus::Done);
    EXPECT_TRUE(Content(file).startsWith("%PDF-"));
    EXPECT_EQ(Content(file).count("/Type /Page\n"), 8);
    EXPECT_EQ(ReportInto(file, {"scan", "channels"}), ExitStatus::Done);
    EXPECT_EQ(Content(file).count("/Type /Page\n"), 2);
    EXPECT_EQ(Out() + Err(), "");
}

TEST_F(ReportTest, IsWhatTheWindowsPrintIntoAFile) {
    EXPECT_EQ(ReportInto(file, {"dtmf"}), ExitStatus::Done);
    const std::string printed = zelvor::testing::Utf8(folder / "printed.pdf");
    {
        QtPageDevice device(ToQString(printed));
        PrintDataReport(device, BuildDataReport(Programmed(), ReportSelection(0b1000), Source, Language::English, Now));
        EXPECT_TRUE(device.IsWritten());
    }
    EXPECT_GT(Pages(Content(file)).size(), 1000);
    EXPECT_EQ(Pages(Content(file)), Pages(Content(printed)));
}

TEST_F(ReportTest, TakesThePaperThatIsAskedFor) {
    EXPECT_EQ(ReportInto(file, {"keys"}), ExitStatus::Done);
    EXPECT_TRUE(Content(file).contains("/MediaBox [0 0 595."));
    EXPECT_EQ(ReportInto(file, {"keys"}, ReportPaper::Letter), ExitStatus::Done);
    EXPECT_TRUE(Content(file).contains("/MediaBox [0 0 612."));
}

TEST_F(ReportTest, TellsOfAFileThatCannotBeWritten) {
    const std::string gone = zelvor::testing::Utf8(folder / "gone" / "report.pdf");
    EXPECT_EQ(ReportInto(gone, {}), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: " + gone + ": cannot be written\n");
    EXPECT_EQ(ReportInto(zelvor::testing::Utf8(folder.Path()), {}), ExitStatus::File);
    EXPECT_EQ(ReportInto("/dev/full", {}), ExitStatus::File);
    EXPECT_EQ(zelvor::testing::EntriesOf(folder.Path()), std::vector<std::string>());
}

} // namespace
} // namespace zelvor::cli
