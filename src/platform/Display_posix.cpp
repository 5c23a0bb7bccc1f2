#include "platform/Display.h"

#include <QByteArray>

namespace zelvor {

void DoWithoutDisplay() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace zelvor
