#include "platform/Display.h"

#include <QtGlobal>

namespace zelvor {

void DoWithoutDisplay() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace zelvor
