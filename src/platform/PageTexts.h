#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <vector>

class QPaintDevice;
class QPainter;

namespace zelvor {

/// The texts of a document's pages in all their fonts. A text that comes again, as most of a report's do, is laid out
/// and measured once. Lengths are in dots.
class PageTexts {
public:
    /// The paper must live as long.
    explicit PageTexts(QPaintDevice& paper) : paper_(paper) {}

    /// For what follows.
    void SetFont(const QFont& font);
    [[nodiscard]] const QFont& Font() const { return fonts_[current_].font; }
    [[nodiscard]] double Ascent() const { return fonts_[current_].ascent; }
    [[nodiscard]] double WidthOf(const QString& text);
    /// The base line begins at start.
    void Draw(QPainter& painter, QPointF start, const QString& text);

private:
    struct LaidOutText {
        QGlyphRun run; // empty where the text takes the toolkit's whole layout, or other fonts
        double width = 0;
    };
    struct FontTexts {
        QFont font;
        double ascent = 0;
        QRawFont characters;
        QHash<QString, LaidOutText> texts;
    };

    [[nodiscard]] const LaidOutText& LaidOut(const QString& text);
    [[nodiscard]] LaidOutText LayOut(const QString& text) const;

    QPaintDevice& paper_;
    std::vector<FontTexts> fonts_;
    std::size_t current_ = 0;
};

} // namespace zelvor
