#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include "fakes/FakeServices.h"
#include "platform/Toolkit.h"

namespace zelvor {

/// A control by its name; a missing one fails the test.
template<typename Control>
Control& Find(const QWidget& form, const char* name) {
    auto* control = form.findChild<Control*>(name);
    if (!control) {
        ADD_FAILURE() << "no control " << name;
        static Control none;
        return none;
    }
    return *control;
}

inline std::string CaptionOf(const QWidget& form, const char* button) {
    return FromQString(Find<QPushButton>(form, button).text());
}

inline void Click(const QWidget& form, const char* button) {
    QTest::mouseClick(&Find<QPushButton>(form, button), Qt::LeftButton);
}

inline void ShowActive(QWidget& form) {
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
}

inline std::string ProgramFolder() {
    return FromQString(QCoreApplication::applicationDirPath());
}

} // namespace zelvor
