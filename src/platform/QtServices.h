#pragma once

#include "platform/QtClock.h"
#include "platform/QtFileDialogs.h"
#include "platform/QtFileStore.h"
#include "platform/QtFolder.h"
#include "platform/QtMessageBoxes.h"
#include "platform/QtPageDevice.h"
#include "platform/QtSerialPorts.h"
#include "platform/QtSettingsStore.h"
#include "platform/Services.h"

namespace zelvor {

/// The machine's services, one of each, and the help, which stands on them. Made after the QApplication, and gone
/// before it but after all windows.
class QtServices {
public:
    explicit QtServices(HelpViewer& help);
    QtServices(const QtServices&) = delete;
    QtServices& operator=(const QtServices&) = delete;

    [[nodiscard]] Services& Get() { return services_; }
    /// Looks in the background which serial ports there are; else the first question for one does.
    void NumberPorts() { ports_.BeginNumbering(); }

private:
    QtSerialPorts ports_;
    QtSettingsStore settings_;
    QtMessageBoxes messages_;
    QtFileDialogs files_;
    QtClock clock_;
    HelpViewer& help_;
    QtPageDevice pages_;
    QtFileStore store_;
    QtFolder backups_;
    Services services_{ports_, settings_, messages_, files_, clock_, help_, pages_, store_, backups_};
};

} // namespace zelvor
