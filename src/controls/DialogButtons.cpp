#include "controls/DialogButtons.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

QPushButton* MakeButton(QDialog& dialog, const char* name, std::string_view text) {
    auto* button = new QPushButton(ToQString(text), &dialog);
    button->setObjectName(name);
    button->setAutoDefault(true); // Enter presses the button that has the keyboard, else OK
    return button;
}

} // namespace

DialogButtons MakeDialogButtons(QDialog& dialog, Language language) {
    DialogButtons buttons{MakeButton(dialog, "cmdOK", TableText(language, Text::OkButton)),
                          MakeButton(dialog, "cmdCancel", TableText(language, Text::CancelButton)),
                          MakeButton(dialog, "cmdHelp", TableText(language, Text::HelpButton)), new QHBoxLayout};
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
