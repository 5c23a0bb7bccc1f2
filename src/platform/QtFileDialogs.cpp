#include "platform/QtFileDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <memory>
#include <utility>

#include "platform/QtDialogs.h"
#include "platform/Toolkit.h"

namespace zelvor {

QString StartDirectoryFor(const QString& programDirectory) {
    const QFileInfo directory(programDirectory);
    return directory.isDir() && directory.isWritable()
               ? programDirectory
               : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString NameFilterOf(const QString& filter) {
    const QString text = filter.section(u'|', 0, 0);
    const QString pattern = u'(' + filter.section(u'|', 1) + u')';
    return text.endsWith(pattern) ? text : text + u' ' + pattern;
}

QtFileDialogs::QtFileDialogs() : QtFileDialogs(StartDirectoryFor(QCoreApplication::applicationDirPath())) {}

QtFileDialogs::QtFileDialogs(QString startDirectory) : startDirectory_(std::move(startDirectory)) {}

std::optional<std::string> QtFileDialogs::Open(const FileDialogRequest& request) {
    return Ask(request, [](QFileDialog& dialog) {
        dialog.setAcceptMode(QFileDialog::AcceptOpen);
        dialog.setFileMode(QFileDialog::ExistingFile);
    });
}

std::optional<std::string> QtFileDialogs::Save(const FileDialogRequest& request) {
    return Ask(request, [](QFileDialog& dialog) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setDefaultSuffix(QStringLiteral("dat"));
    });
}

std::optional<std::string> QtFileDialogs::Ask(const FileDialogRequest& request, SetUp setUp) {
    const QPointer<QFileDialog> dialog = new QFileDialog(DialogParent());
    dialog->setObjectName(QStringLiteral("dlgFile"));
    setUp(*dialog);
    Preset(*dialog, request);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) { // its parent went while it was up
        return std::nullopt;
    }
    const std::unique_ptr<QFileDialog> owner(dialog);
    if (!isAccepted || dialog->selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    const QString file = dialog->selectedFiles().constFirst();
    QDir::setCurrent(QFileInfo(file).absolutePath());
    return FromQString(QDir::toNativeSeparators(file));
}

void QtFileDialogs::Preset(QFileDialog& dialog, const FileDialogRequest& request) const {
    dialog.setNameFilter(NameFilterOf(ToQString(request.filter)));
    dialog.setDirectory(request.directory.empty() ? startDirectory_ : ToQString(request.directory));
    if (request.fileName.empty()) {
        return;
    }
    const QFileInfo file(QDir::fromNativeSeparators(ToQString(request.fileName)));
    if (file.isAbsolute() && file.dir().exists()) {
        dialog.setDirectory(file.absolutePath());
    }
    dialog.selectFile(file.fileName());
}

} // namespace zelvor
