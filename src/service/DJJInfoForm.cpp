#include "service/DJJInfoForm.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <array>

#include "controls/FitToScreen.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "data/Windows1252.h"
#include "help/HelpViewer.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "service/ServiceControls.h"
#include "service/ServiceState.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

/// Nothing that the radio tells reaches this text.
constexpr const char* FixedVersion = "V1.0";

// Places in the manufacturing record.
constexpr std::size_t SerialPrefix = 13;
constexpr std::size_t SerialFirst = 17;
constexpr std::size_t SerialLast = 24;

constexpr int FieldWidth = 220; // logical pixels

struct ModelTexts {
    std::string_view model;
    std::string_view range;
};

/// A known family with a market that it does not have shows neither text.
ModelTexts TextsOf(const DataImage& image) {
    const std::uint8_t family = image.At(address::Family);
    const ModelVariant* variant = FindVariant(family, image.At(address::Market));
    if (variant == nullptr && IsFamilyByte(family)) {
        return {};
    }
    const ModelVariant& shown = variant != nullptr ? *variant : VariantOfUnknownFamily();
    return {shown.infoModel, shown.infoBand};
}

} // namespace

DJJInfoForm::DJJInfoForm(const Document& document, const ServiceState& service, Language language, Services& services,
                         QWidget* parent)
    : QDialog(parent), service_(service), language_(language), services_(services) {
    setObjectName("DJJInfoForm");
    setWindowTitle(ToQString(TableText(language_, Text::RadioInformation)));

    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(16);
    fields->setVerticalSpacing(10);
    const ModelTexts model = TextsOf(document.Image);
    AddField(*fields, "lblModelType", Text::ModelType, "LabModel", ToQString(model.model));
    AddField(*fields, "lblFrequency", Text::FrequencyOfRadio, "LabFreq", ToQString(model.range));
    AddField(*fields, "lblSerialNum", Text::SerialNumber, "LabSN", SerialNumber());
    AddField(*fields, "lblVersion", Text::Version, "LabVersion", FixedVersion);

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

QString DJJInfoForm::SerialNumber() const {
    const auto& record = service_.RadioInfoRecord;
    QString text(u' ');
    text += QChar(Windows1252Character(record[SerialPrefix]));
    text += u' ';
    for (std::size_t i = SerialFirst; i <= SerialLast; ++i) {
        text += QChar(Windows1252Character(record[i]));
    }
    return text;
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
