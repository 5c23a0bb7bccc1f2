#pragma once

#include <QChar>

namespace zelvor {

/// The filter of a box that takes DTMF digits: 0-9, A-D, * and #, with a to d turned into capitals.
[[nodiscard]] QChar DtmfDigitFilter(QChar entered);

} // namespace zelvor
