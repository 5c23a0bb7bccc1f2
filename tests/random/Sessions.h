#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <cstdint>

#include "random/Options.h"
#include "tour/PrivateHome.h"

class QProcess;

namespace zelvor::random {

/// Which platform, hands, language and scale; a seed has always the same.
struct Kind {
    const char* platform = "";
    const char* hands = "";
    const char* language = ""; // as the settings have it
    const char* name = "";
    int scale = 1; // dots of the screen to a pixel of the program
};
[[nodiscard]] Kind KindOf(std::uint32_t seed);
[[nodiscard]] bool NeedsDisplay(const Kind& kind);

/// How a session ended.
struct Ending {
    QString finding; // empty where all was well
    QByteArray log;  // the acts
    QByteArray complaints;
    int acts = 0;
    double seconds = 0;
    int earlyMemory = 0; // resident, in KiB, after ActsBeforeMemory; 0 where it had fewer acts
    int lastMemory = 0;  // at the end of the acts
};

/// Starts sessions, each a process of its own, one after the other in one home directory.
class Sessions {
public:
    Sessions(const Options& options, const tour::PrivateHome& home);

    /// Runs a session to its end. Throws a tour::Failure where it could not be started.
    [[nodiscard]] Ending Run(std::uint32_t seed);
    /// Keeps what tells of a finding, and returns the folder.
    [[nodiscard]] QString Keep(std::uint32_t seed, const Ending& ending) const;

private:
    void PrepareHome(const Kind& kind) const;
    void Start(QProcess& session, std::uint32_t seed) const;
    void Follow(QProcess& session, Ending& ending) const;

    const Options& options_;
    const tour::PrivateHome& home_;
    QDir keep_;
};

} // namespace zelvor::random
