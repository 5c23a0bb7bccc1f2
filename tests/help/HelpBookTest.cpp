#include "help/HelpBook.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zelvor {
namespace {

class AHelpBook : public testing::Test {
protected:
    AHelpBook() {
        MakePage("en/dtmf.htm", "<title>Tones</title><h1>Tones</h1><p>Speed of digits, squelch, Squelch.</p>");
        MakePage("en/chinfo.htm",
                 "<title>Channels</title><h1>Channels</h1><p>The Squelch opens. Speed is no matter.</p>");
        MakePage("en/scaninfo.htm", "<title>Squelch</title><h1>Squelch</h1><p>Nothing else.</p>");
        MakePage("en/notes.htm", "<title>Notes</title><p>Squelch</p>");
        MakePage("zh/dtmf.htm", "<meta charset=\"utf-8\"><title>音调</title><h1>音调</h1><p>静噪电平的设置</p>");
    }

    void MakePage(const QString& name, const char* html) const {
        const QFileInfo page(folder_.filePath(name));
        QDir().mkpath(page.path());
        QFile file(page.filePath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(html);
    }
    [[nodiscard]] QStringList Titles(const QString& search, Language language = Language::English) const {
        QStringList titles;
        for (const HelpHit& hit : HelpBook(folder_.path(), language).Search(search)) {
            titles.append(hit.title);
        }
        return titles;
    }

    QTemporaryDir folder_;
};

TEST_F(AHelpBook, HasThePagesOfTheContentsThatAreThereInTheirOrder) {
    const HelpBook book(folder_.path(), Language::English);
    ASSERT_EQ(book.Pages().size(), 3U);
    EXPECT_EQ(book.Pages()[0].name, "chinfo.htm");
    EXPECT_EQ(book.Pages()[0].title, "Channels");
    EXPECT_EQ(book.Pages()[0].text, "The Squelch opens. Speed is no matter.");
    EXPECT_EQ(book.Pages()[1].name, "scaninfo.htm");
    EXPECT_EQ(book.Pages()[2].name, "dtmf.htm");
}

TEST_F(AHelpBook, KnowsWhereItsPagesAre) {
    const HelpBook book(folder_.path(), Language::Chinese);
    EXPECT_EQ(book.UrlOf("dtmf.htm").toLocalFile(), folder_.path() + "/zh/dtmf.htm");
}

TEST_F(AHelpBook, FindsAWordInAnyCaseAndPutsTitlesAndFrequentPagesFirst) {
    EXPECT_EQ(Titles("squelch"), (QStringList{"Squelch", "Tones", "Channels"}));
    EXPECT_EQ(Titles("SQUELCH"), (QStringList{"Squelch", "Tones", "Channels"}));
}

TEST_F(AHelpBook, FindsOnlyPagesThatHoldAllWords) {
    EXPECT_EQ(Titles("speed digits"), QStringList{"Tones"});
    EXPECT_EQ(Titles("  opens   channels "), QStringList{"Channels"});
    EXPECT_EQ(Titles("speed elephant"), QStringList());
}

TEST_F(AHelpBook, FindsNothingForAnEmptySearch) {
    EXPECT_EQ(Titles(""), QStringList());
    EXPECT_EQ(Titles("   "), QStringList());
}

TEST_F(AHelpBook, FindsChineseWordsWithinASentence) {
    EXPECT_EQ(Titles("电平", Language::Chinese), QStringList{"音调"});
    EXPECT_EQ(Titles("信道", Language::Chinese), QStringList());
}

TEST_F(AHelpBook, ShowsAFoundWordAmongItsNeighbours) {
    MakePage("en/dtmf.htm", "<title>Tones</title><p>A long text that goes on for a while before it comes to the word "
                            "needle and then goes on and on, much farther than anybody would ever want to read in a "
                            "list of pages that were found.</p>");
    const auto hits = HelpBook(folder_.path(), Language::English).Search("needle");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].name, "dtmf.htm");
    EXPECT_EQ(hits[0].excerpt, "… it comes to the word needle and then goes on and on, much farther than anybody would "
                               "ever want to read in a li …");
}

} // namespace
} // namespace zelvor
