#include "features/KeyAssign.h"

#include <QEvent>

#include "controls/BoundList.h"
#include "controls/BoundRows.h"
#include "data/KeyFields.h"
#include "features/RadioPicture.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{4905, 6600}; // twips

} // namespace

KeyAssign::KeyAssign(Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::KeyAssignment, "KeyAssign", WindowSize, "picKeyAssign", Text::KeyAssignment, document,
                windows, services, parent),
      Pickey_(new RadioPicture(windows.LanguageFlag, Panel())) {
    BoundRows rows(*Panel(), document.Image, windows.LanguageFlag);
    pf1_ = rows.AddList("Key(0)", key_assignment::Keys[0]);
    pf2_ = rows.AddList("Key(1)", key_assignment::Keys[1]);
    rows.Add(Pickey_);
    Pickey_->setObjectName("Pickey");
    pf1_->installEventFilter(this);
    pf2_->installEventFilter(this);
    LoadFields();
    StartAt(*pf1_);
}

bool KeyAssign::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        Pickey_->Mark(watched == pf1_ ? RadioKey::Pf1 : RadioKey::Pf2);
    }
    return FieldForm::eventFilter(watched, event);
}

} // namespace zelvor
