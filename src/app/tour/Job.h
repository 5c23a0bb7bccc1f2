#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "tour/Boxes.h"
#include "tour/Expected.h"
#include "tour/User.h"
#include "tour/Words.h"

namespace zelvor::tour {

class Program;
class RadioProgram;
class Screenshots;
class WindowThread;

/// What differs between two rounds of the job.
struct Round {
    const Words& words;
    const std::vector<Row>& rows; // of the grid after the read
    const Edit& edit;
    QByteArray records; // of the radio before the read
    QString dataFile;   // to be written and opened
    QString exitFile;   // to save in at the exit; empty answers the save question with No
};

/// The whole job of a user, step by step, from the program's start to its end. Each step prints a line, or throws a
/// Failure.
class Job {
public:
    Job(WindowThread& windows, RadioProgram& radio, Screenshots& screenshots, const Round& round);
    ~Job();

    void Run();

private:
    void Start();
    void Exit();
    void CheckSettings();

    void ShowMenu();
    void ShowAbout();
    void ShowModel();
    void ShowPorts();
    void ShowNavigator();
    void ShowEditors();

    void EditChannel();
    void LowerPower();
    void SaveAs();
    void New();
    void Open();
    void CheckTitle(const QString& fileName);
    void CheckRow(const Row& row);

    void Read();
    void CheckGrid();
    void Write();
    void CheckRadio();
    void RunTransfer(const QString& caption, int maximum, const Box& completed, const QString& picture);
    int WaitForProgressAbove(int value);

    /// The records with the round's edit in them.
    [[nodiscard]] QByteArray Edited(QByteArray records) const;
    void Done(const std::string& step) const;

    WindowThread& windows_;
    RadioProgram& radio_;
    Screenshots& screenshots_;
    const Round round_;
    const Words& words_;
    User user_{windows_};
    Boxes boxes_{windows_, user_};
    std::unique_ptr<Program> program_;
    QByteArray readMemory_; // the radio's, as read
};

} // namespace zelvor::tour
