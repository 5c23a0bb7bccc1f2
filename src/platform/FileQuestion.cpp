#include "platform/FileQuestion.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>

#include "platform/QtDialogs.h"
#include "platform/ScreenRoom.h"

namespace zelvor {

namespace {

/// The toolkit's own dialog selects the folders that a path leads through while it is typed, and forgets some of them:
/// it then opens such a folder in place of the file.
void DropFoldersOnTheWay(const QFileDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    auto* list = dialog.findChild<QListView*>(QStringLiteral("listView")); // the other view has the same selection
    if (!name || !list) {                                                  // the system's dialog
        return;
    }
    QObject::connect(name, &QLineEdit::textChanged, list, [&dialog, list](const QString& text) {
        const QString typed = QFileInfo(dialog.directory(), text).absoluteFilePath();
        QItemSelectionModel* selection = list->selectionModel();
        for (const QModelIndex& row : selection->selectedRows()) {
            const QString folder = row.data(QFileSystemModel::FilePathRole).toString();
            if (typed != folder && typed.startsWith(folder.endsWith(u'/') ? folder : folder + u'/')) {
                selection->select(row, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
            }
        }
    });
}

/// The system's dialog, if it is one, asks about the name that was typed; the toolkit then adds the suffix. So the file
/// that would be replaced may be another one, and is asked about here. Returns whether the choice stands.
bool ConfirmAddedSuffix(QFileDialog& dialog, const QString& file) {
    const bool isSystems = dialog.testAttribute(Qt::WA_DontShowOnScreen);
    const bool isAsked =
        dialog.acceptMode() == QFileDialog::AcceptSave && !dialog.testOption(QFileDialog::DontConfirmOverwrite);
    if (!isAsked || !isSystems || !QFileInfo::exists(file)) {
        return true;
    }
    const QString suffix = dialog.defaultSuffix();
    dialog.setDefaultSuffix(QString());
    const QString typed = dialog.selectedFiles().value(0);
    dialog.setDefaultSuffix(suffix);
    if (typed == file) {
        return true;
    }
    dialog.selectFile(typed); // for the next time it is shown
    const QString question = QFileDialog::tr("%1 already exists.\nDo you want to replace it?");
    return QMessageBox::warning(DialogParent(), dialog.windowTitle(), question.arg(QFileInfo(file).fileName()),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

} // namespace

std::optional<QString> FileQuestion::Ask(const std::function<void(QFileDialog& dialog)>& setUp) {
    settings_.Review();
    const QPointer<QFileDialog> dialog = new QFileDialog(DialogParent());
    dialog->setIconProvider(&icons_);
    setUp(*dialog);
    DropFoldersOnTheWay(*dialog);
    KeepOnScreen(*dialog);
    QString file;
    bool isAsking = true;
    while (isAsking) {
        const bool isAccepted = dialog->exec() == QDialog::Accepted;
        if (!dialog) { // its parent went while it was up
            return std::nullopt;
        }
        file = isAccepted ? dialog->selectedFiles().value(0) : QString();
        isAsking = !file.isEmpty() && !ConfirmAddedSuffix(*dialog, file);
        if (!dialog) {
            return std::nullopt;
        }
    }
    settings_.Review();
    delete dialog;
    return file.isEmpty() ? std::nullopt : std::optional(file);
}

std::optional<QString> FileQuestion::AskForPdf(const QString& proposed, bool confirmsReplacing) {
    return Ask([&](QFileDialog& dialog) {
        dialog.setObjectName(QStringLiteral("dlgPrintFile"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite, !confirmsReplacing);
        dialog.setNameFilter(QStringLiteral("PDF (*.pdf)"));
        dialog.setDefaultSuffix(QStringLiteral("pdf"));
        const QFileInfo file(proposed);
        dialog.setDirectory(file.absolutePath());
        dialog.selectFile(file.fileName());
    });
}

} // namespace zelvor
