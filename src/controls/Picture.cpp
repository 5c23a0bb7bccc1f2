#include "controls/Picture.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace zelvor {

namespace {

constexpr const char* IsPicture = "isPicture";

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const bool isPicture = widget != nullptr && widget->property(IsPicture).toBool();
    return isPicture ? new QAccessibleWidget(widget, QAccessible::Graphic) : nullptr;
}

} // namespace

void TellAsPicture(QWidget& widget) {
    widget.setProperty(IsPicture, true);
    QAccessible::installFactory(MakeAccessible); // once, however often it is called
}

} // namespace zelvor
