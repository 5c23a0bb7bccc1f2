#pragma once

#include <memory>

#include "cli/RadioAnswers.h"
#include "cli/RadioHeldPort.h"
#include "link/CloneEngine.h"
#include "link/RadioLink.h"

namespace zelvor::cli {

/// How a transfer ended.
enum class TransferEnd {
    Done,
    NoRadio,
    Interrupted,
    ModelDiffers, // and the radio is as it was
};

struct TransferReport {
    TransferEnd end = TransferEnd::NoRadio;
    PortFailure failure = {}; // of NoRadio: why the port cannot be opened
    bool reachedData = false; // a write's first packet may have gone to the radio
};

/// One transfer by a CloneEngine, from its beginning to its end, without a window.
class RadioTransfer : private CloneObserver {
public:
    /// The link's port is `port` and its messages are `answers`. `what` is shown with the progress.
    RadioTransfer(Document& document, const RadioLink& link, RadioHeldPort& port, RadioAnswers& answers,
                  const RadioMachine& machine, std::string_view what);
    RadioTransfer(const RadioTransfer&) = delete;
    RadioTransfer& operator=(const RadioTransfer&) = delete;
    ~RadioTransfer() override;

    /// In the direction of LinkState::TransferMode. Keeps the event loop running until it is over.
    [[nodiscard]] TransferReport Run();

private:
    void OnProgress(int value) override;
    void OnButtonsEnabled(bool /*enabled*/) override {}
    void OnStandstill() override;
    void OnTransferDone() override;
    void OnReadCompleted() override;
    void OnWriteCompleted() override;
    void OnUnloadRequested() override;

    void WatchUser();
    [[nodiscard]] TransferEnd EndWithoutSuccess() const;
    void NotePrompt();
    void ShowProgress();

    const RadioLink link_;
    RadioHeldPort& port_;
    RadioAnswers& answers_;
    const RadioMachine& machine_;
    const std::string_view what_;
    CloneEngine engine_;
    std::unique_ptr<Timer> progressTimer_;
    TransferReport report_;
    bool isOver_ = false;
};

} // namespace zelvor::cli
