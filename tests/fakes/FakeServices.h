#pragma once

#include "fakes/FakeClock.h"
#include "fakes/FakeFileDialogs.h"
#include "fakes/FakeFileStore.h"
#include "fakes/FakeFolder.h"
#include "fakes/FakeHelpViewer.h"
#include "fakes/FakeMessageBoxes.h"
#include "fakes/FakePageDevice.h"
#include "fakes/FakeSerialPort.h"
#include "fakes/FakeSettingsStore.h"
#include "platform/Services.h"

namespace zelvor {

/// One fake of each service. Declare it before the window under test, which must be gone first.
struct FakeServices {
    FakeSerialPorts ports;
    FakeSettingsStore settings;
    FakeMessageBoxes messages;
    FakeFileDialogs files;
    FakeClock clock;
    FakeHelpViewer help;
    FakePageDevice pages;
    FakeFileStore store;
    FakeFolder backups{store};

    Services services{ports, settings, messages, files, clock, help, pages, store, backups};

    FakeServices() = default;
    FakeServices(const FakeServices&) = delete;
    FakeServices& operator=(const FakeServices&) = delete;

    [[nodiscard]] Services& Get() { return services; }
};

} // namespace zelvor
