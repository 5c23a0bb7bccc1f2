#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <chrono>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "tour/Boxes.h"
#include "tour/Program.h"
#include "tour/RadioProgram.h"
#include "tour/User.h"
#include "tour/WindowThread.h"

namespace zelvor::test {

/// The program with the services of the machine in this process, and zelvor-radio in one of its own. What a test does
/// is a script beside the window thread; a Failure in it is the test's.
class SystemTest : public ::testing::Test {
protected:
    SystemTest();
    ~SystemTest() override;

    void Script(const std::function<void()>& script);

    // For scripts.

    /// Starts the radio, with faults such as "drop@1", and then the program.
    void Start(const QStringList& faults, const QStringList& radioArguments = {});
    /// Opens the dialog of a transfer and presses OK.
    void BeginRead();
    void BeginWrite();
    void ExpectPrompt();
    void Retry();
    /// Answers the prompt by Cancel, which closes the dialog of the transfer too.
    void CancelTransfer();
    void ExpectReadCompleted();
    void ExpectWriteCompleted();
    /// The document is the radio's memory, and that the sample radio's.
    void ExpectSampleRead();
    /// The radio holds a blank document's channels, and its own bytes where a write does not reach.
    void ExpectBlankWritten();
    [[nodiscard]] tour::RadioProgram& Radio() { return *radio_; }
    [[nodiscard]] tour::Program& Zelvor() { return *program_; }

    QTemporaryDir directory;

private:
    void Begin(Qt::Key entry, const QString& caption);
    void ExpectCompleted(const tour::Box& box);

    tour::WindowThread windows_{std::chrono::seconds(60)};
    tour::User user_{windows_};
    tour::Boxes boxes_{windows_, user_};
    std::unique_ptr<tour::RadioProgram> radio_;
    std::unique_ptr<tour::Program> program_;
};

/// Starts each test of a suite with another fault, "cut:5@18"; the test's name then ends in "cut_5_at_18".
[[nodiscard]] std::string FaultName(const ::testing::TestParamInfo<const char*>& fault);

} // namespace zelvor::test
