#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/ModalDriver.h"
#include "platform/QtPageDevice.h"
#include "platform/fakes/FakePageDevice.h"

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

TYPED_TEST(PageDeviceContract, IsAvailable) {
    EXPECT_TRUE(this->device_.IsAvailable());
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

/// The drawing of a PDF file of one page, uncompressed.
QByteArray DrawingOf(const QString& file) {
    const QByteArray pdf = ContentOf(file);
    const QByteArray begin = "stream\n";
    const auto start = pdf.indexOf(begin) + begin.size();
    const QByteArray compressed = pdf.mid(start, pdf.indexOf("\nendstream", start) - start);
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

class SystemWithoutPrinter : public testing::Test {
protected:
    void SetUp() override {
        if (!QPrinterInfo::availablePrinters().isEmpty()) {
            GTEST_SKIP() << "This machine has a printer";
        }
    }

    QTemporaryDir folder_;
    QString file_ = folder_.filePath("chosen.pdf");
    QtPageDevice device_;
};

TEST_F(SystemWithoutPrinter, HasNothingToPrintOn) {
    EXPECT_FALSE(device_.IsAvailable());
    EXPECT_FALSE(device_.BeginDocument("Report"));
}

TEST_F(SystemWithoutPrinter, PrintsToAFileChosenInTheSetUpDialog) {
    WithNextDialog<QPrintDialog>([this](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "dlgPrint");
        auto* fileName = dialog.findChild<QLineEdit*>("filename");
        ASSERT_NE(fileName, nullptr);
        fileName->setText(file_);
        const auto* buttons = dialog.findChild<QDialogButtonBox*>();
        ASSERT_NE(buttons, nullptr);
        EXPECT_EQ(buttons->button(QDialogButtonBox::Ok)->text(), "OK");
        buttons->button(QDialogButtonBox::Ok)->click();
    });
    EXPECT_TRUE(device_.ShowSetup());
    EXPECT_TRUE(device_.IsAvailable());
    for (int document = 0; document < 2; ++document) {
        ASSERT_TRUE(device_.BeginDocument("Report"));
        device_.DrawText(100, 100, "Report");
        device_.EndDocument();
        EXPECT_TRUE(ContentOf(file_).startsWith("%PDF-"));
        EXPECT_TRUE(QFile::remove(file_));
    }
}

TEST_F(SystemWithoutPrinter, StillHasNothingToPrintOnAfterACancelledDialog) {
    WithNextDialog<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(device_.ShowSetup());
    EXPECT_FALSE(device_.IsAvailable());
    EXPECT_FALSE(device_.BeginDocument("Report"));
}

TEST(QtPageDevice, DoesNotBeginWhereTheFileCannotBeWritten) {
    QtPageDevice device("/no such folder/report.pdf");
    EXPECT_FALSE(device.BeginDocument("Report"));
}

} // namespace
} // namespace zelvor
