#include "help/QtHelpViewer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <utility>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

QStringList InstalledFolders() {
    const QString program = QCoreApplication::applicationDirPath();
    return {program + QStringLiteral("/../share/zelvor/help"), program + QStringLiteral("/help")};
}

} // namespace

QtHelpViewer::QtHelpViewer() : QtHelpViewer(InstalledFolders()) {}

QtHelpViewer::QtHelpViewer(QStringList folders) : folders_(std::move(folders)) {}

QtHelpViewer::~QtHelpViewer() {
    delete window_;
}

void QtHelpViewer::Show(const HelpTopic& topic) {
    const QString folder = FolderWith(ToQString(PagePathOf(topic)));
    if (folder.isEmpty()) {
        return;
    }
    if (!window_) {
        window_ = new HelpWindow;
    }
    window_->ShowPage(folder, topic.language, ToQString(topic.page));
    window_->show();
    window_->raise();
    window_->activateWindow();
}

QString QtHelpViewer::FolderWith(const QString& page) const {
    for (const QString& folder : folders_) {
        if (QFileInfo(folder + u'/' + page).isFile()) {
            return QFileInfo(folder).canonicalFilePath();
        }
    }
    return {};
}

} // namespace zelvor
