#pragma once

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "data/Document.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeFileDialogs.h"
#include "fakes/FakeFileStore.h"
#include "fakes/FakeFolder.h"
#include "fakes/FakeHelpViewer.h"
#include "fakes/FakeMessageBoxes.h"
#include "fakes/FakePageDevice.h"
#include "fakes/FakeSerialPort.h"
#include "fakes/FakeSettingsStore.h"
#include "link/LinkState.h"
#include "link/RadioLink.h"
#include "platform/Services.h"
#include "service/ServiceState.h"
#include "support/SpoiledReplies.h"

namespace zelvor {

/// Of "50 52 4F".
[[nodiscard]] std::vector<std::uint8_t> Bytes(const std::string& hex);

/// A radio in service mode behind every port that is made, in its plainest form and on virtual time: it answers each
/// command by itself, in whatever order they come. Channel records are those of the document.
class ServiceRig {
public:
    static constexpr int ReplyDelay = 2; // milliseconds

    ServiceRig();

    Document document;
    LinkState link;
    ServiceState service;
    Language language = Language::English;
    FakeClock clock;
    FakeSerialPorts ports;
    FakeMessageBoxes messages;
    FakeSettingsStore settings;
    FakeFileDialogs files;
    FakeHelpViewer help;
    FakePageDevice pages;
    FakeFileStore store;
    FakeFolder backups{store};
    Services services{ports, settings, messages, files, clock, help, pages, store, backups}; // for a window

    /// Every command as it was sent, and when it was.
    std::vector<std::string> sent;
    std::vector<std::int64_t> times;
    /// Replies that differ from the usual ones, by command; an empty one is silence.
    std::map<std::string, std::string> replies;
    int measured = 77;

    /// For an engine on a port of these.
    [[nodiscard]] RadioLink LinkOver(SerialPort& port) { return {link, port, clock, messages, language}; }

    /// Spoils reply n, counted from 1.
    void Spoil(int reply, Fault fault) { replies_.Spoil(reply, fault); }
    [[nodiscard]] int FaultsFired() const { return replies_.FaultsFired(); }
    [[nodiscard]] int Replies() const { return replies_.Replies(); }

    /// What was sent since the last call.
    std::vector<std::string> TakeSent();
    [[nodiscard]] bool IsPortOpen() const;
    /// Does what starts an exchange, and lets it run for a second. When the box of a radio that does not answer came,
    /// which is cancelled; -1 where it did not.
    [[nodiscard]] std::int64_t TimeOfPrompt(const std::function<void()>& start);
    [[nodiscard]] bool IsRunning(std::string_view timer) const;

private:
    void Serve(FakeSerialPort& port, const std::string& command);
    [[nodiscard]] std::string UsualReply(const std::string& command) const;
    [[nodiscard]] std::string ChannelRecord(int channel) const;

    std::int64_t prompted_ = -1;
    SpoiledReplies replies_{{.delay = ReplyDelay, .lateDelay = 400, .corruption = 0xFF}};
};

using Commands = std::vector<std::string>;

} // namespace zelvor
