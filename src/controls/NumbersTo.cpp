#include "controls/NumbersTo.h"

namespace zelvor {

QStringList NumbersTo(int last) {
    QStringList numbers;
    for (int n = 1; n <= last; ++n) {
        numbers.append(QString::number(n));
    }
    return numbers;
}

} // namespace zelvor
