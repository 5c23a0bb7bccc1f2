#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <chrono>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "system/Faults.h"
#include "tour/Boxes.h"
#include "tour/Program.h"
#include "tour/RadioProgram.h"
#include "tour/User.h"
#include "tour/WindowThread.h"

namespace zelvor::test {

/// The program with the services of the machine in this process, and zelvor-radio in one of its own. What a test does
/// is a script beside the window thread; a Failure in it is the test's.
///
/// On a busy machine an answer may come too late, and with it the prompt without a fault. The user of these scripts
/// then presses Retry; where the radio's replies are counted until a fault, both begin anew.
class SystemTest : public ::testing::Test {
protected:
    SystemTest();
    ~SystemTest() override;

    void Script(const std::function<void()>& script);

    // For scripts.

    /// Starts the radio, with faults such as "drop@1", and then the program.
    void Start(const QStringList& faults, const QStringList& radioArguments = {});
    /// Starts both and begins a transfer, which meets the fault: its prompt is up when this returns.
    void ReadUntil(const QString& fault, const QStringList& radioArguments = {});
    void WriteUntil(const QString& fault, const QStringList& radioArguments = {});
    /// Presses Retry at every prompt until the one that comes of the fault.
    void RetryUntil(const QString& fault);
    /// Opens the dialog of a transfer and presses OK.
    void BeginRead();
    void BeginWrite();
    void ExpectPrompt();
    /// Waits for the next box: whether it is the prompt, and not the end of the transfer.
    [[nodiscard]] bool IsPrompted();
    void Retry();
    /// Answers the prompt by Cancel, which closes the dialog of the transfer too.
    void CancelTransfer();
    /// Waits for what a radio still sends: nothing tells it from an answer to the next transfer, and no user is as
    /// quick as a script.
    void LetLateReplyCome(const std::string& fault);
    void ExpectReadCompleted();
    void ExpectWriteCompleted();
    /// The document is the radio's memory, and that the sample radio's.
    void ExpectSampleRead();
    /// The radio holds a blank document's channels, and its own bytes where a write does not reach.
    void ExpectBlankWritten();
    [[nodiscard]] tour::RadioProgram& Radio() { return *radio_; }
    [[nodiscard]] tour::Program& Zelvor() { return *program_; }
    [[nodiscard]] tour::WindowThread& Windows() { return windows_; }
    [[nodiscard]] tour::User& User() { return user_; }
    [[nodiscard]] tour::Boxes& Boxes() { return boxes_; }

    QTemporaryDir directory;

private:
    void MeetFault(const QString& fault, const QStringList& radioArguments, void (SystemTest::*begin)());
    [[nodiscard]] bool HasFired(const QString& fault);
    void Begin(Qt::Key entry, const QString& caption);
    void ExpectCompleted(const tour::Box& box);

    tour::WindowThread windows_{std::chrono::seconds(110)};
    tour::User user_{windows_};
    tour::Boxes boxes_{windows_, user_};
    std::unique_ptr<tour::RadioProgram> radio_;
    std::unique_ptr<tour::Program> program_;
};

/// Starts each test of a suite with another fault, "cut:5@18"; the test's name then ends in "cut_5_at_18".
[[nodiscard]] std::string FaultName(const ::testing::TestParamInfo<std::string>& fault);

} // namespace zelvor::test
