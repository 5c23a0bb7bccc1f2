#pragma once

#include <QTemporaryDir>
#include <memory>

namespace zelvor {

/// The settings file in which the toolkit remembers how file dialogs look, shared by all its programs. The toolkit
/// waits for a lock file beside it for half a minute, or for ever, and programs that were killed leave such files
/// behind. Before a file dialog is made, and before it goes, Review sees to it that it need not wait: where the lock
/// cannot be had within a moment, or the settings are no regular file, the toolkit uses a private folder instead, and
/// what the user changes in the look of this dialog is not remembered.
class ToolkitSettings {
public:
    void Review();

private:
    std::unique_ptr<QTemporaryDir> instead_;
};

} // namespace zelvor
