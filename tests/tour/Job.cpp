#include "tour/Job.h"

#include <QFileInfo>
#include <QSettings>
#include <iostream>

#include "tour/Checks.h"
#include "tour/PrivateHome.h"
#include "tour/Program.h"
#include "tour/RadioProgram.h"
#include "tour/Screenshots.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

Job::Job(WindowThread& windows, RadioProgram& radio, Screenshots& screenshots, const Round& round)
    : windows_(windows), radio_(radio), screenshots_(screenshots), round_(round), words_(round.words) {
    screenshots_.SetLanguage(words_.language);
}

Job::~Job() = default;

void Job::Run() {
    Start();
    ShowMenu();
    ShowAbout();
    ShowModel();
    ShowPorts();
    Read();
    CheckGrid();
    ShowNavigator();
    SwitchLanguage();
    ShowHelp();
    EditChannel();
    EditFeatures();
    EditMemoryMap();
    SaveAs();
    ShowEditors(); // closing the channel edit dialog commits it: the document is dropped by what follows
    New();
    Open();
    PrintReport();
    Write();
    CheckRadio();
    ShowRadioInformation();
    RunTestMode();
    Exit();
    CheckSettings();
}

void Job::Start() {
    program_ = std::make_unique<Program>(windows_);
    CheckTitle("Zelvor.dat");
    CheckEqual("cell 1, 1 of a new document", program_->Cell(1, 1), "");
    CheckEqual("free area of a new document", program_->LabelText("LabBlankChannel"), "256");
    screenshots_.Take("main-window");
    Done("start: a new document of model 4618");
}

void Job::Exit() {
    // A first write changes the document by itself. A second one finds nothing left to change.
    if (!round_.exitFile.isEmpty()) {
        LowerPower();
    }
    const QByteArray image = program_->Image();
    user_.ChooseByKeys(Qt::Key_F, Qt::Key_X);
    boxes_.Expect(words_.exit);
    screenshots_.Take("exit-question");
    boxes_.Answer(QMessageBox::Yes);
    boxes_.Expect(words_.changed);
    screenshots_.Take("save-question");
    if (round_.exitFile.isEmpty()) {
        boxes_.Answer(QMessageBox::No);
    } else {
        boxes_.Answer(QMessageBox::Yes);
        boxes_.ExpectFileDialog(QFileDialog::AcceptSave, QFileInfo(round_.dataFile).fileName(), words_.fileFilter);
        boxes_.EnterPath(round_.exitFile);
    }
    windows_.WaitUntil("the end of the program", [this] { return program_->HasEndedHere(); });
    if (!round_.exitFile.isEmpty()) {
        CheckBytes("the file saved at the exit", MemoryOfDataFile(round_.exitFile), image);
    }
    program_->TakeDown();
    program_.reset();
    Done(round_.exitFile.isEmpty() ? "File > Exit: left without saving" : "File > Exit: saved and left");
}

void Job::CheckSettings() {
    const QSettings settings(SettingsFile(), QSettings::IniFormat);
    CheckEqual("LastModel in the settings", settings.value("BackUp/LastModel").toString(), "50:34:36:31:38:01:F8:FF");
    CheckEqual("Language in the settings", settings.value("BackUp/Language").toString(), words_.settings);
    Done("settings: model and language are remembered");
}

QByteArray Job::Edited(QByteArray records) const {
    return records.replace((round_.edit.channel - 1) * round_.edit.record.size(), round_.edit.record.size(),
                           round_.edit.record);
}

void Job::Done(const std::string& step) const {
    std::cout << "ok  [" << words_.language.toStdString() << "] " << step << std::endl;
}

} // namespace zelvor::tour
