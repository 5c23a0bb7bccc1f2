#include "features/DtmfCodeBox.h"

#include "controls/DtmfFilter.h"
#include "controls/EnterAsTab.h"

namespace zelvor {

DtmfCodeBox::DtmfCodeBox(const QString& name, const TextField& field, DataImage& image, QWidget* parent)
    : HoldingLineEdit([&field](const QString& text) { return IsLegalLength(field, static_cast<int>(text.size())); },
                      parent),
      field_(field), image_(image) {
    setObjectName(name);
    SetFilter(field.characters == TextField::Characters::Digits ? Digit : DtmfDigitFilter);
    SetLengthLimit(field.size);
    EnterMovesOn(*this);
    connect(this, &DtmfCodeBox::Refused, this, &DtmfCodeBox::Refuse);
    connect(this, &DtmfCodeBox::FocusLeft, this, &DtmfCodeBox::Commit);
}

void DtmfCodeBox::Load() {
    lastGood_ = QString::fromStdU16String(LoadCode(image_, field_));
    setText(lastGood_);
}

void DtmfCodeBox::Refuse() {
    emit Invalid();
    setText(lastGood_);
    selectAll();
    Store();
}

void DtmfCodeBox::Commit() {
    Store();
    lastGood_ = text();
    emit Committed();
}

void DtmfCodeBox::Store() {
    StoreCode(image_, field_, text().toStdU16String());
}

} // namespace zelvor
