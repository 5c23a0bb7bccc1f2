#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "service/ServiceRig.h"
#include "service/TestEngine.h"
#include "service/TuningEngine.h"

namespace zelvor {

/// Test mode without its window, and a radio that answers.
class TestEngineTest : public ::testing::Test, public TestObserver {
protected:
    void OnLamps(bool transmitting) override { lamps.emplace_back(transmitting ? "transmit" : "idle"); }
    void OnTuningReady() override { events.emplace_back(rig.IsPortOpen() ? "tune, port open" : "tune, port closed"); }
    void OnUnloadRequested() override {
        events.emplace_back("unload");
        engine.Close();
    }
    void OnClosed() override { ++closed; }

    /// Closes, and lets the radio be told.
    void Close() {
        engine.Close();
        rig.clock.Advance(1000);
        EXPECT_EQ(closed, 1);
    }

    /// Loads and lets channel and signalling go out.
    void Open() {
        engine.Load();
        rig.clock.Advance(100);
        rig.TakeSent();
    }

    ServiceRig rig;
    std::unique_ptr<SerialPort> port = rig.ports.Make("MSComm1");
    TestEngine engine{rig.document, rig.service, rig.LinkOver(*port), *this};
    std::vector<std::string> lamps;
    std::vector<std::string> events;
    int closed = 0;
};

/// A tuning dialog that shows 10, 20, 30 ... on its pages and opened with 110, 120, 130 ...
class TuningEngineDialog : public TuningSource, public TuningObserver {
public:
    [[nodiscard]] int Value(int page) const override { return values[static_cast<std::size_t>(page)]; }
    [[nodiscard]] int OldValue(int page) const override { return 110 + 10 * page; }
    void OnLamp(bool transmitting) override { events.emplace_back(transmitting ? "transmit" : "idle"); }
    void OnPointRead(int page) override { events.push_back("point " + std::to_string(page)); }
    void OnMeasured(int value) override {
        events.push_back("measured " + std::to_string(value));
        values[0] = value;
    }
    void OnUnloadRequested() override {
        events.emplace_back("unload");
        engine->Close(TuningEngine::Ending::Cancel);
    }
    void OnClosed() override { ++closed; }

    std::array<int, 6> values{10, 20, 30, 40, 50, 60};
    std::vector<std::string> events;
    int closed = 0;
    TuningEngine* engine = nullptr;
};

class TuningEngineTest : public ::testing::Test {
protected:
    void Open(const TuningPlan& plan) {
        engine = std::make_unique<TuningEngine>(rig.service, rig.LinkOver(*port), plan, dialog, dialog);
        dialog.engine = engine.get();
        engine->Load();
    }
    /// Closes, and lets the radio be told.
    void Close(TuningEngine::Ending ending) {
        engine->Close(ending);
        rig.clock.Advance(1000);
        EXPECT_EQ(dialog.closed, 1);
    }
    /// RF High Power: six pages.
    void OpenSixPages() { Open({TuningKind::Points, 18, {18, 48, 51, 49, 52, 50}}); }
    void OpenOneValue() { Open({TuningKind::Single, 29, {29}}); }
    void OpenMeasured() { Open({TuningKind::Measured, 34, {34}}); }

    ServiceRig rig;
    TuningEngineDialog dialog;
    std::unique_ptr<SerialPort> port = rig.ports.Make("MSComm1");
    std::unique_ptr<TuningEngine> engine;
};

} // namespace zelvor
