#pragma once

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "service/EntryEngine.h"
#include "service/TestEngine.h"
#include "service/TuningEngine.h"
#include "simulator/RadioProcess.h"

/// What stands in for the windows and the user of the service engines.
namespace zelvor::test {

/// A user who looks after the cable and presses Retry.
class RetryingUser : public MessageBoxes {
public:
    explicit RetryingUser(Clock& clock) : clock_(clock) {}

    MessageAnswer Show(const Message& message) override {
        constexpr int thought = 300; // milliseconds, in which a late reply comes to its end
        shown.push_back(message);
        wasEarly = wasEarly || (radio != nullptr && radio->Err().find(" fired") == std::string::npos);
        clock_.WaitProcessingEvents(thought);
        if (radio != nullptr && radio->Err().find("unplugged") != std::string::npos) {
            EXPECT_TRUE(radio->WaitForErr("plugged in again"));
        }
        return message.buttons == MessageButtons::RetryCancel ? MessageAnswer::Retry : MessageAnswer::Ok;
    }

    RadioProcess* radio = nullptr;
    std::vector<Message> shown;
    bool wasEarly = false; // prompted before a fault has fired: the machine is busy

private:
    Clock& clock_;
};

class EntryListener : public EntryObserver {
public:
    void OnInformation(const std::string& record) override { information = record; }
    void OnExchangeDone() override {}
    void OnInformationReady() override { isInformationReady = true; }
    void OnTestModeReady() override { isTestModeReady = true; }
    void OnProgress(int /*replies*/, int /*all*/) override {}
    void OnExchangeEnded() override {}

    std::string information;
    bool isInformationReady = false;
    bool isTestModeReady = false;
};

class TestListener : public TestObserver {
public:
    void OnLamps(bool transmitting) override { isTransmitting = transmitting; }
    void OnTuningReady() override { isTuningReady = true; }
    void OnUnloadRequested() override { isUnloadRequested = true; }
    void OnClosed() override { isClosed = true; }

    bool isTransmitting = false;
    bool isClosed = false;
    bool isTuningReady = false;
    bool isUnloadRequested = false;
};

/// The tuning dialog's part: values by page.
class TuningListener : public TuningSource, public TuningObserver {
public:
    [[nodiscard]] int Value(int page) const override { return values[static_cast<std::size_t>(page)]; }
    [[nodiscard]] int OldValue(int page) const override { return oldValues[static_cast<std::size_t>(page)]; }
    void OnLamp(bool transmitting) override { isTransmitting = transmitting; }
    void OnPointRead(int page) override { pageRead = page; }
    void OnMeasured(int value) override { measured.push_back(value); }
    void OnUnloadRequested() override { isUnloadRequested = true; }
    void OnClosed() override { isClosed = true; }

    std::array<int, 6> values{};
    std::array<int, 6> oldValues{};
    std::vector<int> measured;
    int pageRead = -1;
    bool isTransmitting = false;
    bool isClosed = false;
    bool isUnloadRequested = false;
};

} // namespace zelvor::test
