#pragma once

#include <QApplication>
#include <QPrintDialog>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace zelvor {

/// Opens the dialog behind the button Properties of a print dialog, and does something to it, which must end it.
inline void WithProperties(QPrintDialog& dialog, const std::function<void(QDialog& properties)>& act) {
    bool isSeen = false;
    QTimer poll; // until the dialog of the properties is the one on top
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* properties = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (properties != nullptr && properties != &dialog && properties->isVisible()) {
            poll.stop();
            isSeen = true;
            act(*properties);
        }
    });
    poll.start(5);
    dialog.findChild<QPushButton*>("properties")->click();
    EXPECT_TRUE(isSeen);
}

} // namespace zelvor
