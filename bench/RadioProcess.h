#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <string>

namespace zelvor::bench {

/// A running zelvor-radio on port 1 of this process's own configuration directory, with a sample radio's memory. Its
/// output goes to a file, so that reading it costs nothing during a session. Ended with the object.
class RadioProcess {
public:
    RadioProcess();
    RadioProcess(const RadioProcess&) = delete;
    RadioProcess& operator=(const RadioProcess&) = delete;
    ~RadioProcess();

    /// Waits until it serves; false where it does not.
    [[nodiscard]] bool IsReady();
    /// Waits until the radio has taken End, and returns the trace; empty where End never came.
    [[nodiscard]] std::string TraceOfSession();

private:
    [[nodiscard]] std::string WaitForOutput(const char* text);

    QTemporaryDir directory_;
    QProcess process_;
};

} // namespace zelvor::bench
