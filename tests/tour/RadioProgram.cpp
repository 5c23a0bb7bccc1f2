#include "tour/RadioProgram.h"

#include <QFile>
#include <QThread>
#include <algorithm>

#include "simulator/program/EndWithParent.h"
#include "tour/Checks.h"
#include "tour/Failure.h"

namespace zelvor::tour {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds Patience(10);
constexpr int EndMilliseconds = 3000;
constexpr int PollMilliseconds = 10;

constexpr int HeadSize = 16;
constexpr int FileSize = 1040;

} // namespace

RadioProgram::RadioProgram(const QString& program, const QString& memoryFile, const QStringList& arguments)
    : memoryFile_(memoryFile) {
    process_.setProcessChannelMode(QProcess::MergedChannels);
    // The radio does not outlive this process, however that ends.
    process_.setChildProcessModifier([] { EndWithParent(); });
    process_.start(program, QStringList{"--port", "1", "--save", memoryFile} + arguments);
    if (!HasPrinted("ready: COM1", Patience)) {
        throw Failure(program.toStdString() + " does not get ready. " + process_.errorString().toStdString() + "\n" +
                      printed_.toStdString());
    }
}

RadioProgram::~RadioProgram() {
    if (process_.state() == QProcess::NotRunning) {
        return;
    }
    process_.terminate();
    if (!process_.waitForFinished(EndMilliseconds)) {
        process_.kill();
        process_.waitForFinished(EndMilliseconds);
    }
}

void RadioProgram::ForgetMemory() {
    QFile::remove(memoryFile_);
}

QByteArray RadioProgram::Memory() {
    const Clock::time_point end = Clock::now() + Patience;
    while (!QFile::exists(memoryFile_)) {
        if (Clock::now() > end) {
            throw Failure("the radio wrote no memory file: it has not seen the session's end\n" +
                          printed_.toStdString());
        }
        QThread::msleep(PollMilliseconds);
    }
    return MemoryOfDataFile(memoryFile_);
}

bool RadioProgram::PrintsSoon(const QByteArray& text) {
    constexpr std::chrono::seconds moment(1);
    return HasPrinted(text, moment);
}

void RadioProgram::WaitForText(const QByteArray& text) {
    if (!HasPrinted(text, Patience)) {
        throw Failure("the radio did not print \"" + text.toStdString() + "\" but\n" + printed_.toStdString());
    }
}

void RadioProgram::ForgetLines() {
    process_.waitForReadyRead(0);
    process_.readAll();
    printed_.clear();
}

QByteArray RadioProgram::LastLines() {
    constexpr int count = 12;
    process_.waitForReadyRead(0);
    printed_ += process_.readAll();
    return printed_.trimmed()
        .split('\n')
        .mid(std::max<qsizetype>(0, printed_.trimmed().count('\n') + 1 - count))
        .join('\n');
}

bool RadioProgram::HasPrinted(const QByteArray& text, std::chrono::milliseconds patience) {
    const Clock::time_point end = Clock::now() + patience;
    for (;;) {
        printed_ += process_.readAll();
        if (printed_.contains(text)) {
            return true;
        }
        if (Clock::now() > end || process_.state() == QProcess::NotRunning) {
            return false;
        }
        process_.waitForReadyRead(100);
    }
}

QByteArray MemoryOfDataFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure("cannot read " + path.toStdString());
    }
    const QByteArray bytes = file.readAll();
    CheckEqual("size of " + path.toStdString(), QString::number(bytes.size()), QString::number(FileSize));
    CheckBytes("head of " + path.toStdString(), bytes.left(HeadSize),
               Hex("52 51 36 31 35 32 FF FF FF FF FF FF FF FF FF FF"));
    return bytes.mid(HeadSize);
}

} // namespace zelvor::tour
