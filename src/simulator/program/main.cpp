#include <csignal>
#include <iostream>

#include <sys/prctl.h>
#include <unistd.h>

#include "simulator/SampleRadio.h"
#include "simulator/program/MemoryFile.h"
#include "simulator/program/Options.h"
#include "simulator/program/PortLink.h"
#include "simulator/program/RadioServer.h"

namespace {

volatile std::sig_atomic_t stopRequested = 0;

void RequestStop(int /*signal*/) {
    stopRequested = 1;
}

/// Holds the stop signals back except while waiting, so that none gets lost between a test and a wait.
/// Returns the mask for waiting.
sigset_t CatchStopSignals() {
    sigset_t waitMask;
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    struct sigaction action {};
    action.sa_handler = RequestStop;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaction(signal, &action, nullptr);
        sigaddset(&stopSignals, signal);
    }
    struct sigaction ignored {};
    ignored.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ignored, nullptr);
    sigprocmask(SIG_BLOCK, &stopSignals, &waitMask);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigdelset(&waitMask, signal);
    }
    return waitMask;
}

/// What stands against the options on this machine, with the complaint told; false where something does.
bool CanServe(const zelvor::Options& options) {
    if (options.save && !zelvor::CanWriteMemoryFile(*options.save)) {
        std::cerr << "zelvor-radio: cannot write " << options.save->string() << '\n';
        return false;
    }
    const zelvor::PortLink link(options.linkDirectory, options.port);
    if (const auto occupant = link.Occupant()) {
        std::cerr << "zelvor-radio: COM" << options.port << " is taken: " << link.Path().string() << " points to "
                  << occupant->string() << "; remove that link, or choose another --port\n";
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const zelvor::OptionsResult commandLine = zelvor::ReadOptions(argc, argv);
    if (!commandLine.options) {
        return commandLine.exitCode;
    }
    const zelvor::Options& options = *commandLine.options;
    zelvor::DataImage memory = zelvor::SampleRadioMemory();
    if (options.load) {
        const zelvor::DataFileRead read = zelvor::ReadMemoryFile(*options.load);
        if (read.error != zelvor::DataFileError::None) {
            std::cerr << "zelvor-radio: " << options.load->string()
                      << (read.error == zelvor::DataFileError::WrongType ? " is no data file\n" : " cannot be read\n");
            return zelvor::ExitUsage;
        }
        memory = read.image;
    }
    if (!CanServe(options)) {
        return zelvor::ExitUsage;
    }

    const sigset_t waitMask = CatchStopSignals();
    prctl(PR_SET_TIMERSLACK, 1); // the usual slack of 50 us a wait would show in the time of a whole session
    zelvor::RadioServer server(options, memory);
    return server.Open() && server.Serve(stopRequested, waitMask) ? 0 : 1;
}
