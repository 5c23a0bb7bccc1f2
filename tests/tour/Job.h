#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "tour/Boxes.h"
#include "tour/Expected.h"
#include "tour/FieldEdits.h"
#include "tour/Tuning.h"
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
    const Words& otherWords;
    const std::vector<Row>& otherRows; // some of them in the other language
    const Edit& edit;
    const std::vector<FeatureWindow>& features;
    const Tuning& tuning;
    QByteArray records; // of the radio before the read
    QString memoryByte; // to be typed into the memory map
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

    void SwitchLanguage();
    void ChooseLanguage(const Words& now, const Words& wanted);

    void ShowHelp();
    void ShowHelpOf(const QString& page);
    void ExpectHelp(const QString& page);
    void CloseHelp();

    void EditFeatures();
    void EditFeature(const FeatureWindow& feature);
    void OpenChild(const QString& menuEntry, const QString& window);
    void CloseChild(const QString& window);

    void EditMemoryMap();
    void OpenMemoryMap();
    void TypeMemoryByte(const QString& digits);

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

    void ShowRadioInformation();
    void RunTestMode();
    void EnterTestMode();
    void UseTestMode();
    void LeaveTestMode();
    void ExpectWindow(const QString& window, const QString& title);
    void CheckText(const QString& control, const QString& text);
    void WaitUntilShining(const QString& lamp, int picture);

    void Tune();
    void OpenTuning(const TuneItem& item);
    void CloseTuning(const QString& button);
    void Measure();
    void TurnToPage(const TuneEdit& edit);
    void TuneValue();
    void SeeTunedValue();

    void PrintReport();
    void PrintTuningReport();
    void ChoosePdf();
    [[nodiscard]] QString PdfFile() const;
    void TakePdf(const QString& what, int pages);

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
};

} // namespace zelvor::tour
