#include "controls/BoundRows.h"

#include <utility>

#include "controls/BoundCheck.h"
#include "controls/BoundList.h"
#include "controls/BoundSpin.h"
#include "data/Session.h"
#include "platform/Toolkit.h"

namespace zelvor {

BoundRows::BoundRows(QWidget& container, Session& session, int margin, int spacing)
    : FieldRows(container, session.LanguageFlag, margin, spacing), container_(container), session_(session) {}

BoundSpin* BoundRows::AddSpin(const QString& name, const NumberField& field, SpinTextRules rules) {
    auto* made = new BoundSpin(name, field, session_.Image, session_.LanguageFlag, std::move(rules), &container_);
    Add("lbl" + name, field.label, made);
    return made;
}

BoundList* BoundRows::AddList(const QString& name, const ListField& field, const QString& labelName) {
    auto* made = new BoundList("cbo" + name, field, session_.Image, session_.LanguageFlag, &container_);
    Add(labelName.isEmpty() ? "lbl" + name : labelName, field.label, made);
    return made;
}

BoundCheck* BoundRows::AddCheck(const QString& name, const CheckField& field) {
    BoundCheck* made = MakeCheck(name, field);
    Add(made);
    return made;
}

BoundCheck* BoundRows::MakeCheck(const QString& name, const CheckField& field) {
    return new BoundCheck("chk" + name, field, session_.Image, session_.LanguageFlag, &container_);
}

} // namespace zelvor
