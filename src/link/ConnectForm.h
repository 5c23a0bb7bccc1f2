#pragma once

#include <QDialog>
#include <memory>

#include "controls/DialogButtons.h"
#include "link/CloneEngine.h"
#include "platform/Services.h"

class QLabel;
class QProgressBar;

namespace zelvor {

enum class TransferDirection { Read, Write };

/// The dialog of one transfer, made anew for each. Shown modally; sets TransferMode to its direction, and talks to the
/// radio from cmdOK on.
class ConnectForm : public QDialog, private CloneObserver {
    Q_OBJECT

public:
    ConnectForm(Document& document, LinkState& link, Language language, Services& services, TransferDirection direction,
                QWidget* parent = nullptr);
    ~ConnectForm() override;

    [[nodiscard]] const CloneEngine& Engine() const { return engine_; }

    /// Escape: the same as cmdCancel; refused while a transfer runs.
    void reject() override;

signals:
    /// cmdOK was pressed: the transfer begins when this returns, and the port is not open yet.
    void Confirmed();
    /// All 1024 bytes are in the image, the write flags are cleared and the document is "Zelvor.dat": the grid is to be
    /// decoded and the main window's caption to be set. The dialog is still up.
    void ReadCompleted();
    void WriteCompleted();
    /// The dialog is gone and its port is closed. cancelPressed: cmdCancel closed it before a transfer began, and the
    /// open editors stay; otherwise all of them are to be unloaded.
    void Unloaded(bool cancelPressed);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void OnProgress(int value) override;
    void OnButtonsEnabled(bool enabled) override;
    void OnStandstill() override;
    void OnTransferDone() override;
    void OnReadCompleted() override;
    void OnWriteCompleted() override;
    void OnUnloadRequested() override;

    void BuildControls();
    void BuildStatus();
    void Confirm();
    void ShowProgress();
    void ShowHelp();
    void Unload();
    [[nodiscard]] QString StatusText() const;

    const LinkState& link_;
    const Language language_;
    Services& services_;
    const TransferDirection direction_;
    std::unique_ptr<SerialPort> port_; // MSComm1
    CloneEngine engine_;
    DialogButtons buttons_{};
    QLabel* labStatus_ = nullptr;
    QProgressBar* prgValue_ = nullptr;
    std::unique_ptr<Timer> progressTimer_;
    bool unloaded_ = false;
};

} // namespace zelvor
