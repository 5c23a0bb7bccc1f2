#include "platform/PageTexts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace zelvor {

namespace {

/// A character that stands for itself beside its neighbour: Latin or Chinese. Other scripts run the other way, or join.
bool StandsAlone(QChar character) {
    const char16_t code = character.unicode();
    return (code >= u' ' && code <= u'~') || (code > u'\u00A0' && code < u'\u0300' && code != u'\u00AD') ||
           (code >= u'\u4E00' && code <= u'\u9FFF');
}

} // namespace

void PageTexts::SetFont(const QFont& font) {
    const auto known = std::ranges::find(fonts_, font, &FontTexts::font);
    current_ = static_cast<std::size_t>(known - fonts_.begin());
    if (known == fonts_.end()) {
        fonts_.push_back({font, QFontMetricsF(font, &paper_).ascent(), QRawFont::fromFont(QFont(font, &paper_)), {}});
    }
}

double PageTexts::WidthOf(const QString& text) {
    return LaidOut(text).width;
}

void PageTexts::Draw(QPainter& painter, QPointF start, const QString& text) {
    const QGlyphRun& run = LaidOut(text).run;
    if (run.isEmpty()) {
        painter.setFont(Font());
        painter.drawText(start, text);
    } else {
        painter.drawGlyphRun(start, run);
    }
}

const PageTexts::LaidOutText& PageTexts::LaidOut(const QString& text) {
    QHash<QString, LaidOutText>& texts = fonts_[current_].texts;
    const auto known = texts.constFind(text);
    return known != texts.constEnd() ? *known : *texts.insert(text, LayOut(text));
}

PageTexts::LaidOutText PageTexts::LayOut(const QString& text) const {
    const QRawFont& font = fonts_[current_].characters;
    const QList<quint32> characters =
        std::ranges::all_of(text, StandsAlone) ? font.glyphIndexesForString(text) : QList<quint32>();
    if (characters.isEmpty() || characters.contains(0)) {
        return {{}, QFontMetricsF(Font(), &paper_).horizontalAdvance(text)};
    }
    QList<QPointF> places;
    places.reserve(characters.size());
    double x = 0;
    for (const QPointF& advance : font.advancesForGlyphIndexes(characters)) {
        places += QPointF(x, 0);
        x += advance.x();
    }
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes(characters);
    run.setPositions(places);
    return {run, x};
}

} // namespace zelvor
