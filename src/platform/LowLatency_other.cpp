#include "platform/LowLatency.h"

namespace zelvor {

void AskForLowLatency(QSerialPort&) {}

} // namespace zelvor
