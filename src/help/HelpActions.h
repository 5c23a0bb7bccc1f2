#pragma once

#include "text/Language.h"

class QAction;
class QWidget;

namespace zelvor {

/// The commands of the help window, with their keys. Members of the window; it connects them.
struct HelpActions {
    explicit HelpActions(QWidget& window);

    void ApplyTexts(Language language) const;

    QAction* back;
    QAction* forward;
    QAction* home;
    QAction* zoomOut;
    QAction* zoomReset;
    QAction* zoomIn;
    QAction* find;
    QAction* findNext;
    QAction* findPrevious;
    QAction* close;
};

} // namespace zelvor
