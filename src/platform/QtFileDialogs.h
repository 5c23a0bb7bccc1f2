#pragma once

#include <QString>
#include <functional>
#include <utility>

#include "platform/FileDialogs.h"
#include "platform/FileQuestion.h"

class QFileDialog;

namespace zelvor {

/// Every dialog is a QFileDialog with the objectName "dlgFile".
class QtFileDialogs : public FileDialogs {
public:
    /// Where dialogs start unless told otherwise: StartDirectoryFor the program's directory.
    QtFileDialogs();
    explicit QtFileDialogs(QString startDirectory);

    /// The folder that the side bar of the dialogs for opening offers, behind all that is in it, while it is there. The
    /// toolkit's programs share what their side bars hold: this entry is this program's alone. A system's dialogs have
    /// side bars of their own.
    void OfferToOpen(QString folder) { offered_ = std::move(folder); }

    [[nodiscard]] std::optional<std::string> Open(const FileDialogRequest& request) override;
    [[nodiscard]] std::optional<std::string> Save(const FileDialogRequest& request) override;

private:
    using SetUp = std::function<void(QFileDialog& dialog)>;
    std::optional<std::string> Ask(const FileDialogRequest& request, const SetUp& setUp);
    void OfferFolder(QFileDialog& dialog) const;
    void Preset(QFileDialog& dialog, const FileDialogRequest& request) const;

    QString startDirectory_;
    QString offered_;
    FileQuestion question_;
};

/// "text|*.dat" as the toolkit writes it, "text (*.dat)"; a text that ends in its pattern already is left as it is.
[[nodiscard]] QString NameFilterOf(const QString& filter);

} // namespace zelvor
