#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QTextBrowser>

namespace zelvor {

/// Shows one page of the help. Follows links to other pages of the help; all other links do nothing.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// The folder above the languages'. Nothing outside is shown.
    void SetFolder(const QString& folder) { folder_ = folder; }

    /// Marks all places of the words on this page and on those shown later. No words: no marks.
    void MarkWords(const QStringList& words);
    [[nodiscard]] bool HasMarks() const { return !extraSelections().isEmpty(); }
    /// Selects the next marked place and scrolls there; goes round at the end.
    void GoToNextMark();
    void GoToPreviousMark();

    /// Steps of a tenth of the usual size of letters, from half to four times of it.
    void ZoomBy(int steps);
    void ResetZoom();

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] bool IsPage(const QUrl& url) const;
    void Mark();
    void GoToMark(QTextDocument::FindFlags direction, QTextCursor::MoveOperation wrapTo);
    void SetZoom(int percent);

    QString folder_;
    QRegularExpression marked_; // an empty pattern: nothing
    qreal usualSize_ = 0;       // of letters, in points
    int zoomPercent_ = 100;
};

} // namespace zelvor
