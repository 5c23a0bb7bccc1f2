#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <chrono>

namespace zelvor::tour {

/// A running zelvor-radio as port 1 of this process's configuration directory, which keeps its memory in a file. Ended
/// with the object. To be used by the thread that made it.
class RadioProgram {
public:
    /// Waits until the radio is ready; throws a Failure where it does not get so.
    RadioProgram(const QString& program, const QString& memoryFile, const QStringList& arguments = {});
    RadioProgram(const RadioProgram&) = delete;
    RadioProgram& operator=(const RadioProgram&) = delete;
    ~RadioProgram();

    /// Removes the memory file, so that the next session's can be told from an earlier one's.
    void ForgetMemory();
    /// The 1024 bytes that the radio has written out since, at the end of a session.
    [[nodiscard]] QByteArray Memory();

    /// Whether the radio has printed the text, on either channel, or does so within a moment.
    [[nodiscard]] bool PrintsSoon(const QByteArray& text);
    /// Waits until the radio has printed the text, on either channel.
    void WaitForText(const QByteArray& text);

    /// What was printed until now does not count for WaitForText any more.
    void ForgetLines();

    /// The last lines that the radio has printed, for the report of a failure.
    [[nodiscard]] QByteArray LastLines();

private:
    [[nodiscard]] bool HasPrinted(const QByteArray& text, std::chrono::milliseconds patience);

    QProcess process_;
    QString memoryFile_;
    QByteArray printed_;
};

/// The memory in a data file of 1040 bytes, whose head is checked; throws a Failure where the file is no such file.
[[nodiscard]] QByteArray MemoryOfDataFile(const QString& path);

} // namespace zelvor::tour
