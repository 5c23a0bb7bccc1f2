#pragma once

#include "SpoiltExchange.h"
#include "data/DataImage.h"
#include "service/LinkedValues.h"
#include "service/ServiceState.h"
#include "service/TuningDialogs.h"
#include "service/TuningEngine.h"

namespace zelvor::fuzz {

/// The tuning dialog of an item with a spoilt radio, from its opening to its closing.
class TuningFuzz : public SpoiltExchange, private TuningSource, private TuningObserver {
public:
    explicit TuningFuzz(const ExchangeInputs& inputs);

    /// Runs it, and looks at what tuning has to keep to.
    void Run();

    /// Whether the user has given up at the prompt.
    [[nodiscard]] bool IsAborted() const { return service_.TestAborted; }
    /// The radio's at the beginning.
    [[nodiscard]] const DataImage& MemoryBefore() const { return image_; }

private:
    [[nodiscard]] int Pages() const { return static_cast<int>(dialog_.points.size()); }
    [[nodiscard]] LinkedValues LoadValues() const;
    void Act();
    void ChangePage(int page);
    void ChangeValue(int value);
    void Leave(TuningEngine::Ending ending);
    [[nodiscard]] bool IsOfItem(int address) const;
    [[nodiscard]] bool IsCommand(const std::vector<std::uint8_t>& command) const;

    [[nodiscard]] int Value(int page) const override { return values_.Value(page); }
    [[nodiscard]] int OldValue(int page) const override { return values_.OldValue(page); }
    void OnLamp(bool /*transmitting*/) override {}
    void OnPointRead(int page) override;
    void OnMeasured(int value) override;
    void OnUnloadRequested() override { engine_.Close(TuningEngine::Ending::Cancel); }
    void OnClosed() override { ++closed_; }

    ServiceState service_;
    bool isNarrow_;
    TuningDialog dialog_;
    DataImage image_;
    LinkedValues values_;
    TuningEngine engine_;
    int page_ = 0;
    int closed_ = 0;
};

} // namespace zelvor::fuzz
