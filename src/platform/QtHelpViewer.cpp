#include "platform/QtHelpViewer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>
#include <utility>

#include "platform/HelpTopic.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr TextPair WindowTitle{"Zelvor Help", "Zelvor 帮助"};
constexpr QSize WindowSize{720, 560};

QStringList InstalledFolders() {
    const QString program = QCoreApplication::applicationDirPath();
    return {program + QStringLiteral("/../share/zelvor/help"), program + QStringLiteral("/help"),
            QStringLiteral(ZELVOR_HELP_SOURCES)};
}

} // namespace

QtHelpViewer::QtHelpViewer() : QtHelpViewer(InstalledFolders()) {}

QtHelpViewer::QtHelpViewer(QStringList folders) : folders_(std::move(folders)) {}

QtHelpViewer::~QtHelpViewer() {
    delete window_;
}

void QtHelpViewer::ShowTopic(std::string_view path) {
    const auto topic = ParseHelpTopic(path);
    const QString file = topic ? FindPage(ToQString(PagePathOf(*topic))) : QString();
    if (file.isEmpty()) {
        return;
    }
    QTextBrowser& window = Window(topic->language);
    window.setSource(QUrl::fromLocalFile(file));
    window.show();
    window.raise();
    window.activateWindow();
}

QString QtHelpViewer::FindPage(const QString& page) const {
    for (const QString& folder : folders_) {
        const QFileInfo file(folder + u'/' + page);
        if (file.isFile()) {
            return file.canonicalFilePath();
        }
    }
    return {};
}

QTextBrowser& QtHelpViewer::Window(Language language) {
    if (!window_) {
        window_ = new QTextBrowser;
        window_->setObjectName(QStringLiteral("HelpWindow"));
        window_->setAttribute(Qt::WA_QuitOnClose, false);
        window_->resize(WindowSize);
    }
    const QString title = ToQString(WindowTitle.In(language));
    window_->setWindowTitle(title);
    window_->setAccessibleName(title);
    return *window_;
}

} // namespace zelvor
