#include "channels/ToneKeys.h"

#include "controls/FilteredLineEdit.h"

namespace zelvor {

namespace {

constexpr int ToneLength = 5; // "D023N"

QChar ToneCharacter(QChar entered) {
    const QChar upper = entered.toUpper();
    const bool wanted = !DigitOrPoint(upper).isNull() || IsToneLetter(upper.unicode());
    return wanted ? upper : QChar();
}

} // namespace

void TakeToneKeys(FilteredLineEdit& box) {
    box.SetFilter(ToneCharacter);
    box.SetLengthLimit(ToneLength);
}

} // namespace zelvor
