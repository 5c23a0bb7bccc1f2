#include "controls/BoundRows.h"

#include <utility>

#include "controls/BoundCheck.h"
#include "controls/BoundList.h"
#include "controls/BoundSpin.h"
#include "platform/Toolkit.h"

namespace zelvor {

BoundRows::BoundRows(QWidget& container, DataImage& image, Language language, int margin, int spacing)
    : FieldRows(container, language, margin, spacing), container_(container), image_(image), language_(language) {}

BoundSpin* BoundRows::AddSpin(const QString& name, const NumberField& field, SpinTextRules rules) {
    auto* made = new BoundSpin(name, field, image_, language_, std::move(rules), &container_);
    Add("lbl" + name, field.label, made);
    return made;
}

BoundList* BoundRows::AddList(const QString& name, const ListField& field, const QString& labelName) {
    auto* made = new BoundList("cbo" + name, field, image_, language_, &container_);
    Add(labelName.isEmpty() ? "lbl" + name : labelName, field.label, made);
    return made;
}

BoundCheck* BoundRows::AddCheck(const QString& name, const CheckField& field) {
    BoundCheck* made = MakeCheck(name, field);
    Add(made);
    return made;
}

BoundCheck* BoundRows::MakeCheck(const QString& name, const CheckField& field) {
    return new BoundCheck("chk" + name, field, image_, language_, &container_);
}

} // namespace zelvor
