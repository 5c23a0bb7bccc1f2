#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <string>

#include "random/Draws.h"
#include "tour/RadioProgram.h"

namespace zelvor::random {

/// A zelvor-radio process that is plugged in and pulled out. Each time it spoils other replies. All 20 port numbers of
/// this process's configuration directory are links of its, so that no real device gets one. For the thread that made
/// it.
class PluggedRadio {
public:
    /// home holds its memory and the links.
    PluggedRadio(QString program, QString home, Draws draws);

    /// Pulls it out or plugs it in, with other faults. Returns what it did, for the log.
    std::string Turn();

    /// Null while it is pulled out. Plugged in, it has the sample radio's memory.
    [[nodiscard]] tour::RadioProgram* Radio() { return radio_.get(); }

private:
    std::string PlugIn();
    [[nodiscard]] QString SomeFault();

    const QString program_;
    const QString home_;
    Draws draws_;
    std::unique_ptr<tour::RadioProgram> radio_;
};

} // namespace zelvor::random
