#pragma once

#include <memory>

#include "FuzzImages.h"
#include "SpoiltExchange.h"
#include "data/Document.h"
#include "link/CloneEngine.h"
#include "link/CloneFrames.h"

namespace zelvor::fuzz {

/// A transfer between a document and a spoilt radio, from the dialog's opening to its closing.
class CloneFuzz : public SpoiltExchange, private CloneObserver {
public:
    /// transferMode is one of transfer::Reading and transfer::Writing.
    CloneFuzz(const ExchangeInputs& inputs, int transferMode);

    /// Runs it, and looks at what a transfer of its kind has to keep to.
    void Run();

    [[nodiscard]] bool IsCompleted() const { return completed_ == 1; }
    [[nodiscard]] const DataImage& Image() const { return document_.Image; }
    // Of the document and the radio at the beginning.
    [[nodiscard]] const DataImage& ImageBefore() const { return imageBefore_; }
    [[nodiscard]] const DataImage& MemoryBefore() const { return memoryBefore_; }

private:
    void OnProgress(int value) override;
    void OnButtonsEnabled(bool /*enabled*/) override {}
    void OnStandstill() override {}
    void OnTransferDone() override {}
    void OnReadCompleted() override { ++completed_; }
    void OnWriteCompleted() override { ++completed_; }
    void OnUnloadRequested() override;

    const int mode_; // the engine ends the link's
    Document document_;
    Language language_;
    CloneEngine engine_;
    DataImage imageBefore_;
    DataImage memoryBefore_;
    int completed_ = 0;
    int unloads_ = 0;
    bool isTornDown_ = false; // while a box was up
};

} // namespace zelvor::fuzz
