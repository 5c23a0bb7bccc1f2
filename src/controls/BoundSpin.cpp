#include "controls/BoundSpin.h"

#include <utility>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

SpinTextRules RulesOf(const NumberField& field, Language language, SpinTextRules rules) {
    rules.first = field.first;
    rules.last = field.last;
    rules.increment = field.increment;
    rules.lengthLimit = field.lengthLimit;
    rules.show = [&field, language](int value) { return ToQString(field.show(value, language)); };
    return rules;
}

} // namespace

BoundSpin::BoundSpin(const QString& name, const NumberField& field, DataImage& image, Language language,
                     SpinTextRules rules, QWidget* parent)
    : SpinText("txt" + name, "upd" + name, RulesOf(field, language, std::move(rules)), parent), field_(field),
      image_(image), language_(language) {
    connect(&Box(), &FilteredLineEdit::FocusLeft, this, &BoundSpin::Commit);
}

void BoundSpin::Load() {
    const NumberOnShow loaded = LoadNumber(image_, field_, language_);
    SetValue(loaded.value);
    SetText(ToQString(loaded.text));
}

void BoundSpin::Commit() {
    const int value = field_.read(FromQString(Box().text()));
    PutAndStore(value);
    emit Committed(value);
}

void BoundSpin::PutAndStore(int value) {
    // The text is that of the stored byte: a value beyond the range keeps its own, one stored as none has none.
    StoreNumber(image_, field_, value);
    Load();
}

} // namespace zelvor
