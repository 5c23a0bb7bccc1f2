#pragma once

class QSerialPort;

namespace zelvor {

/// Asks the driver of an open port to hand on received bytes at once: adapters may hold back short replies for 16 ms.
/// And asks the system to keep the waits of the calling thread to the point. Goes on quietly where either has no such
/// setting.
void AskForLowLatency(QSerialPort& port);

} // namespace zelvor
