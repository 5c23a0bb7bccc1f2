#include "help/HelpBook.h"

#include <QFile>
#include <QFileInfo>
#include <QTextDocument>
#include <algorithm>

#include "help/HelpContents.h"
#include "help/HelpTopic.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr qsizetype ExcerptLead = 24;
constexpr qsizetype ExcerptLength = 110;

// A word in the title weighs more than any number of places in the text.
constexpr qsizetype TitleWeight = 100'000;

HelpPage ReadPage(const QString& path, const QString& name) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {name, name, {}};
    }
    QTextDocument document;
    document.setHtml(QString::fromUtf8(file.readAll()));
    const QString title = document.metaInformation(QTextDocument::DocumentTitle);
    QString text = document.toPlainText().simplified();
    if (text.startsWith(title)) {
        text.remove(0, title.size());
    }
    return {name, title, text.trimmed()};
}

bool HoldsAll(const HelpPage& page, const QStringList& words) {
    return std::all_of(words.begin(), words.end(), [&page](const QString& word) {
        return page.title.contains(word, Qt::CaseInsensitive) || page.text.contains(word, Qt::CaseInsensitive);
    });
}

qsizetype WeightOf(const HelpPage& page, const QStringList& words) {
    qsizetype weight = 0;
    for (const QString& word : words) {
        weight += page.title.contains(word, Qt::CaseInsensitive) ? TitleWeight : 0;
        weight += page.text.count(word, Qt::CaseInsensitive);
    }
    return weight;
}

QString ExcerptOf(const QString& text, const QString& word) {
    const qsizetype place = std::max<qsizetype>(0, text.indexOf(word, 0, Qt::CaseInsensitive));
    qsizetype first = std::max<qsizetype>(0, place - ExcerptLead);
    if (first > 0) {
        // Not in the middle of a word, where words have blanks between them.
        const qsizetype blank = text.indexOf(u' ', first);
        first = blank >= 0 && blank < place ? blank + 1 : first;
    }
    const QString excerpt = text.mid(first, ExcerptLength).trimmed();
    return (first > 0 ? QStringLiteral("… ") : QString()) + excerpt +
           (first + ExcerptLength < text.size() ? QStringLiteral(" …") : QString());
}

} // namespace

QStringList WordsOf(const QString& search) {
    return search.simplified().split(u' ', Qt::SkipEmptyParts);
}

HelpBook::HelpBook(const QString& folder, Language language) : folder_(folder), language_(language) {
    for (const std::string_view name : HelpContents) {
        const QString path = UrlOf(ToQString(name)).toLocalFile();
        if (QFileInfo(path).isFile()) {
            pages_.push_back(ReadPage(path, ToQString(name)));
        }
    }
}

QUrl HelpBook::UrlOf(const QString& name) const {
    return QUrl::fromLocalFile(folder_ + u'/' +
                               ToQString(PagePathOf({.language = language_, .page = FromQString(name)})));
}

std::vector<HelpHit> HelpBook::Search(const QString& search) const {
    const QStringList words = WordsOf(search);
    std::vector<const HelpPage*> found;
    for (const HelpPage& page : pages_) {
        if (!words.empty() && HoldsAll(page, words)) {
            found.push_back(&page);
        }
    }
    std::stable_sort(found.begin(), found.end(), [&words](const HelpPage* one, const HelpPage* other) {
        return WeightOf(*one, words) > WeightOf(*other, words);
    });
    std::vector<HelpHit> hits;
    hits.reserve(found.size());
    for (const HelpPage* page : found) {
        hits.push_back({page->name, page->title, ExcerptOf(page->text, words.front())});
    }
    return hits;
}

} // namespace zelvor
