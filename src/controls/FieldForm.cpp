#include "controls/FieldForm.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "controls/PendingEdit.h"
#include "controls/SpinText.h"
#include "platform/HelpTopic.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr int Margin = 12;
constexpr QSize ButtonSize(100, 30);
constexpr int CloseText = 75;
constexpr int HelpText = 76;

} // namespace

FieldForm::FieldForm(ChildWindow window, std::string_view objectName, QSize contentTwips, std::string_view panelName,
                     int caption, Session& session, Services& services, QWidget* parent)
    : ChildForm(window, objectName, contentTwips, parent), session_(session), services_(services),
      panel_(new QFrame(Content())) {
    panel_->setObjectName(ToQString(panelName));
    panel_->setGeometry(0, 0, Content()->width(), Content()->height() - ButtonSize.height() - 2 * Margin);
    SetCaption(LoadText(caption));
    BuildButtons();
}

FieldForm::~FieldForm() {
    DropPendingEdit(*this);
}

QString FieldForm::LoadText(int n) const {
    return ToQString(session_.LoadText(n));
}

void FieldForm::BuildButtons() {
    const auto button = [this](const char* name, int fromRight, int textNumber) {
        auto* made = new QPushButton(LoadText(textNumber), Content());
        made->setObjectName(name);
        made->setGeometry({{Content()->width() - fromRight * (ButtonSize.width() + Margin),
                            Content()->height() - ButtonSize.height() - Margin},
                           ButtonSize});
        made->setAutoDefault(true);
        return made;
    };
    const auto* cmdClose = button("cmdClose", 2, CloseText);
    const auto* cmdHelp = button("cmdHelp", 1, HelpText);
    connect(cmdClose, &QPushButton::clicked, this, &FieldForm::CloseFromFrame);
    connect(cmdHelp, &QPushButton::clicked, this,
            [this] { services_.help.ShowTopic(HelpTopicPath(session_.LanguageFlag, HelpPage())); });
}

void FieldForm::CloseFromFrame() {
    CommitPendingEdit();
    emit UnloadRequested();
}

FieldRows::FieldRows(QWidget& container, Language language)
    : layout_(new QGridLayout(&container)), language_(language) {
    layout_->setContentsMargins(Margin, Margin, Margin, Margin);
    layout_->setHorizontalSpacing(Margin);
    layout_->setVerticalSpacing(Margin / 2);
    layout_->setColumnStretch(0, 1);
    layout_->setColumnStretch(1, 1);
}

QLabel* FieldRows::Add(const QString& labelName, int label, QWidget* control) {
    const QString text = ToQString(TableText(language_, label));
    auto* made = new QLabel(text, layout_->parentWidget());
    made->setObjectName(labelName);
    made->setBuddy(control);
    if (auto* pair = qobject_cast<SpinText*>(control)) {
        pair->SetAccessibleName(text);
    } else {
        control->setAccessibleName(text);
    }
    const int row = layout_->rowCount();
    layout_->addWidget(made, row, 0);
    layout_->addWidget(control, row, 1);
    return made;
}

void FieldRows::Add(QWidget* control) {
    layout_->addWidget(control, layout_->rowCount(), 0, 1, 2);
}

void FieldRows::End() {
    layout_->setRowStretch(layout_->rowCount(), 1);
}

} // namespace zelvor
