#pragma once

#include <QMainWindow>
#include <optional>

#include "help/HelpActions.h"
#include "help/HelpBook.h"
#include "text/Language.h"

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QStackedWidget;
class QToolBar;

namespace zelvor {

class HelpBrowser;

/// The help window: the contents list and the search at the left, a page at the right. Its texts follow the language of
/// the page. A modal dialog does not block it.
class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    HelpWindow();

    /// folder holds the pages of both languages; name is a page such as "dtmf.htm".
    void ShowPage(const QString& folder, Language language, const QString& name);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectActions();
    void BuildToolbar();
    QWidget* BuildSidePanel();
    void BuildLists();
    QWidget* BuildSearchRow();

    void OpenBook(const QString& folder, Language language);
    void FillContents();
    void ApplyTexts();
    void FollowPage(const QUrl& url);
    void SelectShownPage(QListWidget& list);
    void OpenItem(const QListWidgetItem* item);

    void Search();
    void FillResults(const std::vector<HelpHit>& hits);
    [[nodiscard]] bool HasResults() const;
    [[nodiscard]] QString FoundText() const;
    void EnterResults();
    void LeaveSearchOrClose();
    void UpdateMarkActions();
    void StayUsable();

    QToolBar* toolbar_ = nullptr;
    HelpBrowser* page_ = nullptr;
    QLineEdit* search_ = nullptr;
    QListWidget* contents_ = nullptr;
    QListWidget* results_ = nullptr;
    QStackedWidget* lists_ = nullptr; // contents_ or results_
    HelpActions actions_{*this};
    std::optional<HelpBook> book_;
    QString shownName_; // the page's, "dtmf.htm"
};

} // namespace zelvor
