#include "controls/BoundCheck.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include "controls/EnterAsTab.h"
#include "controls/PendingEdit.h"
#include "platform/Toolkit.h"

namespace zelvor {

BoundCheck::BoundCheck(const QString& name, const CheckField& field, DataImage& image, Language language,
                       QWidget* parent)
    : QCheckBox(ToQString(field.label.In(language)), parent), field_(field), image_(image) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &BoundCheck::FocusLeft, this, &BoundCheck::Commit);
}

void BoundCheck::Load() {
    setChecked(IsOn(field_, image_.At(field_.address)));
}

void BoundCheck::Commit() {
    image_.Set(field_.address, isChecked() ? 1 : 0);
}

void BoundCheck::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        MoveOn(*this);
        return;
    }
    QCheckBox::keyPressEvent(event);
}

void BoundCheck::focusOutEvent(QFocusEvent* event) {
    QCheckBox::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && IsLeft(*this, *event, [this] { emit FocusLeft(); })) {
        emit FocusLeft();
    }
}

} // namespace zelvor
