#pragma once

#include <QApplication>

namespace zelvor {

/// Where a box or dialog of the system belongs: to the dialog on top, else to the active window.
[[nodiscard]] inline QWidget* DialogParent() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

} // namespace zelvor
