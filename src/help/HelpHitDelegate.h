#pragma once

#include <QStyledItemDelegate>

namespace zelvor {

/// Draws a page that a search found: its title in bold, and below it the excerpt (ExcerptRole) in two lines.
class HelpHitDelegate : public QStyledItemDelegate {
public:
    static constexpr int ExcerptRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace zelvor
