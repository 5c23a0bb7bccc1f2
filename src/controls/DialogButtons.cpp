#include "controls/DialogButtons.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

#include "data/Session.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

QPushButton* MakeButton(QDialog& dialog, const char* name, std::string_view text) {
    auto* button = new QPushButton(ToQString(text), &dialog);
    button->setObjectName(name);
    button->setAutoDefault(true); // Enter presses the button that has the keyboard, else OK
    return button;
}

} // namespace

DialogButtons MakeDialogButtons(QDialog& dialog, const Session& session) {
    DialogButtons buttons{MakeButton(dialog, "cmdOK", session.LoadText(Text::OkButton)),
                          MakeButton(dialog, "cmdCancel", session.LoadText(Text::CancelButton)),
                          MakeButton(dialog, "cmdHelp", session.LoadText(Text::HelpButton)), new QHBoxLayout};
    buttons.cmdOK->setDefault(true);
    buttons.row->addStretch();
    for (QPushButton* button : {buttons.cmdOK, buttons.cmdCancel, buttons.cmdHelp}) {
        buttons.row->addWidget(button);
    }

    auto* helpKey = new QShortcut(QKeySequence::HelpContents, &dialog);
    QObject::connect(helpKey, &QShortcut::activated, buttons.cmdHelp, &QPushButton::click);
    return buttons;
}

} // namespace zelvor
