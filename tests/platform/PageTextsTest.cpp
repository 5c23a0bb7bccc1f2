#include "platform/PageTexts.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace zelvor {
namespace {

constexpr QSize PaperSize(900, 60);
constexpr QPointF Start(10.25, 40.5);

QFont PageFont(double size, bool isBold) {
    QFont font;
    font.setPointSizeF(size);
    font.setBold(isBold);
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

template<typename Draw>
QImage Drawn(QImage paper, Draw draw) {
    paper.fill(Qt::white);
    QPainter painter(&paper);
    draw(painter);
    return paper;
}

/// Latin, Chinese, both, other scripts, letters that join or run the other way, nothing.
const QStringList Texts{"RX Frequency[MHz]",
                        "接收频率[MHz]",
                        "  4618(VHF) M ",
                        "ÀÉñß…",
                        "العربية abc",
                        "हिन्दी",
                        "שלום 12",
                        "e\u0301tude",
                        "",
                        "\u00AD-"};

TEST(PageTexts, DrawAndMeasureATextAsTheToolkitDoes) {
    QImage paper(PaperSize, QImage::Format_RGB32);
    PageTexts texts(paper);
    for (const QFont& font : {PageFont(10, false), PageFont(16, true), PageFont(10, false)}) {
        texts.SetFont(font);
        EXPECT_EQ(texts.Ascent(), QFontMetricsF(font, &paper).ascent());
        for (const QString& text : Texts + Texts) { // the second time as laid out the first time
            SCOPED_TRACE(text.toStdString());
            EXPECT_EQ(texts.WidthOf(text), QFontMetricsF(font, &paper).horizontalAdvance(text));
            const QImage ours = Drawn(paper, [&](QPainter& painter) { texts.Draw(painter, Start, text); });
            const QImage toolkits = Drawn(paper, [&](QPainter& painter) {
                painter.setFont(font);
                painter.drawText(Start, text);
            });
            EXPECT_EQ(ours, toolkits);
        }
    }
}

} // namespace
} // namespace zelvor
