#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <string>

#include "tour/Boxes.h"
#include "tour/User.h"
#include "tour/Words.h"

namespace zelvor::tour {

class Program;
class RadioProgram;
class WindowThread;

/// What differs between two rounds of the job.
struct KeyboardRound {
    const Words& words;
    int channel;
    QString before; // the receive frequency that the radio has
    QString typed;  // the one that it gets
    QByteArray record;
    QString dataFile; // to be written
};

/// A whole job with the keyboard alone, from the program's start to its end: no function of it knows a mouse. Each step
/// prints a line, or throws a Failure.
class KeyboardJob {
public:
    KeyboardJob(WindowThread& windows, RadioProgram& radio, const KeyboardRound& round);
    ~KeyboardJob();

    void Run();

private:
    void Read();
    void EditChannel();
    void SaveAs();
    void Write();
    void Exit();

    void Transfer(Qt::Key entry, const QString& caption, const Box& completed);
    void CheckRecord(const std::string& what, const QByteArray& memory) const;
    void Done(const std::string& step) const;

    WindowThread& windows_;
    RadioProgram& radio_;
    const KeyboardRound round_;
    const Words& words_;
    User user_{windows_};
    Boxes boxes_{windows_, user_};
    std::unique_ptr<Program> program_;
};

} // namespace zelvor::tour
