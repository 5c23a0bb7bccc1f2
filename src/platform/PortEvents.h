#pragma once

class QSerialPort;

namespace zelvor {

// What becomes of an open port while no event loop runs. Each may close the port, by its signals, where the device is
// gone.

/// Has the port take in what has come, with readyRead for that.
void TakeInArrivals(QSerialPort& port);

/// Lets the port know of what it has sent by now, so that it goes on with what is left.
void NoteWhatIsSent(QSerialPort& port);

/// Drops what the driver has not sent yet.
void DropUnsent(QSerialPort& port);

} // namespace zelvor
