#pragma once

#include <QStringList>

namespace zelvor {

/// "1", "2" and so on, as captions or entries.
[[nodiscard]] QStringList NumbersTo(int last);

} // namespace zelvor
