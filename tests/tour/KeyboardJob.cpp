#include "tour/KeyboardJob.h"

#include <QApplication>
#include <QFileInfo>
#include <iostream>

#include "tour/Checks.h"
#include "tour/Program.h"
#include "tour/RadioProgram.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

constexpr int FirstRecord = 0x010; // address
constexpr int RecordSize = 16;
constexpr int ReceiveColumn = 1;

// For questions to the window thread.

bool HasKeys(const char* control) {
    const QWidget* focus = QApplication::focusWidget();
    return focus && focus->objectName() == control;
}

} // namespace

KeyboardJob::KeyboardJob(WindowThread& windows, RadioProgram& radio, const KeyboardRound& round)
    : windows_(windows), radio_(radio), round_(round), words_(round.words) {}

KeyboardJob::~KeyboardJob() = default;

void KeyboardJob::Run() {
    program_ = std::make_unique<Program>(windows_);
    Read();
    EditChannel();
    SaveAs();
    Write();
    Exit();
}

void KeyboardJob::Read() {
    Transfer(Qt::Key_R, words_.readCaption, words_.readCompleted);
    CheckEqual("the frequency read", program_->Cell(round_.channel, ReceiveColumn), round_.before);
    Done("Program > Read from Radio");
}

void KeyboardJob::EditChannel() {
    user_.Activate();
    windows_.WaitUntil("the keys to be the grid's", [] { return HasKeys("ChannelGrid"); });
    for (int row = 1; row < round_.channel; ++row) {
        user_.Press(Qt::Key_Down);
    }
    user_.Type(round_.typed);
    windows_.WaitUntil("the keys to be the cell's editor's", [] { return HasKeys("txtInputBox"); });
    user_.Press(Qt::Key_Return);
    windows_.WaitUntil("the keys to be the grid's again", [] { return HasKeys("ChannelGrid"); });
    CheckEqual("the frequency edited", program_->Cell(round_.channel, ReceiveColumn), round_.typed);
    CheckRecord("the edited record", program_->Image());
    Done("channel " + std::to_string(round_.channel) + ": the frequency is edited");
}

void KeyboardJob::SaveAs() {
    user_.ChooseByKeys(Qt::Key_F, Qt::Key_A);
    boxes_.ExpectFileDialog(QFileDialog::AcceptSave, "Zelvor.dat", words_.fileFilter);
    boxes_.TypePath(round_.dataFile);
    CheckEqual("title of the main window", program_->Title(),
               words_.titleHead + QFileInfo(round_.dataFile).fileName() + "]");
    CheckRecord("the record of the file", MemoryOfDataFile(round_.dataFile));
    Done("File > Save As");
}

void KeyboardJob::Write() {
    radio_.ForgetMemory();
    Transfer(Qt::Key_W, words_.writeCaption, words_.writeCompleted);
    CheckRecord("the record of the radio", radio_.Memory());
    Done("Program > Write to Radio");
}

void KeyboardJob::Exit() {
    user_.ChooseByKeys(Qt::Key_F, Qt::Key_X);
    boxes_.Expect(words_.exit);
    boxes_.Confirm();
    windows_.WaitUntil("the end of the program", [this] { return program_->HasEndedHere(); });
    program_->TakeDown();
    program_.reset();
    Done("File > Exit: nothing is left to save");
}

void KeyboardJob::Transfer(Qt::Key entry, const QString& caption, const Box& completed) {
    user_.ChooseByKeys(Qt::Key_P, entry);
    boxes_.ExpectDialog("ConnectForm", caption);
    user_.Press(Qt::Key_Return);
    boxes_.Expect(completed);
    boxes_.Confirm();
    boxes_.WaitUntilGone("ConnectForm");
}

void KeyboardJob::CheckRecord(const std::string& what, const QByteArray& memory) const {
    const int address = FirstRecord + (round_.channel - 1) * RecordSize;
    CheckBytes(what, memory.mid(address, RecordSize), round_.record, address);
}

void KeyboardJob::Done(const std::string& step) const {
    std::cout << "ok  [" << words_.language.toStdString() << ", by the keys alone] " << step << std::endl;
}

} // namespace zelvor::tour
