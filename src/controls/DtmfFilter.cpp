#include "controls/DtmfFilter.h"

#include "data/Fields.h"

namespace zelvor {

QChar DtmfDigitFilter(QChar entered) {
    const char digit = DtmfDigit(entered.unicode());
    return digit == '\0' ? QChar() : QChar(QLatin1Char(digit));
}

} // namespace zelvor
