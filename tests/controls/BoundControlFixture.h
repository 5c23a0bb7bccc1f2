#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>
#include <memory>

#include "controls/PendingEdit.h"
#include "data/DataImage.h"
#include "support/QtPrinting.h"

namespace zelvor {

/// A control over an erased image, with a text box behind it.
template<typename Control>
class BoundControlTest : public testing::Test {
protected:
    template<typename... Arguments>
    void Show(Arguments&&... arguments) {
        if (window) {
            DropPendingEdit(*window);
        }
        window = std::make_unique<QWidget>();
        control = new Control(std::forward<Arguments>(arguments)..., window.get());
        after = new QLineEdit(window.get());
        auto* layout = new QVBoxLayout(window.get());
        layout->addWidget(control);
        layout->addWidget(after);
        after->setFocus();
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    int At(int address) const { return image.At(address); }

    DataImage image;
    std::unique_ptr<QWidget> window;
    Control* control = nullptr;
    QLineEdit* after = nullptr;
};

} // namespace zelvor
