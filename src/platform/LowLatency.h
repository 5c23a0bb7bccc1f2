#pragma once

class QSerialPort;

namespace zelvor {

/// Asks the driver of an open port to hand on received bytes at once: adapters may hold back short replies for 16 ms.
/// Goes on quietly where the driver has no such setting.
void AskForLowLatency(QSerialPort& port);

} // namespace zelvor
