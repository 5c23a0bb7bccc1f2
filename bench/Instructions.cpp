#include "Instructions.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace zelvor::bench {

namespace {

constexpr auto Counter = "valgrind";
constexpr int Patience = 300'000; // milliseconds; it runs a program fifty times slower

} // namespace

bool CountsInstructions() {
    return !QStandardPaths::findExecutable(Counter).isEmpty();
}

std::optional<double> InstructionsOf(const QString& program, const QStringList& arguments, const QStringList& variables,
                                     int status) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : variables) {
        environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
    }
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(Counter, QStringList{"--tool=callgrind", "--callgrind-out-file=/dev/null", program} + arguments);
    if (!process.waitForFinished(Patience) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != status) {
        return std::nullopt;
    }
    const QRegularExpression collected("Collected : ([0-9]+)");
    const QRegularExpressionMatch match = collected.match(QString::fromLocal8Bit(process.readAllStandardError()));
    return match.hasMatch() ? std::optional(match.captured(1).toDouble()) : std::nullopt;
}

} // namespace zelvor::bench
