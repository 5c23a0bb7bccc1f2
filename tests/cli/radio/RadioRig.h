#pragma once

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/RadioMachine.h"
#include "cli/RadioProgress.h"
#include "data/DataImage.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeFileStore.h"
#include "fakes/FakeFolder.h"
#include "fakes/FakeSerialPort.h"
#include "link/ScriptedRadio.h"

namespace zelvor::cli {

/// What the commands that talk to a radio are run on: a scripted radio behind every port, virtual time, files in
/// memory. The time is 2026-11-22 01:45:02.
class RadioRig {
public:
    RadioRig();

    [[nodiscard]] const std::string& Err() {
        err_ = errors.str();
        return err_;
    }
    [[nodiscard]] bool Said(const std::string& text) { return Err().find(text) != std::string::npos; }
    /// Their names, in order.
    [[nodiscard]] std::vector<std::string> Backups() {
        std::vector<std::string> names = folder.FileNames();
        std::ranges::sort(names);
        return names;
    }
    /// The radio's memory as an image.
    [[nodiscard]] DataImage RadioImage() const;
    void PutFile(const std::string& path, const DataImage& image);
    [[nodiscard]] DataImage FileImage(const std::string& path);
    /// How often the radio was asked for programming mode.
    [[nodiscard]] int Entries() const;
    /// Whether a write packet was sent.
    [[nodiscard]] bool HasWritten() const;
    /// How often the port was opened and closed.
    [[nodiscard]] int CountInLog(const std::string& line) const;
    void Forget();

    FakeClock clock;
    FakeSerialPorts ports;
    FakeFileStore store;
    FakeFolder folder{store};
    ScriptedRadio radio{clock, ports};
    std::ostringstream out;
    std::ostringstream errors;
    Console console{out, errors, Language::English};
    bool isConnected = true;
    /// Called with every command that is sent, before the radio takes it.
    std::function<void(const std::string& command)> OnCommand;
    /// Called at each connection prompt, and when a transfer is over.
    std::function<void()> OnClear;

private:
    class Progress : public RadioProgress {
    public:
        explicit Progress(RadioRig& rig) : rig_(rig) {}
        void Show(std::string_view what, int value, int maximum) override;
        void Clear() override;

    private:
        RadioRig& rig_;
    };

    std::string err_;
    Progress progress_{*this};

public:
    /// What was shown last of each transfer: "Reading 16 of 16".
    std::vector<std::string> shown;
    bool isInterrupted = false;
    RadioMachine machine{ports, clock, store, folder, progress_, [this] { return isInterrupted; }};
};

/// An image of model 4618, market M, whose other bytes differ from neighbour to neighbour, and are legal where a check
/// stops a write.
[[nodiscard]] DataImage PatternImage(int seed);

} // namespace zelvor::cli
