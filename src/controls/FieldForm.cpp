#include "controls/FieldForm.h"

#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "controls/BoundCheck.h"
#include "controls/BoundList.h"
#include "controls/BoundSpin.h"
#include "help/HelpViewer.h"
#include "platform/LayoutUnits.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr int Margin = 12;
constexpr QSize ButtonSize(100, 30);

} // namespace

FieldForm::FieldForm(ChildWindow window, std::string_view objectName, QSize contentTwips, std::string_view panelName,
                     Text caption, Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : ChildForm(window, objectName, contentTwips, parent), document_(document), windows_(windows), services_(services),
      panel_(new QFrame(Content())) {
    panel_->setObjectName(ToQString(panelName));
    panel_->setGeometry(0, 0, Content()->width(), Content()->height() - LaidOut(ButtonSize.height() + 2 * Margin));
    SetCaption(LoadText(caption));
}

QString FieldForm::LoadText(Text name) const {
    return ToQString(windows_.LoadText(name));
}

void FieldForm::LoadFields() {
    BuildButtons();
    for (BoundSpin* spin : panel_->findChildren<BoundSpin*>()) {
        spin->Load();
    }
    for (BoundList* list : panel_->findChildren<BoundList*>()) {
        list->Load();
    }
    for (BoundCheck* check : panel_->findChildren<BoundCheck*>()) {
        check->Load();
    }
}

void FieldForm::StartAt(QWidget& first) {
    first_ = &first;
}

void FieldForm::showEvent(QShowEvent* event) {
    ChildForm::showEvent(event);
    if (first_ != nullptr && !started_) {
        first_->setFocus();
    }
    started_ = true;
}

/// In place of a focus proxy: for that, the tab key would take the window itself for a stop on its way round, and pass
/// over the tabs that lie before the first field.
void FieldForm::focusInEvent(QFocusEvent* event) {
    ChildForm::focusInEvent(event);
    if (first_ != nullptr && first_->isVisible()) {
        first_->setFocus(event->reason());
    } else {
        focusNextChild();
    }
}

void FieldForm::BuildButtons() {
    const auto button = [this](const char* name, int fromRight, Text caption) {
        auto* made = new QPushButton(LoadText(caption), Content());
        made->setObjectName(name);
        const QPoint corner(LaidOut(fromRight * (ButtonSize.width() + Margin)), LaidOut(ButtonSize.height() + Margin));
        made->setGeometry({Content()->rect().bottomRight() + QPoint(1, 1) - corner, LaidOut(ButtonSize)});
        made->setAutoDefault(true);
        return made;
    };
    const auto* cmdClose = button("cmdClose", 2, Text::CloseButton);
    const auto* cmdHelp = button("cmdHelp", 1, Text::HelpButton);
    On(*cmdClose, [this] { CloseFromButton(); });
    connect(cmdHelp, &QPushButton::clicked, this, [this] { services_.help.Show({windows_.LanguageFlag, HelpPage()}); });
}

FieldRows::FieldRows(QWidget& container, Language language, int margin, int spacing)
    : layout_(new QGridLayout(&container)), language_(language) {
    layout_->setContentsMargins(margin, margin, margin, margin);
    layout_->setHorizontalSpacing(Margin);
    layout_->setVerticalSpacing(spacing);
    layout_->setColumnStretch(0, 1);
    layout_->setColumnStretch(1, 1);
}

QLabel* FieldRows::Add(const QString& labelName, const FieldWord& label, QWidget* control) {
    return Add(labelName, ToQString(label.In(language_)), control);
}

QLabel* FieldRows::Add(const QString& labelName, const QString& label, QWidget* control) {
    auto* made = new QLabel(label, layout_->parentWidget());
    made->setObjectName(labelName);
    made->setBuddy(control);
    if (auto* pair = qobject_cast<SpinText*>(control)) {
        pair->SetAccessibleName(label);
    } else {
        control->setAccessibleName(label);
    }
    const int row = layout_->rowCount();
    layout_->addWidget(made, row, 0);
    layout_->addWidget(control, row, 1);
    return made;
}

void FieldRows::Add(QWidget* control) {
    layout_->addWidget(control, layout_->rowCount(), 0, 1, 2);
}

void FieldRows::AddPair(QWidget* left, QWidget* right) {
    const int row = layout_->rowCount();
    layout_->addWidget(left, row, 0);
    layout_->addWidget(right, row, 1);
}

void FieldRows::End() {
    layout_->setRowStretch(layout_->rowCount(), 1);
}

} // namespace zelvor
