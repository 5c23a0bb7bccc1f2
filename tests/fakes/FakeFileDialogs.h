#pragma once

#include <deque>
#include <iosfwd>
#include <optional>
#include <string>

#include "platform/FileDialogs.h"

namespace zelvor {

void PrintTo(const FileDialogRequest& request, std::ostream* out);

/// Scripted and strict: a dialog that was not expected next fails the test and is cancelled, and so does an expected
/// one that was never asked for. A choice moves the process's current directory as the real dialogs do, where there is
/// such a directory.
class FakeFileDialogs : public FileDialogs {
public:
    FakeFileDialogs() = default;
    FakeFileDialogs(const FakeFileDialogs&) = delete;
    FakeFileDialogs& operator=(const FakeFileDialogs&) = delete;
    ~FakeFileDialogs() override;

    [[nodiscard]] std::optional<std::string> Open(const FileDialogRequest& request) override;
    [[nodiscard]] std::optional<std::string> Save(const FileDialogRequest& request) override;

    /// The next dialog, in the order of the calls; no answer is Cancel.
    void ExpectOpen(FileDialogRequest request, std::optional<std::string> answer);
    void ExpectSave(FileDialogRequest request, std::optional<std::string> answer);
    [[nodiscard]] int Pending() const { return static_cast<int>(expected_.size()); }

private:
    struct Expectation {
        bool isSave = false;
        FileDialogRequest request;
        std::optional<std::string> answer;
    };

    std::optional<std::string> Ask(bool isSave, const FileDialogRequest& request);

    std::deque<Expectation> expected_;
};

} // namespace zelvor
