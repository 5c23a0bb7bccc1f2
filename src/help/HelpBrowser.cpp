#include "help/HelpBrowser.h"

#include <QFileInfo>
#include <QWheelEvent>
#include <algorithm>

namespace zelvor {

namespace {

constexpr qreal PageMargin = 18;
constexpr int UsualPercent = 100;
constexpr int LeastPercent = 50;
constexpr int MostPercent = 400;
constexpr int PercentOfAStep = 10;
const QColor MarkColour(255, 226, 112);
const QColor PaperColour(Qt::white);
const QColor LetterColour(29, 35, 41);

QRegularExpression PatternOf(const QStringList& words) {
    QStringList escaped;
    for (const QString& word : words) {
        escaped.append(QRegularExpression::escape(word));
    }
    return QRegularExpression(escaped.join(u'|'), QRegularExpression::CaseInsensitiveOption |
                                                      QRegularExpression::UseUnicodePropertiesOption);
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent), usualSize_(font().pointSizeF()) {
    document()->setDocumentMargin(PageMargin);
    setFrameShape(QFrame::NoFrame);
    // The pages' own colours are for light paper, also where the desktop is dark.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, PaperColour);
    paper.setColor(QPalette::Text, LetterColour);
    setPalette(paper);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::Mark);
}

void HelpBrowser::MarkWords(const QStringList& words) {
    marked_ = PatternOf(words);
    Mark();
}

void HelpBrowser::Mark() {
    QList<QTextEdit::ExtraSelection> marks;
    QTextCursor place(document());
    while (!marked_.pattern().isEmpty() && !(place = document()->find(marked_, place)).isNull()) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = place;
        mark.format.setBackground(MarkColour);
        mark.format.setForeground(Qt::black);
        marks.append(mark);
    }
    setExtraSelections(marks);
}

void HelpBrowser::GoToNextMark() {
    GoToMark({}, QTextCursor::Start);
}

void HelpBrowser::GoToPreviousMark() {
    GoToMark(QTextDocument::FindBackward, QTextCursor::End);
}

void HelpBrowser::GoToMark(QTextDocument::FindFlags direction, QTextCursor::MoveOperation wrapTo) {
    if (!HasMarks()) {
        return;
    }
    QTextCursor place = document()->find(marked_, textCursor(), direction);
    if (place.isNull()) {
        QTextCursor end(document());
        end.movePosition(wrapTo);
        place = document()->find(marked_, end, direction);
    }
    setTextCursor(place);
}

void HelpBrowser::ZoomBy(int steps) {
    SetZoom(std::clamp(zoomPercent_ + steps * PercentOfAStep, LeastPercent, MostPercent));
}

void HelpBrowser::ResetZoom() {
    SetZoom(UsualPercent);
}

void HelpBrowser::SetZoom(int percent) {
    zoomPercent_ = percent;
    QFont letters = font();
    letters.setPointSizeF(usualSize_ * percent / UsualPercent);
    setFont(letters);
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        const int turn = event->angleDelta().y();
        ZoomBy(turn > 0 ? 1 : turn < 0 ? -1 : 0);
        event->accept();
        return;
    }
    QTextBrowser::wheelEvent(event);
}

void HelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    const QUrl target = source().resolved(url);
    if (IsPage(target)) {
        QTextBrowser::doSetSource(target, type);
    }
}

bool HelpBrowser::IsPage(const QUrl& url) const {
    const QFileInfo file(url.toLocalFile());
    return url.isLocalFile() && file.isFile() && file.suffix() == QStringLiteral("htm") &&
           file.canonicalFilePath().startsWith(QFileInfo(folder_).canonicalFilePath() + u'/');
}

} // namespace zelvor
