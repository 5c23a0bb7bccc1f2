#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <vector>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

#include "fakes/FakePageDevice.h"
#include "platform/QtPageDevice.h"

namespace zelvor {
namespace {

struct FakePrinter {
    FakePageDevice device;
};

struct PdfPrinter {
    QTemporaryDir folder;
    QString file = folder.filePath("report.pdf");
    QtPageDevice device{file};
};

template<class Printer>
class PageDeviceContract : public testing::Test {
protected:
    Printer printer_;
    PageDevice& device_ = printer_.device;
};

using Printers = testing::Types<FakePrinter, PdfPrinter>;
TYPED_TEST_SUITE(PageDeviceContract, Printers);

TYPED_TEST(PageDeviceContract, FindsSomethingToPrintOn) {
    std::vector<PageTarget> targets;
    this->device_.FindTarget([&targets](const PageTarget& target) { targets.push_back(target); });
    ASSERT_EQ(targets.size(), 1U);
    EXPECT_TRUE(targets[0].kind == PageTarget::Kind::Printer || targets[0].kind == PageTarget::Kind::File);
    EXPECT_FALSE(targets[0].name.empty());
    EXPECT_FALSE(targets[0].replacesFile);
}

TYPED_TEST(PageDeviceContract, HasAPageOfPaperSizeInTwips) {
    ASSERT_TRUE(this->device_.BeginDocument("Report"));
    EXPECT_GT(this->device_.PageWidth(), 6 * 1440);
    EXPECT_LT(this->device_.PageWidth(), 9 * 1440);
    EXPECT_GT(this->device_.PageHeight(), 9 * 1440);
    EXPECT_LT(this->device_.PageHeight(), 12 * 1440);
    this->device_.EndDocument();
}

TYPED_TEST(PageDeviceContract, MeasuresTextsInTwipsByTheirFont) {
    ASSERT_TRUE(this->device_.BeginDocument("Report"));
    this->device_.SetFont({.pointSize = 10});
    EXPECT_EQ(this->device_.TextWidth(""), 0);
    const double width = this->device_.TextWidth("mmmmmmmmmm");
    EXPECT_GT(width, 600);
    EXPECT_LT(width, 3000);
    EXPECT_NEAR(this->device_.TextWidth("mmmmmmmmmmmmmmmmmmmm"), 2 * width, 0.1 * width);
    const double height = this->device_.TextHeight();
    EXPECT_GT(height, 200);
    EXPECT_LT(height, 400);
    this->device_.SetFont({.pointSize = 20});
    EXPECT_NEAR(this->device_.TextHeight(), 2 * height, 0.1 * height);
    EXPECT_NEAR(this->device_.TextWidth("mmmmmmmmmm"), 2 * width, 0.1 * width);
    this->device_.EndDocument();
}

TYPED_TEST(PageDeviceContract, BeginsEveryDocumentWithTheSameFont) {
    ASSERT_TRUE(this->device_.BeginDocument("First"));
    const double width = this->device_.TextWidth("Report");
    this->device_.SetFont({.pointSize = 30, .bold = true});
    this->device_.EndDocument();
    ASSERT_TRUE(this->device_.BeginDocument("Second"));
    EXPECT_EQ(this->device_.TextWidth("Report"), width);
    this->device_.EndDocument();
}

QByteArray ContentOf(const QString& file) {
    QFile pdf(file);
    return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
}

TEST(QtPageDevice, MakesAPdfFileOfAsManyPagesAsWereBegun) {
    PdfPrinter printer;
    ASSERT_TRUE(printer.device.BeginDocument("Zelvor Report"));
    printer.device.DrawText(100, 100, "First page 信道");
    ASSERT_TRUE(printer.device.NewPage());
    printer.device.DrawLine(0, 0, 1440, 1440);
    ASSERT_TRUE(printer.device.NewPage());
    printer.device.EndDocument();
    const QByteArray pdf = ContentOf(printer.file);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_EQ(pdf.count("/Type /Page\n"), 3);
}

/// An object of a PDF file: what lies between its head and its end.
QByteArray ObjectOf(const QByteArray& pdf, const QByteArray& number) {
    const QByteArray head = "\n" + number + " 0 obj";
    const auto start = pdf.indexOf(head);
    return start < 0 ? QByteArray()
                     : pdf.mid(start + head.size(), pdf.indexOf("\nendobj", start) - start - head.size());
}

/// The drawing of a PDF file of one page, uncompressed: the stream of the object that the page names.
QByteArray DrawingOf(const QString& file) {
    const QByteArray pdf = ContentOf(file);
    const QByteArray name = "/Contents ";
    const auto start = pdf.indexOf(name) + name.size();
    const QByteArray contents = ObjectOf(pdf, pdf.mid(start, pdf.indexOf(' ', start) - start));
    const QByteArray begin = "stream\n";
    const auto stream = contents.indexOf(begin) + begin.size();
    const QByteArray compressed = contents.mid(stream, contents.indexOf("\nendstream", stream) - stream);
    return qUncompress(QByteArray(4, '\x01') + compressed); // the length expected comes first
}

TEST(QtPageDevice, PutsLinesAndTextsWhereTheyAreToldInTwips) {
    PdfPrinter printer;
    ASSERT_TRUE(printer.device.BeginDocument("Report"));
    printer.device.DrawLine(1440, 2880, 4320, 2880);
    printer.device.DrawText(720, 0, "Text");
    printer.device.EndDocument();
    const QByteArray drawing = DrawingOf(printer.file); // in dots of 1/1200 inch
    EXPECT_TRUE(drawing.contains("\n1200 2400 m\n3600 2400 l\n")) << drawing.toStdString();
    EXPECT_TRUE(drawing.contains("\n600 -")) << drawing.toStdString();
}

TEST(QtPageDevice, NarrowsLettersAsTheirFontSays) {
    PdfPrinter printer;
    ASSERT_TRUE(printer.device.BeginDocument("Report"));
    printer.device.SetFont({.pointSize = 10});
    const double width = printer.device.TextWidth("Report");
    const double height = printer.device.TextHeight();
    printer.device.SetFont({.pointSize = 10, .stretch = 0.8});
    EXPECT_DOUBLE_EQ(printer.device.TextWidth("Report"), 0.8 * width);
    EXPECT_EQ(printer.device.TextHeight(), height);
    printer.device.DrawText(720, 0, "Report");
    printer.device.EndDocument();
    const QByteArray drawing = DrawingOf(printer.file);
    EXPECT_TRUE(drawing.contains("0.800000000 0 0 1 600 ")) << drawing.toStdString();
}

TEST(QtPageDevice, TellsOfAFileThatItReplaces) {
    PdfPrinter printer;
    std::vector<PageTarget> targets;
    const auto find = [&] {
        printer.device.FindTarget([&targets](const PageTarget& target) { targets.push_back(target); });
    };
    find();
    ASSERT_TRUE(printer.device.BeginDocument("Report"));
    printer.device.EndDocument();
    find();
    ASSERT_EQ(targets.size(), 2U);
    EXPECT_EQ(targets[0].name, QDir::toNativeSeparators(printer.file).toStdString());
    EXPECT_FALSE(targets[0].replacesFile);
    EXPECT_TRUE(targets[1].replacesFile);
}

TEST(QtPageDevice, LeavesAFileAsItWasUntilTheNewOneIsComplete) {
    PdfPrinter printer;
    std::ofstream(printer.file.toStdString()) << "the report of another radio";
    ASSERT_TRUE(printer.device.BeginDocument("Report"));
    printer.device.DrawText(100, 100, "Report");
    EXPECT_EQ(ContentOf(printer.file), "the report of another radio");
    printer.device.EndDocument();
    EXPECT_TRUE(ContentOf(printer.file).startsWith("%PDF-"));
    EXPECT_EQ(printer.folder.isValid() ? QDir(printer.folder.path()).entryList(QDir::Files).size() : 0, 1);
}

#ifdef Q_OS_UNIX

TEST(QtPageDevice, PrintsOverAFileThroughALink) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("report.pdf");
    const QString link = folder.filePath("link.pdf");
    std::ofstream(file.toStdString()) << "old";
    ASSERT_TRUE(QFile::link(file, link));
    QtPageDevice device(link);
    ASSERT_TRUE(device.BeginDocument("Report"));
    device.EndDocument();
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(ContentOf(file).startsWith("%PDF-"));
}

/// A device, a folder, a pipe, and a link to one.
TEST(QtPageDevice, PrintsOverNothingButAFile) {
    const QTemporaryDir folder;
    const std::filesystem::path folderPath = folder.path().toStdString();
    std::filesystem::create_directory(folderPath / "folder.pdf");
    ASSERT_EQ(mkfifo((folderPath / "pipe.pdf").c_str(), S_IRUSR | S_IWUSR), 0);
    std::filesystem::create_symlink("/dev/null", folderPath / "link.pdf");
    for (const std::filesystem::path& path :
         {std::filesystem::path("/dev/full"), std::filesystem::path("/dev/null"), folderPath / "folder.pdf",
          folderPath / "pipe.pdf", folderPath / "link.pdf"}) {
        const auto typeBefore = std::filesystem::symlink_status(path).type();
        QtPageDevice device(QString::fromStdString(path.string()));
        EXPECT_FALSE(device.BeginDocument("Report")) << path;
        EXPECT_EQ(std::filesystem::symlink_status(path).type(), typeBefore) << path;
    }
}

/// The disk is full for this process alone: no file may grow beyond some bytes.
TEST(QtPageDevice, LeavesTheFormerFileWhereTheDiskIsFull) {
    PdfPrinter printer;
    std::ofstream(printer.file.toStdString()) << "the report of another radio";
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{.rlim_cur = 512, .rlim_max = before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    ASSERT_TRUE(printer.device.BeginDocument("Report"));
    printer.device.DrawText(100, 100, "Report");
    printer.device.EndDocument();
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    static_cast<void>(std::signal(SIGXFSZ, handler));
    EXPECT_EQ(ContentOf(printer.file), "the report of another radio");
}

#endif

TEST(QtPageDevice, DoesNotBeginWhereTheFileCannotBeWritten) {
    QtPageDevice device("/no such folder/report.pdf");
    EXPECT_FALSE(device.BeginDocument("Report"));
}

} // namespace
} // namespace zelvor
