// The grid and the files.

#include <QFileInfo>

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/Program.h"
#include "tour/RadioProgram.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

constexpr int FirstRecord = 0x010; // address
constexpr int RecordsSize = 256;

constexpr int FirstChannel = 1;
constexpr int PowerColumn = 5;

} // namespace

void Job::EditChannel() {
    const Edit& edit = round_.edit;
    user_.ClickCell("ChannelGrid", edit.channel, 1);
    windows_.WaitUntil("the editor of the cell", [] { return WidgetOnTop("txtInputBox") != nullptr; });
    user_.Type(edit.receive);
    screenshots_.Take("frequency-editor");
    // Enter leads from cell to cell; the first character opens the next cell's editor.
    user_.Press(Qt::Key_Return);
    user_.Type(edit.transmit);
    user_.Press(Qt::Key_Return);
    user_.Type(edit.decode);
    screenshots_.Take("tone-editor");
    user_.Press(Qt::Key_Return);
    user_.Type(edit.encode);
    user_.Press(Qt::Key_Return);
    // The power, from low to high.
    user_.Press(Qt::Key_Return);
    user_.Press(Qt::Key_Up);
    screenshots_.Take("power-list");
    user_.Press(Qt::Key_Return);
    windows_.WaitUntil("the editor to close", [] { return WidgetOnTop("comInputStep") == nullptr; });

    CheckRow(edit.row);
    CheckEqual("caption of the grid", program_->GridCaption(), words_.gridCaption.arg(edit.channel));
    const QByteArray record = program_->Image().mid(edit.channel * edit.record.size(), edit.record.size());
    CheckBytes("the edited record", record, edit.record);
    screenshots_.Take("edited-channel");
    Done("channel " + std::to_string(edit.channel) + ": frequencies, tones and power are edited");
}

void Job::LowerPower() {
    user_.ClickCell("ChannelGrid", FirstChannel, PowerColumn);
    windows_.WaitUntil("the editor of the cell", [] { return WidgetOnTop("comInputStep") != nullptr; });
    user_.Press(Qt::Key_Down);
    user_.Press(Qt::Key_Return);
    windows_.WaitUntil("the editor to close", [] { return WidgetOnTop("comInputStep") == nullptr; });
    CheckBytes("the first record", program_->Image().mid(FirstRecord, 16),
               Hex("00 25 51 14  00 25 51 14  FF FF FF FF  00 9F B0 F8"));
    Done("channel 1: low power");
}

void Job::SaveAs() {
    user_.ChooseByKeys(Qt::Key_F, Qt::Key_A);
    boxes_.ExpectFileDialog(QFileDialog::AcceptSave, "Zelvor.dat", words_.fileFilter);
    screenshots_.Take("save-as");
    boxes_.EnterPath(round_.dataFile);
    CheckTitle(QFileInfo(round_.dataFile).fileName());
    const QByteArray file = MemoryOfDataFile(round_.dataFile);
    CheckBytes("the saved file against the document", file, program_->Image());
    CheckBytes("channels of the saved file", file.mid(FirstRecord, RecordsSize), Edited(round_.records), FirstRecord);
    Done("File > Save As: 1040 bytes");
}

void Job::New() {
    user_.ChooseByKeys(Qt::Key_F, Qt::Key_N);
    boxes_.Expect(words_.cleared);
    screenshots_.Take("new-question");
    boxes_.Answer(QMessageBox::Ok);
    CheckTitle("Zelvor.dat");
    CheckEqual("cell 1, 1 after New", program_->Cell(1, 1), "");
    CheckEqual("free area after New", program_->LabelText("LabBlankChannel"), "256");
    CheckBytes("channels after New", program_->Image().mid(FirstRecord, RecordsSize), QByteArray(RecordsSize, '\xFF'),
               FirstRecord);
    Done("File > New: all channels are blank");
}

void Job::Open() {
    user_.ChooseByKeys(Qt::Key_F, Qt::Key_O);
    boxes_.ExpectFileDialog(QFileDialog::AcceptOpen, "", words_.fileFilter);
    screenshots_.Take("open");
    boxes_.EnterPath(round_.dataFile);
    CheckTitle(QFileInfo(round_.dataFile).fileName());
    CheckBytes("the opened document", program_->Image(), MemoryOfDataFile(round_.dataFile));
    CheckRow(round_.edit.row);
    CheckEqual("free area after Open", program_->LabelText("LabBlankChannel"), "0");
    Done("File > Open: the file is back byte for byte");
}

void Job::CheckTitle(const QString& fileName) {
    CheckEqual("title of the main window", program_->Title(), words_.titleHead + fileName + "]");
}

void Job::CheckRow(const Row& row) {
    int column = 0;
    for (const QString& cell : row.cells) {
        ++column;
        CheckEqual("cell " + std::to_string(row.channel) + ", " + std::to_string(column),
                   program_->Cell(row.channel, column), cell);
    }
}

} // namespace zelvor::tour
