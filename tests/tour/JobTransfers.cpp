// Read from Radio and Write to Radio.

#include <QMessageBox>

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/Program.h"
#include "tour/RadioProgram.h"
#include "tour/Screenshots.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

constexpr int ReadSteps = 16;
constexpr int WriteSteps = 49;

/// Regions of the radio's memory: first address and the address behind the last.
struct Region {
    int begin;
    int end;
};
constexpr Region Head{0x000, 0x010};
constexpr Region Channels{0x010, 0x110};
constexpr Region Settings{0x110, 0x180};
constexpr Region TuningValues{0x180, 0x1B8};
constexpr Region Identity{0x1B8, 0x1C0};
constexpr Region MoreSettings{0x1C0, 0x340};
constexpr Region Unwritten{0x340, 0x400};

QByteArray Part(const QByteArray& memory, const Region& region) {
    return memory.mid(region.begin, region.end - region.begin);
}

void CheckRegion(const std::string& what, const QByteArray& memory, const Region& region, const QByteArray& mustBe) {
    CheckBytes(what, Part(memory, region), mustBe, region.begin);
}

} // namespace

void Job::Read() {
    radio_.ForgetMemory();
    user_.ChooseByKeys(Qt::Key_P, Qt::Key_R);
    RunTransfer(words_.readCaption, ReadSteps, words_.readCompleted, "read");
    CheckTitle("Zelvor.dat");
    const QByteArray memory = radio_.Memory();
    CheckBytes("the document against the radio's memory", program_->Image(), memory);
    CheckRegion("channels read", memory, Channels, round_.records);
    CheckRegion("tuning values read", memory, TuningValues, round_.tuning.region);
    CheckRegion("identity read", memory, Identity, Hex("50 34 36 31 38 01 F8 FF"));
    Done("Program > Read from Radio: all 1024 bytes");
}

void Job::CheckGrid() {
    for (const Row& row : round_.rows) {
        CheckRow(row);
    }
    for (int channel = 1; channel <= 16; ++channel) {
        Check("channel " + std::to_string(channel) + " is there", !program_->Cell(channel, 1).isEmpty());
    }
    CheckEqual("free area after a read", program_->LabelText("LabBlankChannel"), "0");
    screenshots_.Take("grid");
    Done("the grid shows 16 channels");
}

void Job::Write() {
    radio_.ForgetMemory();
    user_.ChooseByKeys(Qt::Key_P, Qt::Key_W);
    RunTransfer(words_.writeCaption, WriteSteps, words_.writeCompleted, "write");
    Done("Program > Write to Radio: 49 packets");
}

void Job::CheckRadio() {
    const QByteArray memory = radio_.Memory();
    const QByteArray saved = MemoryOfDataFile(round_.dataFile);
    CheckRegion("head after the write", memory, Head, WrittenHead());
    CheckRegion("channels after the write", memory, Channels, Edited(WrittenRecords(round_.records)));
    CheckRegion("settings after the write", memory, Settings, Part(saved, Settings));
    CheckRegion("tuning after the write", memory, TuningValues, round_.tuning.region);
    CheckRegion("identity after the write", memory, Identity, Hex("50 34 36 31 38 01 F8 FF"));
    CheckRegion("more settings after the write", memory, MoreSettings, Part(saved, MoreSettings));
    CheckRegion("the last 192 bytes after the write", memory, Unwritten, UnwrittenEnd());
    Done("the radio holds the edited channels and settings; tuning and the last 192 bytes are untouched");
}

void Job::RunTransfer(const QString& caption, int maximum, const Box& completed, const QString& picture) {
    boxes_.ExpectDialog("ConnectForm", caption);
    CheckEqual("progress before the transfer", QString::number(program_->Progress()), "0");
    screenshots_.Take(picture);
    user_.Click("cmdOK");
    const int early = WaitForProgressAbove(0);
    const int later = WaitForProgressAbove(early + maximum / 4);
    Check("progress stays within " + std::to_string(maximum), later <= maximum);
    screenshots_.TakeAtOnce(picture + "-running");
    boxes_.Expect(completed);
    screenshots_.Take(picture + "-completed");
    boxes_.Answer(QMessageBox::Ok);
    boxes_.WaitUntilGone("ConnectForm");
}

int Job::WaitForProgressAbove(int value) {
    windows_.WaitUntil("the progress to move on from " + std::to_string(value),
                       [=] { return Program::ProgressHere() > value; });
    return program_->Progress();
}

} // namespace zelvor::tour
