#include "service/DJJInfoForm.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "controls/FitToScreen.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "help/HelpViewer.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "service/RadioInformation.h"
#include "service/ServiceControls.h"
#include "service/ServiceState.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr int FieldWidth = 220; // logical pixels

} // namespace

DJJInfoForm::DJJInfoForm(const Document& document, const ServiceState& service, Language language, Services& services,
                         QWidget* parent)
    : QDialog(parent), language_(language), services_(services) {
    setObjectName("DJJInfoForm");
    setWindowTitle(ToQString(TableText(language_, Text::RadioInformation)));

    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(16);
    fields->setVerticalSpacing(10);
    const InformationModel model =
        InformationModelOf(document.Image.At(address::Family), document.Image.At(address::Market));
    AddField(*fields, "lblModelType", Text::ModelType, "LabModel", ToQString(model.model));
    AddField(*fields, "lblFrequency", Text::FrequencyOfRadio, "LabFreq", ToQString(model.range));
    AddField(*fields, "lblSerialNum", Text::SerialNumber, "LabSN", ToQString(SerialNumberOf(service.RadioInfoRecord)));
    AddField(*fields, "lblVersion", Text::Version, "LabVersion", ToQString(InformationVersion));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const auto button = [&](const char* name, Text text) {
        auto* made = new QPushButton(ToQString(TableText(language_, text)), this);
        made->setObjectName(name);
        buttons->addWidget(made);
        return made;
    };
    auto* cmdClose = button("cmdClose", Text::CloseButton);
    auto* cmdHelp = button("cmdHelp", Text::HelpButton);
    cmdClose->setDefault(true);
    cmdHelp->setAutoDefault(true);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdHelp, &QPushButton::clicked, this, &DJJInfoForm::ShowHelp);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, &DJJInfoForm::ShowHelp);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addLayout(fields);
    layout->addLayout(buttons);
    FitToScreen(*this);
    AlignButtons(*this);
    cmdClose->setFocus(); // the fields take the focus too, for copying
}

void DJJInfoForm::AddField(QGridLayout& layout, const char* labelName, Text label, const char* name,
                           const QString& text) {
    auto* caption = new QLabel(ToQString(TableText(language_, label)), this);
    caption->setObjectName(labelName);
    auto* value = MakeDisplay(name, FieldWidth, this);
    ShowOn(*value, caption->text(), text);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const int row = layout.rowCount();
    layout.addWidget(caption, row, 0);
    layout.addWidget(value, row, 1);
}

void DJJInfoForm::ShowHelp() {
    services_.help.Show({language_, "radioinfo.htm"});
}

void DJJInfoForm::closeEvent(QCloseEvent* event) {
    event->accept();
    deleteLater();
    emit Unloaded();
}

} // namespace zelvor
