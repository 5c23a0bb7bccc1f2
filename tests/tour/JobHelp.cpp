// The help window.

#include <QListWidget>
#include <QTextBrowser>

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

// Questions to the window thread.

/// The page that is shown with its folder, "en/dtmf.htm".
QString PageShown() {
    const auto* browser = qobject_cast<QTextBrowser*>(WidgetOnTop("HelpPage"));
    return browser ? browser->source().path().section('/', -2) : QString("(no page)");
}

int PagesFound() {
    const auto* results = qobject_cast<QListWidget*>(WidgetOnTop("HelpResults"));
    return results ? results->count() : 0;
}

} // namespace

void Job::ExpectHelp(const QString& page) {
    windows_.WaitUntil("the help window", [] { return IsOnTop("HelpWindow"); });
    CheckEqual("title of the help window", windows_.Ask(TitleOnTop), words_.helpTitle);
    CheckEqual("the page of the help window", windows_.Ask(PageShown), words_.helpFolder + "/" + page);
}

void Job::CloseHelp() {
    user_.Press(Qt::Key_Escape);
    windows_.WaitUntil("the help window to close", [] { return !IsOnTop("HelpWindow"); });
}

void Job::ShowHelpOf(const QString& page) {
    user_.Press(Qt::Key_F1);
    ExpectHelp(page);
    CloseHelp();
}

void Job::ShowHelp() {
    user_.ChooseByMouse("MnuHelp", "MnuHelpTopics");
    ExpectHelp("general.htm");
    screenshots_.Take("help");
    user_.Press(Qt::Key_F, Qt::ControlModifier);
    user_.Type("Corvane");
    windows_.WaitUntil("pages that are found", [] { return PagesFound() > 1; });
    user_.Press(Qt::Key_Return);
    ExpectHelp("corvane.htm");
    screenshots_.Take("help-search");
    user_.Press(Qt::Key_Escape); // leaves the search first
    CloseHelp();
    ShowHelpOf("chinfo.htm");
    Done("Help > Help Topics: contents, search; F1 in the channel grid");
}

} // namespace zelvor::tour
