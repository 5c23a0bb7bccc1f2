#include "SystemTest.h"

#include <QApplication>
#include <thread>

#include "tour/Checks.h"
#include "tour/Expected.h"
#include "tour/Failure.h"
#include "tour/Words.h"

namespace zelvor::test {

using tour::CheckBytes;
using tour::English;
using tour::Hex;

SystemTest::SystemTest() {
    // Each test process has a configuration directory of its own, and so a COM1 of its own.
    QApplication::setQuitOnLastWindowClosed(false);
}

SystemTest::~SystemTest() {
    if (program_) {
        program_->TakeDown();
        QCoreApplication::sendPostedEvents();
    }
}

void SystemTest::Script(const std::function<void()>& script) {
    std::thread thread([&] {
        try {
            script();
        } catch (const tour::Failure& failure) {
            ADD_FAILURE() << failure.what();
        }
        radio_.reset(); // by the thread that made it
        // Also ends the event loops of dialogs that a failed script has left open.
        tour::WindowThread::Post([] { QCoreApplication::exit(); });
    });
    QCoreApplication::exec();
    thread.join();
}

void SystemTest::Start(const QStringList& faults, const QStringList& radioArguments) {
    QStringList arguments = radioArguments;
    for (const QString& fault : faults) {
        arguments << "--fault" << fault;
    }
    radio_.reset(); // an earlier one has the port
    radio_ = std::make_unique<tour::RadioProgram>(ZELVOR_RADIO_PROGRAM, directory.filePath("radio.dat"), arguments);
    if (!program_) {
        program_ = std::make_unique<tour::Program>(windows_);
    }
}

void SystemTest::ReadUntil(const QString& fault, const QStringList& radioArguments) {
    MeetFault(fault, radioArguments, &SystemTest::BeginRead);
}

void SystemTest::WriteUntil(const QString& fault, const QStringList& radioArguments) {
    MeetFault(fault, radioArguments, &SystemTest::BeginWrite);
}

void SystemTest::MeetFault(const QString& fault, const QStringList& radioArguments, void (SystemTest::*begin)()) {
    for (;;) { // ends at the latest when the script's time is up
        Start({fault}, radioArguments);
        (this->*begin)();
        ExpectPrompt();
        if (HasFired(fault)) {
            return;
        }
        CancelTransfer();
    }
}

void SystemTest::RetryUntil(const QString& fault) {
    ExpectPrompt();
    while (!HasFired(fault)) {
        Retry();
        ExpectPrompt();
    }
}

bool SystemTest::HasFired(const QString& fault) {
    return radio_->PrintsSoon("fault " + fault.toUtf8() + " fired");
}

void SystemTest::BeginRead() {
    Begin(Qt::Key_R, "Read data from radio");
}

void SystemTest::BeginWrite() {
    Begin(Qt::Key_W, "Write data to radio");
}

void SystemTest::Begin(Qt::Key entry, const QString& caption) {
    radio_->ForgetMemory();
    user_.ChooseByKeys(Qt::Key_P, entry);
    boxes_.ExpectDialog("ConnectForm", caption);
    user_.Click("cmdOK");
}

bool SystemTest::IsPrompted() {
    return boxes_.TextOfNext() == English().noConnection.text;
}

void SystemTest::ExpectPrompt() {
    static_cast<void>(IsPrompted()); // has the patience
    boxes_.Expect(English().noConnection);
}

void SystemTest::Retry() {
    radio_->ForgetMemory();
    boxes_.Answer(QMessageBox::Retry);
}

void SystemTest::CancelTransfer() {
    boxes_.Answer(QMessageBox::Cancel);
    boxes_.WaitUntilGone("ConnectForm");
}

void SystemTest::LetLateReplyCome(const std::string& fault) {
    if (fault.starts_with("unplug")) {
        radio_->WaitForText("plugged in again");
    } else if (fault.starts_with("delay")) {
        std::this_thread::sleep_for(std::chrono::milliseconds(600));
    }
}

void SystemTest::ExpectReadCompleted() {
    ExpectCompleted(English().readCompleted);
}

void SystemTest::ExpectWriteCompleted() {
    ExpectCompleted(English().writeCompleted);
}

void SystemTest::ExpectCompleted(const tour::Box& box) {
    while (IsPrompted()) {
        Retry();
    }
    boxes_.Expect(box);
    boxes_.Answer(QMessageBox::Ok);
    boxes_.WaitUntilGone("ConnectForm");
}

void SystemTest::ExpectSampleRead() {
    const QByteArray memory = radio_->Memory();
    CheckBytes("the document against the radio's memory", program_->Image(), memory);
    CheckBytes("channels", memory.mid(0x010, 256), tour::SampleRecords(), 0x010);
    CheckBytes("tuning", memory.mid(0x180, 56), tour::TuningRegion(), 0x180);
    for (const tour::Row& row : tour::SampleRows()) {
        tour::CheckEqual("the grid's first column", program_->Cell(row.channel, 1), row.cells.at(0));
    }
}

void SystemTest::ExpectBlankWritten() {
    const QByteArray memory = radio_->Memory();
    CheckBytes("head", memory.left(16), Hex("FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF"));
    for (int channel = 1; channel <= 16; ++channel) {
        CheckBytes("record " + std::to_string(channel), memory.mid(channel * 16, 16),
                   Hex("FF FF FF FF FF FF FF FF FF FF FF FF 00 FF FF FF"), channel * 16);
    }
    CheckBytes("settings against the document", memory.mid(0x110, 0x70), program_->Image().mid(0x110, 0x70), 0x110);
    CheckBytes("tuning", memory.mid(0x180, 56), tour::TuningRegion(), 0x180);
    CheckBytes("the rest against the document", memory.mid(0x1B8, 0x188), program_->Image().mid(0x1B8, 0x188), 0x1B8);
    CheckBytes("the last 192 bytes", memory.mid(0x340), tour::UnwrittenEnd(), 0x340);
}

std::string FaultName(const ::testing::TestParamInfo<std::string>& fault) {
    return QString::fromStdString(fault.param).replace("@", "_at_").replace(":", "_").toStdString();
}

} // namespace zelvor::test
