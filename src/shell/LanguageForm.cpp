#include "shell/LanguageForm.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "controls/DialogButtons.h"
#include "controls/FitToScreen.h"
#include "data/Session.h"
#include "help/HelpViewer.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "shell/Icons.h"

namespace zelvor {

namespace {

constexpr int ListWidth = 180;

} // namespace

LanguageForm::LanguageForm(Session& session, Services& services, QWidget* parent)
    : QDialog(parent), session_(session), services_(services), oldLanguage_(session.LanguageFlag) {
    setObjectName("LanguageForm");
    setWindowTitle(ToQString(session_.LoadText(Text::LanguageFileSetup)));
    setWindowIcon(MakeIcon(IconShape::Application));
    BuildControls();
}

void LanguageForm::BuildControls() {
    auto* labLanguage = new QLabel(ToQString(session_.LoadText(Text::LanguageMode)), this);
    labLanguage->setObjectName("labLanguage");
    comLanguage_ = new QComboBox(this);
    comLanguage_->setObjectName("ComLanguage");
    comLanguage_->setAccessibleName(labLanguage->text());
    comLanguage_->setMinimumWidth(ListWidth);
    comLanguage_->addItem(ToQString(session_.LoadText(Text::English)));
    comLanguage_->addItem(ToQString(session_.LoadText(Text::Chinese)));
    comLanguage_->setCurrentIndex(session_.LanguageFlag == Language::Chinese ? 1 : 0);

    const DialogButtons buttons = MakeDialogButtons(*this, session_);
    buttons.cmdOK->setObjectName("CmdOK");
    buttons.cmdCancel->setObjectName("CmdCancel");
    buttons.cmdHelp->setObjectName("CmdHelp");
    connect(buttons.cmdOK, &QPushButton::clicked, this, &LanguageForm::accept);
    connect(buttons.cmdCancel, &QPushButton::clicked, this, &LanguageForm::reject);
    connect(buttons.cmdHelp, &QPushButton::clicked, this, [this] {
        services_.help.Show({session_.LanguageFlag, "language.htm"});
    });

    auto* layout = new QFormLayout(this);
    layout->addRow(labLanguage, comLanguage_);
    layout->addRow(buttons.row);
    FitToScreen(*this);
}

void LanguageForm::accept() {
    session_.LanguageFlag = comLanguage_->currentIndex() == 1 ? Language::Chinese : Language::English;
    QDialog::accept();
}

bool LanguageForm::LanguageChanged() const {
    return session_.LanguageFlag != oldLanguage_;
}

} // namespace zelvor
