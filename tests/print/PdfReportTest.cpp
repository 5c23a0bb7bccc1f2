#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>

#include "data/TestImages.h"
#include "platform/QtPageDevice.h"
#include "print/DataReport.h"
#include "print/ReportImage.h"

namespace zelvor {
namespace {

class PdfReport : public ::testing::Test {
protected:
    QByteArray Print(const DataImage& image, Language language) {
        const QString file = folder.filePath("report.pdf");
        QtPageDevice device(file);
        PrintDataReport(device, BuildDataReport(image, ReportSelection(0xFF), "Zelvor.dat", language, {}));
        QFile pdf(file);
        return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
    }

    QTemporaryDir folder;
};

TEST_F(PdfReport, HasEveryPageInBothLanguages) {
    for (const Language language : {Language::English, Language::Chinese}) {
        const QByteArray pdf = Print(testing::ReportImage(), language);
        EXPECT_TRUE(pdf.startsWith("%PDF-"));
        EXPECT_EQ(pdf.count("/Type /Page\n"), 9);
    }
}

TEST_F(PdfReport, EmbedsOneFontOutOfWhichItsTextsCanBeRead) {
    const QByteArray pdf = Print(testing::ReportImage(), Language::Chinese);
    EXPECT_EQ(pdf.count("/FontFile2"), 1);
    EXPECT_EQ(pdf.count("/ToUnicode"), 1);
}

TEST_F(PdfReport, TakesAnyDocument) {
    constexpr unsigned Seed = 31052024;
    std::mt19937 random(Seed);
    for (int run = 0; run < 10; ++run) {
        const QByteArray pdf = Print(testing::RandomImage(random), Language::English);
        EXPECT_GE(pdf.count("/Type /Page\n"), 8) << "seed " << Seed << ", run " << run;
    }
}

TEST_F(PdfReport, OfAFolderThatIsGoneIsNone) {
    QtPageDevice device(folder.filePath("gone/report.pdf"));
    PrintDataReport(device, BuildDataReport(testing::ReportImage(), ReportSelection(0xFF), "", Language::English, {}));
    EXPECT_FALSE(QFile::exists(folder.filePath("gone/report.pdf")));
}

TEST_F(PdfReport, EndsOnADiskThatIsFull) {
    if (!QFile::exists("/dev/full")) {
        GTEST_SKIP() << "This system has no full device";
    }
    QtPageDevice device("/dev/full");
    PrintDataReport(device, BuildDataReport(testing::ReportImage(), ReportSelection(0xFF), "", Language::English, {}));
    EXPECT_EQ(QFile("/dev/full").size(), 0);
}

} // namespace
} // namespace zelvor
