#pragma once

#include "controls/FieldForm.h"
#include "controls/SpinText.h"
#include "data/Fields.h"

namespace zelvor {

class BoundCheck;
class BoundList;
class BoundSpin;

/// Rows of controls that are bound to fields of an image, each made and labelled from its field's
/// description. `name` is the control's without its prefix: "TOT" makes txtTOT, updTOT and lblTOT.
class BoundRows : public FieldRows {
public:
    BoundRows(QWidget& container, DataImage& image, Language language, int margin = 12, int spacing = 6);

    BoundSpin* AddSpin(const QString& name, const NumberField& field, SpinTextRules rules = {});
    /// labelName: where it is not "lbl" and the name.
    BoundList* AddList(const QString& name, const ListField& field, const QString& labelName = {});
    BoundCheck* AddCheck(const QString& name, const CheckField& field);
    /// The same, not yet in a row; for AddPair.
    BoundCheck* MakeCheck(const QString& name, const CheckField& field);

private:
    QWidget& container_;
    DataImage& image_;
    const Language language_;
};

} // namespace zelvor
