#include "RadioProcess.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

namespace zelvor::bench {

namespace {

constexpr int Patience = 3000; // milliseconds
constexpr int PollInterval = 5;
constexpr auto EndTaken = "> 45\n";

} // namespace

RadioProcess::RadioProcess() {
    process_.setStandardOutputFile(directory_.filePath("trace"));
    process_.setStandardErrorFile(directory_.filePath("errors"));
    process_.start(ZELVOR_RADIO_PROGRAM, {"--port", "1", "--trace"});
}

RadioProcess::~RadioProcess() {
    process_.terminate();
    if (!process_.waitForFinished(Patience)) {
        process_.kill();
        process_.waitForFinished(Patience);
    }
}

bool RadioProcess::IsReady() {
    return !WaitForOutput("ready: COM1").empty();
}

std::string RadioProcess::TraceOfSession() {
    return WaitForOutput(EndTaken);
}

std::string RadioProcess::WaitForOutput(const char* text) {
    QElapsedTimer waited;
    for (waited.start(); waited.elapsed() < Patience; QThread::msleep(PollInterval)) {
        QFile file(directory_.filePath("trace"));
        const QByteArray output = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (output.contains(text)) {
            return output.toStdString();
        }
    }
    return {};
}

} // namespace zelvor::bench
