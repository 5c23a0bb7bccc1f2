#pragma once

#include <string>

#include "SpoiltExchange.h"
#include "data/Document.h"
#include "service/EntryEngine.h"
#include "service/ServiceState.h"

namespace zelvor::fuzz {

/// Radio information, or the way into test mode, with a spoilt radio.
class EntryFuzz : public SpoiltExchange, private EntryObserver {
public:
    explicit EntryFuzz(const ExchangeInputs& inputs);

    /// Runs it, and looks at what every entry has to keep to.
    void Run();

    /// Whether it has led to its window.
    [[nodiscard]] bool IsCompleted() const { return isOpened_; }
    /// Whether test mode was refused: the test frequencies differ.
    [[nodiscard]] bool WasRefused() const { return wasRefused_; }
    [[nodiscard]] const DataImage& Image() const { return document_.Image; }
    [[nodiscard]] const ServiceState& Service() const { return service_; }
    /// The manufacturing record; empty where none has come.
    [[nodiscard]] const std::string& Information() const { return information_; }

private:
    void Start();
    void Act();

    void OnInformation(const std::string& record) override;
    void OnExchangeDone() override {}
    void OnInformationReady() override { End(isInformation_); }
    void OnTestModeReady() override;
    void OnExchangeEnded() override;
    void OnProgress(int replies, int all) override;
    void End(bool isWanted);

    Document document_;
    ServiceState service_;
    EntryEngine engine_{document_, service_, {link_, *port_, clock_, user_, Language::English}, *this};
    std::string information_;
    bool isInformation_ = false;
    int ends_ = 0;
    bool isOpened_ = false;
    bool wasRefused_ = false;
    bool wasAborted_ = false;
};

} // namespace zelvor::fuzz
