#pragma once

#include "SpoiltExchange.h"
#include "data/Document.h"
#include "service/ServiceState.h"
#include "service/TestEngine.h"

namespace zelvor::fuzz {

/// Test mode with a spoilt radio, from the window's opening to its closing.
class TestModeFuzz : public SpoiltExchange, private TestObserver {
public:
    explicit TestModeFuzz(const ExchangeInputs& inputs);

    /// Runs it, and looks at what test mode has to keep to.
    void Run();

    [[nodiscard]] const DataImage& Image() const { return document_.Image; }
    [[nodiscard]] const ServiceState& Service() const { return service_; }
    /// Tuning dialogs that were opened.
    [[nodiscard]] int Tunings() const { return tunings_; }

private:
    void Act();
    void Leave();

    void OnLamps(bool /*transmitting*/) override {}
    void OnTuningReady() override;
    void OnUnloadRequested() override;
    void OnClosed() override { ++closed_; }

    Document document_;
    ServiceState service_;
    TestEngine engine_{document_, service_, {link_, *port_, clock_, user_, Language::English}, *this};
    int tunings_ = 0;
    int closed_ = 0;
    bool isLeaving_ = false;
};

} // namespace zelvor::fuzz
