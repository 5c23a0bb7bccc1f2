#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>
#include <array>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace {

struct PageLabels {
    const char* page;
    std::vector<const char*> english;
    std::vector<const char*> chinese;
};

const std::vector<PageLabels> Pages{
#include "help/HelpLabels.inc"
};

constexpr std::array<const char*, 2> Languages{"en", "zh"};

QString PathOf(const char* language, const QString& page) {
    return QStringLiteral(HELP_FOLDER "/") + language + u'/' + page;
}

QString SourceOf(const char* language, const QString& page) {
    QFile file(PathOf(language, page));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    return QString::fromUtf8(file.readAll());
}

QString TextOf(const char* language, const QString& page) {
    QTextDocument document;
    document.setHtml(SourceOf(language, page));
    return document.toPlainText().simplified();
}

QStringList Captures(const QString& source, const char* pattern) {
    QStringList found;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption).globalMatch(source);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    return found;
}

/// Level and name of every heading, such as "2 wrong".
QStringList HeadingsOf(const QString& source) {
    QStringList headings;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(R"re(<h(\d)><a name="(\w+)"></a>[^<]+</h\1>)re").globalMatch(source);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        headings.append(match.captured(1) + u' ' + match.captured(2));
    }
    return headings;
}

/// What is wrong with the nesting of the elements; empty where nothing is.
QString FaultOf(const QString& source) {
    static const std::set<QString> empty{"meta", "link", "br"};
    QStringList open;
    QRegularExpressionMatchIterator tags = QRegularExpression(R"re(<(/?)(\w+)[^>]*>)re").globalMatch(source);
    while (tags.hasNext()) {
        const QRegularExpressionMatch tag = tags.next();
        const QString name = tag.captured(2);
        if (empty.contains(name)) {
            continue;
        }
        if (tag.captured(1).isEmpty()) {
            open.append(name);
        } else if (open.isEmpty() || open.takeLast() != name) {
            return "stray end of " + name;
        }
    }
    return open.isEmpty() ? QString() : "no end of " + open.last();
}

TEST(HelpPages, ExistForEveryTopicInBothLanguagesAndForNothingElse) {
    const QStringList topics{"chedit.htm",      "chinfo.htm",   "commport.htm",  "corvane.htm",   "dtmf.htm",
                             "embmsg.htm",      "general.htm",  "keyassign.htm", "language.htm",  "modelinfo.htm",
                             "optfeatures.htm", "print.htm",    "radioinfo.htm", "readradio.htm", "scaninfo.htm",
                             "testfreq.htm",    "treeview.htm", "writeradio.htm"};
    for (const char* language : Languages) {
        EXPECT_EQ(QDir(QStringLiteral(HELP_FOLDER "/") + language).entryList(QDir::Files, QDir::Name), topics);
    }
}

TEST(HelpPages, AreWellFormedAndHaveTheirTitleAsFirstHeading) {
    for (const char* language : Languages) {
        for (const PageLabels& page : Pages) {
            const QString source = SourceOf(language, page.page);
            EXPECT_EQ(FaultOf(source), "") << language << page.page;
            const QStringList titles = Captures(source, "<title>([^<]+)</title>");
            ASSERT_EQ(titles.size(), 1) << language << page.page;
            EXPECT_EQ(Captures(source, "<h1><a name=\"top\"></a>([^<]+)</h1>"), titles) << language << page.page;
            EXPECT_TRUE(source.contains("charset=utf-8")) << language << page.page;
        }
    }
}

TEST(HelpPages, AreDividedAlikeInBothLanguages) {
    for (const PageLabels& page : Pages) {
        const QString english = SourceOf("en", page.page);
        const QString chinese = SourceOf("zh", page.page);
        EXPECT_GE(HeadingsOf(english).size(), 3) << page.page;
        EXPECT_EQ(HeadingsOf(english), HeadingsOf(chinese)) << page.page;
        EXPECT_EQ(HeadingsOf(english).size(), english.count(QRegularExpression("</h\\d>"))) << page.page;
        EXPECT_EQ(english.count("<tr>"), chinese.count("<tr>")) << page.page;
        EXPECT_EQ(english.count("<li>"), chinese.count("<li>")) << page.page;
        EXPECT_EQ(english.count("<a href="), chinese.count("<a href=")) << page.page;
    }
}

TEST(HelpPages, HaveNoLinkThatLeadsNowhere) {
    int links = 0;
    for (const char* language : Languages) {
        for (const PageLabels& page : Pages) {
            for (const QString& link : Captures(SourceOf(language, page.page), "<a href=\"([^\"]+)\"")) {
                ++links;
                const QString target = link.section(u'#', 0, 0);
                const QString heading = link.section(u'#', 1);
                EXPECT_TRUE(QFile::exists(PathOf(language, target))) << language << page.page << qPrintable(link);
                EXPECT_TRUE(heading.isEmpty() ||
                            SourceOf(language, target).contains("<a name=\"" + heading + "\"></a>"))
                    << language << page.page << qPrintable(link);
            }
        }
    }
    EXPECT_GT(links, 100);
}

TEST(HelpPages, CanBeReachedByLinksFromTheFirstPage) {
    for (const char* language : Languages) {
        std::set<QString> reached{"general.htm"};
        std::vector<QString> next{"general.htm"};
        while (!next.empty()) {
            const QString page = next.back();
            next.pop_back();
            for (const QString& link : Captures(SourceOf(language, page), "<a href=\"([^\"#]+)")) {
                if (reached.insert(link).second) {
                    next.push_back(link);
                }
            }
        }
        EXPECT_EQ(reached.size(), 18U) << language;
    }
}

TEST(HelpPages, NameTheFieldsOfTheirWindowsAsTheProgramDoes) {
    ASSERT_EQ(Pages.size(), 18U);
    for (const PageLabels& page : Pages) {
        const QString english = TextOf("en", page.page);
        for (const char* label : page.english) {
            EXPECT_TRUE(english.contains(QString::fromUtf8(label))) << page.page << ": " << label;
        }
        const QString chinese = TextOf("zh", page.page);
        for (const char* label : page.chinese) {
            EXPECT_TRUE(chinese.contains(QString::fromUtf8(label))) << page.page << ": " << label;
        }
    }
}

TEST(HelpPages, AreInTheirLanguage) {
    const QRegularExpression chineseWord("[\\x{4e00}-\\x{9fff}]");
    const QRegularExpression englishSentence("\\b[a-z]+ [a-z]+ [a-z]+ [a-z]+\\b");
    for (const PageLabels& page : Pages) {
        // The printed report has two Chinese words in both languages.
        EXPECT_EQ(TextOf("en", page.page).count(chineseWord), QString(page.page) == "print.htm" ? 2 : 0) << page.page;
        EXPECT_FALSE(TextOf("zh", page.page).contains(englishSentence)) << page.page;
    }
}

TEST(HelpPages, UseTheStyleSheetThatLiesBesideTheLanguages) {
    EXPECT_TRUE(QFile::exists(HELP_FOLDER "/help.css"));
    for (const char* language : Languages) {
        for (const PageLabels& page : Pages) {
            EXPECT_EQ(Captures(SourceOf(language, page.page), "<link rel=\"stylesheet\"[^>]*href=\"([^\"]+)\""),
                      QStringList{"../help.css"})
                << language << page.page;
        }
    }
}

} // namespace
