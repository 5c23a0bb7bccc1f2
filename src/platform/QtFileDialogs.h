#pragma once

#include <QString>

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

    [[nodiscard]] std::optional<std::string> Open(const FileDialogRequest& request) override;
    [[nodiscard]] std::optional<std::string> Save(const FileDialogRequest& request) override;

private:
    using SetUp = void (*)(QFileDialog& dialog);
    std::optional<std::string> Ask(const FileDialogRequest& request, SetUp setUp);
    void Preset(QFileDialog& dialog, const FileDialogRequest& request) const;

    QString startDirectory_;
    FileQuestion question_;
};

/// "text|*.dat" as the toolkit writes it, "text (*.dat)"; a text that ends in its pattern already is left as it is.
[[nodiscard]] QString NameFilterOf(const QString& filter);

} // namespace zelvor
