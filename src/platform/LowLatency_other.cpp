#include "platform/LowLatency.h"

namespace zelvor {

void AskForLowLatency(QSerialPort& /*port*/) {}

} // namespace zelvor
