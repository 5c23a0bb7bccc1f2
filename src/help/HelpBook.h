#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <vector>

#include "text/Language.h"

namespace zelvor {

/// A page as contents list and search know it.
struct HelpPage {
    QString name; // "dtmf.htm"
    QString title;
    QString text; // what it says below its title, without marks
};

/// A page that a search found, with the words in their place.
struct HelpHit {
    QString name;
    QString title;
    QString excerpt;
};

/// The words of a search: what blanks separate.
[[nodiscard]] QStringList WordsOf(const QString& search);

/// The help's pages of one language, in the order of the contents list. Pages that are not there are left out.
class HelpBook {
public:
    /// folder holds a folder for each language, "en" and "zh".
    HelpBook(const QString& folder, Language language);

    [[nodiscard]] const QString& Folder() const { return folder_; }
    [[nodiscard]] Language BookLanguage() const { return language_; }
    [[nodiscard]] const std::vector<HelpPage>& Pages() const { return pages_; }
    [[nodiscard]] QUrl UrlOf(const QString& name) const;
    /// The pages that hold all words, in any case: those with a word in the title first, then by number of places.
    [[nodiscard]] std::vector<HelpHit> Search(const QString& search) const;

private:
    QString folder_;
    Language language_ = Language::English;
    std::vector<HelpPage> pages_;
};

} // namespace zelvor
