#include "help/HelpHitDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>

namespace zelvor {

namespace {

constexpr int Margin = 6;
constexpr int ExcerptLines = 2;

QFont BoldFont(const QFont& font) {
    QFont bold(font);
    bold.setBold(true);
    return bold;
}

/// An excerpt that goes on behind the lines ends in dots.
QString FittingText(const QString& text, const QFont& font, int width) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine last;
    for (int number = 0; number < ExcerptLines; ++number) {
        last = layout.createLine();
        if (!last.isValid()) {
            return text;
        }
        last.setLineWidth(width);
    }
    const QString before = text.left(last.textStart());
    layout.endLayout();
    return before + QFontMetrics(font).elidedText(text.mid(before.size()), Qt::ElideRight, width);
}

/// Chinese characters may come from another font, whose lines are higher.
int LineHeight(const QFont& font) {
    QTextLayout layout(QStringLiteral("Ag国"), font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return qCeil(line.height());
}

void DrawLines(QPainter& painter, const QString& text, const QFont& font, const QRect& area) {
    QTextLayout layout(FittingText(text, font, area.width()), font);
    layout.beginLayout();
    for (int number = 0; number < ExcerptLines; ++number) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(area.width());
        line.setPosition(QPointF(0, number * LineHeight(font)));
    }
    layout.endLayout();
    layout.draw(&painter, area.topLeft());
}

} // namespace

void HelpHitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const QStyle* style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);

    const bool isSelected = (item.state & QStyle::State_Selected) != 0;
    const QRect area = item.rect.adjusted(Margin, Margin, -Margin, -Margin);
    const QFont bold = BoldFont(item.font);
    painter->save();
    painter->setPen(item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(bold);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignTop,
                      QFontMetrics(bold).elidedText(item.text, Qt::ElideRight, area.width()));
    DrawLines(*painter, index.data(ExcerptRole).toString(), item.font, area.adjusted(0, LineHeight(bold), 0, 0));
    painter->restore();
}

QSize HelpHitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
    return {0, LineHeight(BoldFont(option.font)) + ExcerptLines * LineHeight(option.font) + 2 * Margin};
}

} // namespace zelvor
