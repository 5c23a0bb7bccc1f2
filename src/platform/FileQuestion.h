#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/FileIcons.h"
#include "platform/ToolkitSettings.h"

class QFileDialog;

namespace zelvor {

/// Asks for one file with the toolkit's file dialog, which may be one of the system's. Where the dialog is for saving,
/// the user has agreed to the replacing of the file that is returned. Neither a left-over lock of the toolkit's nor a
/// listed file that gives no bytes is waited for.
class FileQuestion {
public:
    /// Nothing where the dialog was cancelled, or went with its parent.
    [[nodiscard]] std::optional<QString> Ask(const std::function<void(QFileDialog& dialog)>& setUp);
    /// The PDF file that is proposed, or another one. Whether a file may be replaced is asked about where that is said.
    [[nodiscard]] std::optional<QString> AskForPdf(const QString& proposed, bool confirmsReplacing);

    [[nodiscard]] FileIcons& Icons() { return icons_; }

private:
    ToolkitSettings settings_;
    FileIcons icons_;
};

} // namespace zelvor
