#include "shell/ModelTypeForm.h"

#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "controls/DialogButtons.h"
#include "controls/FitToScreen.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "help/HelpViewer.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "shell/Icons.h"
#include "text/CommonTexts.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr TextPair ClearedText{"Frequency will be cleared.", "频率数据将被清除。"};

constexpr int ListWidth = 180;

QComboBox* MakeList(QDialog& dialog, const char* name, const QString& label) {
    auto* list = new QComboBox(&dialog);
    list->setObjectName(name);
    list->setMinimumWidth(ListWidth);
    list->setAccessibleName(label);
    list->installEventFilter(&dialog);
    return list;
}

QLabel* MakeLabel(QDialog& dialog, const char* name, QComboBox& list) {
    auto* label = new QLabel(list.accessibleName(), &dialog);
    label->setBuddy(&list);
    label->setObjectName(name);
    return label;
}

} // namespace

ModelTypeForm::ModelTypeForm(Document& document, Language language, Services& services, QWidget* parent)
    : QDialog(parent), document_(document), language_(language), services_(services) {
    setObjectName("ModelTypeForm");
    setWindowTitle(ToQString(TableText(language, Text::ModelInformation)));
    setWindowIcon(MakeIcon(IconShape::Application));
    BuildControls();
    SelectVariantOfImage();
}

void ModelTypeForm::BuildControls() {
    const QString model = ToQString(TableText(language_, Text::ModelType));
    const QString frequency = ToQString(TableText(language_, Text::Frequency));
    cboModelType_ = MakeList(*this, "cboModelType", model);
    cboFreq_ = MakeList(*this, "cboFreq", frequency);
    for (const std::string_view entry : ModelEntries()) {
        cboModelType_->addItem(ToQString(entry));
    }
    cboModelType_->setCurrentIndex(-1);
    // Also choosing the entry that is selected already sets the other list to its first entry.
    connect(cboModelType_, &QComboBox::activated, this, &ModelTypeForm::FillRanges);
    connect(cboModelType_, &QComboBox::currentIndexChanged, this, &ModelTypeForm::FillRanges);

    const DialogButtons buttons = MakeDialogButtons(*this, language_);
    connect(buttons.cmdOK, &QPushButton::clicked, this, &ModelTypeForm::TakeChoice);
    connect(buttons.cmdCancel, &QPushButton::clicked, this, &ModelTypeForm::reject);
    connect(buttons.cmdHelp, &QPushButton::clicked, this, [this] {
        services_.help.Show({language_, "modelinfo.htm"});
    });

    auto* layout = new QFormLayout(this);
    layout->addRow(MakeLabel(*this, "lblModelType", *cboModelType_), cboModelType_);
    layout->addRow(MakeLabel(*this, "lblFreq", *cboFreq_), cboFreq_);
    layout->addRow(buttons.row);
    FitToScreen(*this);
}

void ModelTypeForm::SelectVariantOfImage() {
    const ModelVariant* variant = FindVariant(document_.Image.At(address::Family), document_.Image.At(address::Market));
    if (variant != nullptr) {
        cboModelType_->setCurrentIndex(variant->modelIndex);
        // Market C7 has no entry: nothing is selected.
        cboFreq_->setCurrentIndex(variant->rangeIndex < cboFreq_->count() ? variant->rangeIndex : -1);
    }
    loadedModel_ = cboModelType_->currentIndex();
    loadedRange_ = cboFreq_->currentIndex();
}

void ModelTypeForm::FillRanges(int modelIndex) {
    cboFreq_->clear();
    for (const RangeEntry& entry : RangeEntries(modelIndex)) {
        cboFreq_->addItem(ToQString(entry.text));
    }
    cboFreq_->setCurrentIndex(cboFreq_->count() > 0 ? 0 : -1);
}

bool ModelTypeForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            (watched == cboModelType_ ? cboFreq_ : cboModelType_)->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void ModelTypeForm::TakeChoice() {
    const bool isChanged = cboModelType_->currentIndex() != loadedModel_ || cboFreq_->currentIndex() != loadedRange_;
    if (isChanged && ConfirmClearing()) {
        StoreVariant();
    }
    accept();
}

bool ModelTypeForm::ConfirmClearing() {
    return services_.messages.Show({std::string(commontexts::Warning.In(language_)),
                                    std::string(ClearedText.In(language_)), MessageIcon::Exclamation,
                                    MessageButtons::OkCancel, MessageAnswer::Cancel}) == MessageAnswer::Ok;
}

void ModelTypeForm::StoreVariant() {
    const auto ranges = RangeEntries(cboModelType_->currentIndex());
    const auto range = static_cast<std::size_t>(cboFreq_->currentIndex());
    if (range < ranges.size()) {
        document_.Image.Set(address::Market, ranges[range].market);
    }
    // The seventh character is the band's first letter in every entry, so the family never changes here: the dialog
    // chooses the market only. Intended.
    switch (cboModelType_->currentText().at(6).toLatin1()) {
    case '3':
        document_.Image.Set(address::Family, Family4613);
        break;
    case '7':
        document_.Image.Set(address::Family, Family4617);
        break;
    case '8':
        document_.Image.Set(address::Family, Family4618);
        break;
    }
}

} // namespace zelvor
