#include "shell/LanguageForm.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "controls/DialogButtons.h"
#include "controls/FitToScreen.h"
#include "controls/WindowState.h"
#include "help/HelpViewer.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "shell/Icons.h"

namespace zelvor {

namespace {

constexpr int ListWidth = 180;

} // namespace

LanguageForm::LanguageForm(WindowState& windows, Services& services, QWidget* parent)
    : QDialog(parent), windows_(windows), services_(services), oldLanguage_(windows.LanguageFlag) {
    setObjectName("LanguageForm");
    setWindowTitle(ToQString(windows_.LoadText(Text::LanguageFileSetup)));
    setWindowIcon(MakeIcon(IconShape::Application));
    BuildControls();
}

void LanguageForm::BuildControls() {
    auto* labLanguage = new QLabel(ToQString(windows_.LoadText(Text::LanguageMode)), this);
    labLanguage->setObjectName("labLanguage");
    comLanguage_ = new QComboBox(this);
    comLanguage_->setObjectName("ComLanguage");
    comLanguage_->setAccessibleName(labLanguage->text());
    labLanguage->setBuddy(comLanguage_);
    comLanguage_->setMinimumWidth(ListWidth);
    comLanguage_->addItem(ToQString(windows_.LoadText(Text::English)));
    comLanguage_->addItem(ToQString(windows_.LoadText(Text::Chinese)));
    comLanguage_->setCurrentIndex(windows_.LanguageFlag == Language::Chinese ? 1 : 0);

    const DialogButtons buttons = MakeDialogButtons(*this, windows_.LanguageFlag);
    buttons.cmdOK->setObjectName("CmdOK");
    buttons.cmdCancel->setObjectName("CmdCancel");
    buttons.cmdHelp->setObjectName("CmdHelp");
    connect(buttons.cmdOK, &QPushButton::clicked, this, &LanguageForm::accept);
    connect(buttons.cmdCancel, &QPushButton::clicked, this, &LanguageForm::reject);
    connect(buttons.cmdHelp, &QPushButton::clicked, this, [this] {
        services_.help.Show({windows_.LanguageFlag, "language.htm"});
    });

    auto* layout = new QFormLayout(this);
    layout->addRow(labLanguage, comLanguage_);
    layout->addRow(buttons.row);
    FitToScreen(*this);
}

void LanguageForm::accept() {
    windows_.LanguageFlag = comLanguage_->currentIndex() == 1 ? Language::Chinese : Language::English;
    QDialog::accept();
}

bool LanguageForm::LanguageChanged() const {
    return windows_.LanguageFlag != oldLanguage_;
}

} // namespace zelvor
