#pragma once

#include <functional>

namespace zelvor {
class Clock;
class FileStore;
class Folder;
class SerialPorts;
} // namespace zelvor

namespace zelvor::cli {

class RadioProgress;

/// What the commands that talk to a radio ask of the machine.
struct RadioMachine {
    SerialPorts& ports;
    Clock& clock;
    FileStore& store;
    Folder& backups;
    RadioProgress& progress;
    std::function<bool()> isInterrupted = [] { return false; }; // the user wants the command to end
};

/// What they are told of the radio.
struct RadioRequest {
    int port = 1;                 // 1 to 20
    int retries = 2;              // how often each exchange begins again after the radio did not answer
    bool overwritesModel = false; // the write goes on where the radio is another model than the file
};

} // namespace zelvor::cli
