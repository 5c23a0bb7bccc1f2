#pragma once

#include <QDialog>
#include <array>
#include <memory>

#include "link/LinkState.h"
#include "link/PortProbe.h"
#include "platform/SerialPort.h"
#include "platform/Services.h"
#include "text/Language.h"

class QRadioButton;

namespace zelvor {

/// Choice of the serial port. Shown modally; numbers the ports anew and probes all of them while it loads, 200 ms for
/// each one that opens.
class ComForm : public QDialog {
    Q_OBJECT

public:
    ComForm(LinkState& link, Language language, Services& services, QWidget* parent = nullptr);
    ~ComForm() override;

    void done(int result) override;

signals:
    /// CommPortNumber was set: the status bar is to be refreshed.
    void PortChosen();

private:
    void BuildControls();
    void ProbePorts();
    void TakeChoice();
    void ShowHelp();

    LinkState& link_;
    const Language language_;
    Services& services_;
    std::unique_ptr<SerialPort> port_;
    std::array<QRadioButton*, PortCount> optPort_{};
};

} // namespace zelvor
