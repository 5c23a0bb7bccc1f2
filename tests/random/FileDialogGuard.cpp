#include "random/FileDialogGuard.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <utility>

namespace zelvor::random {

namespace {

void KeepIn(QFileDialog& dialog, const QString& folder) {
    const QString path = dialog.directory().absolutePath();
    if (path != folder && !path.startsWith(folder + '/')) {
        dialog.setDirectory(folder);
    }
}

} // namespace

FileDialogGuard::FileDialogGuard(QString folder, QObject* parent) : QObject(parent), folder_(std::move(folder)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FileDialogGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::ShortcutOverride) {
        auto* dialog = qobject_cast<QFileDialog*>(watched);
        if (dialog == nullptr && watched->isWidgetType()) {
            dialog = qobject_cast<QFileDialog*>(static_cast<QWidget*>(watched)->window());
        }
        if (dialog != nullptr) {
            KeepIn(*dialog, folder_);
        }
        if (event->type() == QEvent::Show && dialog == watched) {
            dialog->setOption(QFileDialog::ReadOnly);
            connect(dialog, &QFileDialog::directoryEntered, dialog, [this, dialog] { KeepIn(*dialog, folder_); });
        }
    }
    return false;
}

} // namespace zelvor::random
