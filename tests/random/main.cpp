// Uses the program at random, session after session.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <algorithm>
#include <iostream>

#include "random/Options.h"
#include "random/ResidentMemory.h"
#include "random/Sessions.h"
#include "tour/Failure.h"
#include "tour/PrivateHome.h"

namespace {

using namespace zelvor::random;

constexpr int ExitFound = 1;
constexpr int ExitSurroundings = 3;
constexpr int LastActs = 25; // printed with a finding

struct Totals {
    int sessions = 0;
    int acts = 0;
    int findings = 0;
};

/// The display can be gone without the program's fault.
bool HasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") && QProcess::execute("xdotool", {"getdisplaygeometry"}) == 0;
}

void Tell(std::uint32_t seed, const Ending& ending) {
    const Kind kind = KindOf(seed);
    std::cout << "seed " << seed << " (" << kind.name << ", " << kind.scale * 100 << " %): " << ending.acts << " acts, "
              << ending.seconds << " s";
    if (ending.earlyMemory > 0) {
        std::cout << ", " << ending.earlyMemory << " KiB resident after " << ActsBeforeMemory << " acts, "
                  << ending.lastMemory << " at the end";
    }
    std::cout << (ending.finding.isEmpty() ? "" : ": " + ending.finding.toStdString()) << std::endl;
}

void TellFinding(std::uint32_t seed, const Ending& ending, const QString& folder) {
    const QList<QByteArray> acts = ending.log.trimmed().split('\n');
    for (const QByteArray& act : acts.mid(std::max<qsizetype>(0, acts.size() - LastActs))) {
        std::cout << "    " << act.toStdString() << '\n';
    }
    std::cout << ending.complaints.toStdString() << "    kept in " << folder.toStdString() << "; again by --seed "
              << seed << " --sessions 1" << std::endl;
}

/// False where the surroundings do not work.
bool RunOne(Sessions& sessions, std::uint32_t seed, Totals& totals) {
    if (NeedsDisplay(KindOf(seed)) && !HasDisplay()) {
        std::cerr << "zelvor-random: there is no display, or no xdotool. Run it by scripts/random." << std::endl;
        return false;
    }
    const Ending ending = sessions.Run(seed);
    ++totals.sessions;
    totals.acts += ending.acts;
    if (!ending.finding.isEmpty() && NeedsDisplay(KindOf(seed)) && !HasDisplay()) {
        std::cerr << "zelvor-random: the display has gone." << std::endl;
        return false;
    }
    Tell(seed, ending);
    if (!ending.finding.isEmpty()) {
        ++totals.findings;
        TellFinding(seed, ending, sessions.Keep(seed, ending));
    }
    return true;
}

int Run(const Options& options) {
    const zelvor::tour::PrivateHome home;
    Sessions sessions(options, home);
    QElapsedTimer time;
    time.start();
    Totals totals;
    const auto isTimeUp = [&] { return time.elapsed() >= options.seconds * 1000LL; };
    for (std::uint32_t seed = options.seed;
         !isTimeUp() && (options.sessions == 0 || totals.sessions < options.sessions); ++seed) {
        if (!RunOne(sessions, seed, totals)) {
            return ExitSurroundings;
        }
    }
    std::cout << totals.sessions << " sessions, " << totals.acts << " acts, " << time.elapsed() / 1000
              << " s: " << totals.findings << " findings" << std::endl;
    return totals.findings > 0 ? ExitFound : 0;
}

} // namespace

int main(int argc, char** argv) {
    const OptionsResult commandLine = ReadOptions(argc, argv);
    if (!commandLine.options) {
        return commandLine.exitCode;
    }
    const QCoreApplication application(argc, argv);
    try {
        return Run(*commandLine.options);
    } catch (const zelvor::tour::Failure& failure) {
        std::cerr << "zelvor-random: " << failure.what() << std::endl;
        return ExitSurroundings;
    }
}
