#include "platform/SelectionCursor.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>

namespace zelvor {

void LetCursorFollowSelection(QAbstractItemView& view) {
    // Queued: the user's own moves select before they move the cursor.
    QObject::connect(
        view.selectionModel(), &QItemSelectionModel::selectionChanged, &view,
        [&view] {
            const QModelIndexList selected = view.selectionModel()->selectedIndexes();
            if (selected.size() == 1 && selected.front() != view.currentIndex()) {
                view.setFocus(Qt::OtherFocusReason);
                view.setCurrentIndex(selected.front());
            }
        },
        Qt::QueuedConnection);
}

} // namespace zelvor
