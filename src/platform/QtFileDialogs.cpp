#include "platform/QtFileDialogs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "platform/StartDirectory.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr int WidestSideBar = 240; // logical pixels

/// The toolkit's own dialog enables its button only for files that the filter shows. A name that was typed in full is
/// meant, whatever its ending.
void LetTypedNamesOpen(QFileDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    if (!name || !buttons) { // the system's dialog
        return;
    }
    QObject::connect(name, &QLineEdit::textChanged, buttons, [&dialog, buttons](const QString& text) {
        QPushButton* open = buttons->button(QDialogButtonBox::Open);
        if (open != nullptr && QFileInfo(dialog.directory(), text).isFile()) {
            open->setEnabled(true);
        }
    });
}

/// The toolkit's own dialog does not say which label is whose list's.
void LabelLists(const QFileDialog& dialog) {
    struct Pair {
        const char* label;
        const char* list;
    };
    for (const Pair& pair : {Pair{"lookInLabel", "lookInCombo"}, Pair{"fileTypeLabel", "fileTypeCombo"}}) {
        auto* label = dialog.findChild<QLabel*>(QString::fromLatin1(pair.label));
        auto* list = dialog.findChild<QComboBox*>(QString::fromLatin1(pair.list));
        if (label && list) { // not the system's dialog
            label->setBuddy(list);
        }
    }
}

/// The toolkit's own dialog gives the side bar the width of its first place.
void ShowWholePlaces(const QFileDialog& dialog) {
    if (auto* places = dialog.findChild<QListView*>(QStringLiteral("sidebar"))) { // not the system's dialog
        const int wanted = places->sizeHintForColumn(0) + 2 * places->frameWidth();
        places->setMinimumWidth(std::min(wanted, WidestSideBar));
    }
}

} // namespace

QString NameFilterOf(const QString& filter) {
    const QString text = filter.section(u'|', 0, 0);
    const QString pattern = u'(' + filter.section(u'|', 1) + u')';
    return text.endsWith(pattern) ? text : text + u' ' + pattern;
}

QtFileDialogs::QtFileDialogs() : QtFileDialogs(StartDirectoryFor(QCoreApplication::applicationDirPath())) {}

QtFileDialogs::QtFileDialogs(QString startDirectory) : startDirectory_(std::move(startDirectory)) {}

std::optional<std::string> QtFileDialogs::Open(const FileDialogRequest& request) {
    return Ask(request, [this](QFileDialog& dialog) {
        dialog.setAcceptMode(QFileDialog::AcceptOpen);
        dialog.setFileMode(QFileDialog::ExistingFile);
        LetTypedNamesOpen(dialog);
        OfferFolder(dialog);
    });
}

std::optional<std::string> QtFileDialogs::Save(const FileDialogRequest& request) {
    return Ask(request, [](QFileDialog& dialog) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setDefaultSuffix(QStringLiteral("dat"));
    });
}

std::optional<std::string> QtFileDialogs::Ask(const FileDialogRequest& request, const SetUp& setUp) {
    const std::optional<QString> file = question_.Ask([&](QFileDialog& dialog) {
        dialog.setObjectName(QStringLiteral("dlgFile"));
        setUp(dialog);
        Preset(dialog, request);
        LabelLists(dialog);
        ShowWholePlaces(dialog);
    });
    if (!file) {
        return std::nullopt;
    }
    QDir::setCurrent(QFileInfo(*file).absolutePath());
    return FromQString(QDir::toNativeSeparators(*file));
}

void QtFileDialogs::OfferFolder(QFileDialog& dialog) const {
    const QUrl folder = QUrl::fromLocalFile(offered_);
    QList<QUrl> places = dialog.sidebarUrls();
    if (offered_.isEmpty() || !QFileInfo(offered_).isDir() || places.contains(folder)) {
        return;
    }
    places.append(folder);
    dialog.setSidebarUrls(places);
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&dialog, folder] {
        QList<QUrl> left = dialog.sidebarUrls(); // with what the user has changed
        left.removeAll(folder);
        dialog.setSidebarUrls(left);
    });
}

void QtFileDialogs::Preset(QFileDialog& dialog, const FileDialogRequest& request) const {
    dialog.setNameFilter(NameFilterOf(ToQString(request.filter)));
    const QString directory = request.directory.empty() ? startDirectory_ : ToQString(request.directory);
    dialog.setDirectory(QFileInfo(directory).isDir() ? directory : QDir::homePath());
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
