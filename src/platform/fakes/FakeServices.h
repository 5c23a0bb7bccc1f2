#pragma once

#include "platform/Services.h"
#include "platform/fakes/FakeClock.h"
#include "platform/fakes/FakeFileDialogs.h"
#include "platform/fakes/FakeFileStore.h"
#include "platform/fakes/FakeHelpViewer.h"
#include "platform/fakes/FakeMessageBoxes.h"
#include "platform/fakes/FakePageDevice.h"
#include "platform/fakes/FakeSerialPort.h"
#include "platform/fakes/FakeSettingsStore.h"

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

    Services services{ports, settings, messages, files, clock, help, pages, store};

    FakeServices() = default;
    FakeServices(const FakeServices&) = delete;
    FakeServices& operator=(const FakeServices&) = delete;

    [[nodiscard]] Services& Get() { return services; }
};

} // namespace zelvor
