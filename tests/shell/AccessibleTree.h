#pragma once

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>

#include "support/QtPrinting.h"

namespace zelvor {

/// All that assistive technology sees below, itself included.
inline void WalkAccessibles(QAccessibleInterface* from, const std::function<void(QAccessibleInterface&)>& visit) {
    if (from == nullptr || !from->isValid() || from->state().invisible) {
        return;
    }
    visit(*from);
    for (int i = 0; i < from->childCount(); ++i) {
        WalkAccessibles(from->child(i), visit);
    }
}

/// Roles with which the user does something, or that tell something: they need a name.
inline bool NeedsName(QAccessible::Role role) {
    static const std::set<QAccessible::Role> roles{
        QAccessible::Button,      QAccessible::PushButton,   QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::ComboBox,    QAccessible::EditableText, QAccessible::SpinBox,  QAccessible::Slider,
        QAccessible::ProgressBar, QAccessible::List,         QAccessible::Table,    QAccessible::Tree,
        QAccessible::PageTab,     QAccessible::Graphic,      QAccessible::Dialog,   QAccessible::MenuItem,
        QAccessible::StaticText,  QAccessible::Dial,         QAccessible::ToolBar,  QAccessible::StatusBar};
    return roles.contains(role);
}

inline std::string TellAccessible(const QAccessibleInterface& each) {
    const QObject* object = each.object();
    return (object == nullptr
                ? "part"
                : std::string(object->metaObject()->className()) + ' ' + object->objectName().toStdString()) +
           ", role " + std::to_string(each.role());
}

/// Whether a label or a description says what it is: on some systems the name of a list that opens is its value.
inline bool IsLabelled(const QAccessibleInterface& list) {
    return !list.relations(QAccessible::Label).isEmpty() || !list.text(QAccessible::Description).isEmpty();
}

/// Whatever takes the keyboard, and whatever tells something, has a name.
inline void ExpectNames(QWidget& window) {
    int named = 0;
    WalkAccessibles(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& each) {
        const bool takesKeys = each.state().focusable && each.role() != QAccessible::Cell;
        if (!takesKeys && !NeedsName(each.role())) {
            return;
        }
        const bool saysNothing = each.text(QAccessible::Name).isEmpty() && each.text(QAccessible::Value).isEmpty();
        const bool isText = each.role() == QAccessible::StaticText;
        if (isText && saysNothing && each.text(QAccessible::Description).isEmpty()) {
            return; // a label that shows nothing now
        }
        ++named;
        EXPECT_FALSE(each.text(QAccessible::Name).isEmpty())
            << window.objectName().toStdString() << ": " << TellAccessible(each);
        if (each.role() == QAccessible::ComboBox) {
            EXPECT_TRUE(IsLabelled(each)) << window.objectName().toStdString() << ": " << TellAccessible(each);
        }
    });
    EXPECT_GE(named, 2) << window.objectName().toStdString();
}

/// Who is named says what it is: only what lays out others may have no role of its own.
inline void ExpectRoles(QWidget& window) {
    WalkAccessibles(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& each) {
        const bool isPassedOver = each.role() == QAccessible::Client || each.role() == QAccessible::Pane;
        if (isPassedOver && each.childCount() == 0) {
            EXPECT_EQ(each.text(QAccessible::Name).toStdString(), "")
                << window.objectName().toStdString() << ": " << TellAccessible(each);
        }
    });
}

/// A number that is stepped tells its value within its range, and what is shown for it.
inline void ExpectNumbers(QWidget& window) {
    WalkAccessibles(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& each) {
        QAccessibleValueInterface* number = each.valueInterface();
        if (number == nullptr) {
            return;
        }
        const std::string where = window.objectName().toStdString() + ": " + TellAccessible(each);
        EXPECT_LT(number->minimumValue().toInt(), number->maximumValue().toInt()) << where;
        EXPECT_LE(number->minimumValue().toInt(), number->currentValue().toInt()) << where;
        EXPECT_GE(number->maximumValue().toInt(), number->currentValue().toInt()) << where;
        if (each.role() == QAccessible::SpinBox) {
            const auto* box = each.object()->parent()->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
            EXPECT_EQ(each.text(QAccessible::Value).toStdString(), box->text().toStdString()) << where;
        }
    });
}

/// A field beside a visible label has the label's text for its name, as far as the keyboard goes into the field. A list
/// that opens may have its value for its name: it has the label itself.
inline void ExpectLabels(QWidget& window) {
    for (QLabel* label : window.findChildren<QLabel*>()) {
        QWidget* field = label->buddy();
        if (!label->isVisible() || field == nullptr) {
            continue;
        }
        while (field->focusProxy() != nullptr) {
            field = field->focusProxy();
        }
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(field);
        const std::string where = window.objectName().toStdString() + ": " + label->objectName().toStdString();
        if (told->role() == QAccessible::ComboBox) {
            const auto relations = told->relations(QAccessible::Label);
            EXPECT_TRUE(std::any_of(relations.begin(), relations.end(), [&](const auto& each) {
                return each.first->object() == label;
            })) << where;
        } else {
            EXPECT_EQ(told->text(QAccessible::Name).toStdString(), label->text().remove(u'&').toStdString()) << where;
        }
    }
}

/// The tab key goes down or to the right: from each control to one that is not above it, or is in a column behind it.
inline void ExpectReadingOrder(QWidget& window) {
    const auto isStop = [](const QWidget& each) {
        return each.isVisible() && each.isEnabled() && (each.focusPolicy() & Qt::TabFocus) != 0 &&
               each.focusProxy() == nullptr;
    };
    const auto placeOf = [&](const QWidget& each) { return QRect(each.mapTo(&window, QPoint()), each.size()); };
    const QWidget* last = nullptr;
    const QWidget* each = &window;
    while ((each = each->nextInFocusChain()) != &window) {
        if (!window.isAncestorOf(each) || !isStop(*each)) {
            continue;
        }
        if (last != nullptr) {
            const QRect from = placeOf(*last);
            const QRect to = placeOf(*each);
            const bool isAbove = to.bottom() < from.top();
            const bool isBeside = !isAbove && to.top() <= from.bottom();
            EXPECT_FALSE((isAbove && to.left() < from.right()) || (isBeside && to.left() < from.left()))
                << window.objectName().toStdString() << ": from " << last->objectName().toStdString() << " to "
                << each->objectName().toStdString();
        }
        last = each;
    }
}

inline void ExpectSpoken(QWidget& window) {
    ExpectNames(window);
    ExpectRoles(window);
    ExpectNumbers(window);
    ExpectLabels(window);
    ExpectReadingOrder(window);
}

} // namespace zelvor
