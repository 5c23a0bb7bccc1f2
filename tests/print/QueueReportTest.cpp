// Prints on the queues that scripts/check-printing makes, and reads what came out of them: Test, the default one with
// A4 paper, and Wide with Letter paper.

#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>

#include "platform/ModalDriver.h"
#include "platform/PrintPropertiesDriver.h"
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

/// The size of each page of a file, in whole points.
std::vector<QSize> PaperOf(const QString& file) {
    const QRegularExpression pageForm(R"re(<page width="([\d.]+)" height="([\d.]+)">)re");
    std::vector<QSize> sizes;
    for (const QString& line : OutputOf("pdftotext", {"-bbox", file, "-"}).split('\n')) {
        const QRegularExpressionMatch page = pageForm.match(line);
        if (page.hasMatch()) {
            sizes.emplace_back(qRound(page.captured(1).toDouble()), qRound(page.captured(2).toDouble()));
        }
    }
    return sizes;
}

/// Whether lines of text run from side to side of the sheet, as it lies in the printer.
bool RunsAcross(const QString& file, const QString& word) {
    const QRegularExpression wordForm(R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">)re" +
                                      word + "</word>");
    const QRegularExpressionMatch found = wordForm.match(OutputOf("pdftotext", {"-bbox", file, "-"}));
    EXPECT_TRUE(found.hasMatch()) << FromQString(word);
    return found.captured(3).toDouble() - found.captured(1).toDouble() >
           found.captured(4).toDouble() - found.captured(2).toDouble();
}

PageTarget TargetOf(PageDevice& device) {
    std::optional<PageTarget> found;
    device.FindTarget([&found](const PageTarget& target) { found = target; });
    EXPECT_TRUE(QTest::qWaitFor([&found] { return found.has_value(); }, 20'000));
    return found.value_or(PageTarget{});
}

const QSize A4Sheet(595, 842);
const QSize LetterSheet(612, 792);

class PrintedJob : public ::testing::TestWithParam<std::pair<Language, std::string>> {
protected:
    void Print(Language language) const {
        QFile::remove(job);
        QtPageDevice device;
        const PageTarget target = TargetOf(device);
        ASSERT_EQ(target.kind, PageTarget::Kind::Printer);
        ASSERT_EQ(target.name, "Test");
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

class PaperOfTheQueue : public ::testing::Test {
protected:
    ~PaperOfTheQueue() override {
        OutputOf("lpadmin", {"-p", "Test", "-o", "PageSize=A4", "-o", "orientation-requested-default=3"});
        OutputOf("lpadmin", {"-d", "Test"});
    }
    void PrintKeys() {
        QFile::remove(job);
        ASSERT_EQ(TargetOf(device).kind, PageTarget::Kind::Printer);
        PrintDataReport(device, BuildDataReport(testing::ReportImage(), ReportSelection(0x02), "Zelvor.dat",
                                                Language::English, {2024, 5, 31, 14, 7, 9}));
        WaitForTheQueue();
    }
    /// Does something in the set-up dialog, and accepts it.
    void SetUpBy(const std::function<void(QPrintDialog& dialog)>& act) {
        std::optional<bool> asked;
        device.AskForPrinters([&asked](bool isAnswered) { asked = isAnswered; });
        ASSERT_TRUE(QTest::qWaitFor([&asked] { return asked.has_value(); }, 20'000));
        ASSERT_EQ(asked, true);
        WithNextDialog<QPrintDialog>([&act](QPrintDialog& dialog) {
            act(dialog);
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
        ASSERT_TRUE(device.ShowSetup(folder.filePath("radio.dat").toStdString()));
    }

    QTemporaryDir folder;
    QtPageDevice device;
    const QString job = qEnvironmentVariable("PRINTED_JOB");
};

TEST_F(PaperOfTheQueue, IsTheOneThatIsPrintedOn) {
    OutputOf("lpadmin", {"-p", "Test", "-o", "PageSize=Letter"});
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{LetterSheet});
    // 576 by 720 points to print on: origin and units of the grid are 1152, 79, 720 and 216 twips.
    const Page page = PagesOf(job).at(0);
    const auto word = std::ranges::find(page, "Frequency", &Word::text);
    ASSERT_TRUE(word != page.end());
    EXPECT_NEAR(word->left, 18 + (1152 + 4 * 79) / 20.0, 0.75);
    EXPECT_NEAR(word->top, 36 + (720 + 5 * 216) / 20.0, 1.5);
}

TEST_F(PaperOfTheQueue, IsThatOfTheDefaultPrinter) {
    OutputOf("lpadmin", {"-d", "Wide"});
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{LetterSheet});
}

TEST_F(PaperOfTheQueue, LiesAsTheQueueSays) {
    PrintKeys();
    EXPECT_TRUE(RunsAcross(job, "Programming"));
    OutputOf("lpadmin", {"-p", "Test", "-o", "orientation-requested-default=4"});
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{A4Sheet});
    EXPECT_FALSE(RunsAcross(job, "Programming"));
}

TEST_F(PaperOfTheQueue, ComesWithAPrinterThatIsChosen) {
    SetUpBy([](QPrintDialog& dialog) { dialog.findChild<QComboBox*>("printers")->setCurrentText("Wide"); });
    EXPECT_EQ(TargetOf(device).name, "Wide");
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{LetterSheet});
    SetUpBy([](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>("printers")->currentText(), "Wide");
        dialog.findChild<QComboBox*>("printers")->setCurrentText("Test");
    });
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{A4Sheet});
}

TEST_F(PaperOfTheQueue, IsWhatWasChosenInItsPlace) {
    SetUpBy([](QPrintDialog& dialog) {
        WithProperties(dialog, [](QDialog& properties) {
            auto* papers = properties.findChild<QComboBox*>("pageSizeCombo");
            const int letter = papers->findText("Letter", Qt::MatchStartsWith);
            ASSERT_GE(letter, 0);
            papers->setCurrentIndex(letter);
            properties.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
    });
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{LetterSheet});
    SetUpBy([](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>("printers")->currentText(), "Test");
        WithProperties(dialog, [](QDialog& properties) {
            EXPECT_TRUE(properties.findChild<QComboBox*>("pageSizeCombo")->currentText().startsWith("Letter"));
            properties.reject();
        });
    });
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{LetterSheet});
}

TEST_F(PaperOfTheQueue, GoesWithAPdfFileToo) {
    OutputOf("lpadmin", {"-p", "Test", "-o", "PageSize=Letter"});
    const QString file = folder.filePath("radio.pdf");
    SetUpBy([&file](QPrintDialog& dialog) {
        auto* printers = dialog.findChild<QComboBox*>("printers");
        EXPECT_EQ(printers->currentText(), "Test");
        EXPECT_TRUE(dialog.findChild<QSpinBox*>("copies")->isEnabled());
        printers->setCurrentIndex(printers->count() - 1);
        EXPECT_FALSE(dialog.findChild<QSpinBox*>("copies")->isEnabled());
        EXPECT_EQ(dialog.findChild<QLineEdit*>("filename")->text(), file);
    });
    PrintDataReport(device, BuildDataReport(testing::ReportImage(), ReportSelection(0x02), "Zelvor.dat",
                                            Language::English, {2024, 5, 31, 14, 7, 9}));
    EXPECT_EQ(PaperOf(file), std::vector<QSize>{LetterSheet});

    // Again: on the file, and back to the printer.
    SetUpBy([&file](QPrintDialog& dialog) {
        auto* printers = dialog.findChild<QComboBox*>("printers");
        EXPECT_EQ(printers->currentIndex(), printers->count() - 1);
        EXPECT_EQ(dialog.findChild<QLineEdit*>("filename")->text(), file);
        EXPECT_FALSE(dialog.findChild<QSpinBox*>("copies")->isEnabled());
        printers->setCurrentText("Test");
        EXPECT_TRUE(dialog.findChild<QSpinBox*>("copies")->isEnabled());
    });
    EXPECT_EQ(TargetOf(device).name, "Test");
    PrintKeys();
    EXPECT_EQ(PaperOf(job), std::vector<QSize>{LetterSheet});
}

} // namespace
} // namespace zelvor
