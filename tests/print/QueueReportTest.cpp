// Prints on the system's default printer, which scripts/check-printing makes, and reads what came out of it.

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include "platform/QtPageDevice.h"
#include "platform/Toolkit.h"
#include "print/DataReport.h"
#include "print/ReportImage.h"
#include "support/PrintedPages.h"

namespace zelvor {
namespace {

// The queue's pages are A4 with margins of 18 points at the sides and 36 points above and below: 559.28 by 769.89
// points to print on, 11185 by 15397 twips. So origin and units of the grid are 1118, 77, 769 and 230 twips.
constexpr double MarginLeft = 18;
constexpr double MarginTop = 36;
constexpr double TwipsPerPoint = 20;

double PointsOfColumn(double column) {
    return MarginLeft + (1118 + 77 * column) / TwipsPerPoint;
}

double PointsOfRow(double row) {
    return MarginTop + (769 + 230 * row) / TwipsPerPoint;
}

/// A word of a page, in points from the paper's top left corner.
struct Word {
    double left;
    double top;
    double bottom;
    QString text;
};
using Page = std::vector<Word>;

QString OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << FromQString(program);
    return QString::fromUtf8(process.readAllStandardOutput());
}

void WaitForTheQueue() {
    QElapsedTimer time;
    time.start();
    while (!OutputOf("lpstat", {"-W", "not-completed", "-o"}).isEmpty()) {
        ASSERT_LT(time.elapsed(), 60'000) << "The job is still in the queue";
    }
}

QString PlainText(QString html) {
    return html.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"").replace("&amp;", "&");
}

std::vector<Page> PagesOf(const QString& file) {
    const QRegularExpression wordForm(
        R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="[\d.]+" yMax="([\d.]+)">(.*)</word>)re");
    std::vector<Page> pages;
    for (const QString& line : OutputOf("pdftotext", {"-bbox", file, "-"}).split('\n')) {
        if (line.contains("<page ")) {
            pages.emplace_back();
        }
        const QRegularExpressionMatch word = wordForm.match(line);
        if (word.hasMatch() && !pages.empty()) {
            pages.back().push_back({word.captured(1).toDouble(), word.captured(2).toDouble(),
                                    word.captured(3).toDouble(), PlainText(word.captured(4))});
        }
    }
    return pages;
}

/// The words that stand on the line of a row, from left to right.
std::vector<Word> RowOf(const Page& page, double row) {
    const double top = PointsOfRow(row);
    std::vector<Word> words;
    std::ranges::copy_if(page, std::back_inserter(words),
                         [top](const Word& word) { return word.top < top + 7 && word.bottom > top + 7; });
    std::ranges::sort(words, {}, &Word::left);
    return words;
}

std::string TextOf(const std::vector<Word>& words) {
    QStringList texts;
    for (const Word& word : words) {
        texts.append(word.text);
    }
    return FromQString(texts.join(' '));
}

/// Whether the words of a text follow each other, the first of them at its cell.
void ExpectText(const Page& page, const QString& line) {
    const double row = line.section(' ', 0, 0).toDouble();
    const double column = line.section(' ', 1, 1).toDouble();
    const QString quoted = line.section(' ', 2);
    const QString text = quoted.mid(1, quoted.size() - 2);
    const QStringList expected = text.split(' ', Qt::SkipEmptyParts);
    // A leading blank takes 3 points in this font.
    const double left = PointsOfColumn(column) + (text.startsWith(' ') ? 3 : 0);

    const std::vector<Word> words = RowOf(page, row);
    const auto first = std::ranges::find_if(words, [&](const Word& word) { return std::abs(word.left - left) < 0.75; });
    ASSERT_TRUE(first != words.end()) << FromQString(line) << ": nothing at " << left;
    const auto count = std::min<std::ptrdiff_t>(expected.size(), words.end() - first);
    EXPECT_EQ(TextOf({first, first + count}), FromQString(expected.join(' '))) << FromQString(line);
}

class PrintedJob : public ::testing::TestWithParam<std::pair<Language, std::string>> {
protected:
    void Print(Language language) const {
        QFile::remove(job);
        QtPageDevice device;
        ASSERT_TRUE(device.IsAvailable());
        PrintDataReport(device, BuildDataReport(testing::ReportImage(), ReportSelection(0xFF), "Zelvor.dat", language,
                                                {2024, 5, 31, 14, 7, 9}));
        WaitForTheQueue();
    }

    const QString job = qEnvironmentVariable("PRINTED_JOB");
};

TEST_P(PrintedJob, HasEveryTextAtItsCell) {
    const auto& [language, suffix] = GetParam();
    Print(language);
    const std::vector<Page> pages = PagesOf(job);
    const char* goldens[]{"optional", "keys", "scan", "dtmf", "corvane", "test", "message", "channels1", "channels2"};
    ASSERT_EQ(pages.size(), std::size(goldens));
    for (std::size_t i = 0; i < pages.size(); ++i) {
        for (const std::string& line : testing::GoldenCells(goldens[i] + ("_" + suffix))) {
            ExpectText(pages[i], ToQString(line));
        }
    }
}

TEST_P(PrintedJob, HasTitleDateAndPageNumberOnEveryPage) {
    const Language language = GetParam().first;
    Print(language);
    const std::vector<Page> pages = PagesOf(job);
    ASSERT_EQ(pages.size(), 9U);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        EXPECT_EQ(TextOf(RowOf(pages[i], 0)),
                  language == Language::English ? "Zelvor Radio Programming Information" : "Zelvor 对讲机编程信息");
        EXPECT_EQ(TextOf(RowOf(pages[i], 2)), "2024-05-31 14:07:09");
        // 0.95 of the height is the row of 13858 twips below the origin.
        EXPECT_EQ(TextOf(RowOf(pages[i], 13858.0 / 230)), "- " + std::to_string(i + 1) + " -");
    }
}

TEST_P(PrintedJob, EmbedsItsFonts) {
    Print(GetParam().first);
    const QStringList rows = OutputOf("pdffonts", {job}).split('\n', Qt::SkipEmptyParts).mid(2);
    ASSERT_FALSE(rows.isEmpty());
    // Columns from the end: object and its generation, whether it tells Unicode characters, is a subset, is embedded.
    for (const QString& row : rows) {
        const QStringList columns = row.split(' ', Qt::SkipEmptyParts);
        ASSERT_GE(columns.size(), 5) << FromQString(row);
        EXPECT_EQ(columns[columns.size() - 3], "yes") << FromQString(row);
        EXPECT_EQ(columns[columns.size() - 5], "yes") << FromQString(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, PrintedJob,
                         ::testing::Values(std::pair(Language::English, "en"), std::pair(Language::Chinese, "zh")),
                         [](const auto& language) { return language.param.second; });

} // namespace
} // namespace zelvor
