#include "platform/QtFolder.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QStandardPaths>
#include <utility>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

/// A process that was killed while it made its lock has left an empty one, which tells of nobody.
bool RemoveLockOfNobody(QLockFile& lock) {
    qint64 process = 0;
    QString machine;
    QString program;
    return !lock.getLockInfo(&process, &machine, &program) && lock.removeStaleLockFile();
}

} // namespace

QtFolder::QtFolder(QString path, int patience) : path_(std::move(path)), patience_(patience) {}

std::string QtFolder::Path() const {
    return FromQString(QDir::toNativeSeparators(path_));
}

std::string QtFolder::PathOf(const std::string& name) const {
    return FromQString(QDir::toNativeSeparators(path_ + u'/' + ToQString(name)));
}

std::vector<std::string> QtFolder::FileNames() {
    std::vector<std::string> names;
    for (const QString& name : QDir(path_).entryList(QDir::Files, QDir::Unsorted)) {
        names.push_back(FromQString(name));
    }
    return names;
}

void QtFolder::Remove(const std::string& name) {
    QFile::remove(path_ + u'/' + ToQString(name));
}

std::shared_ptr<void> QtFolder::Hold() {
    if (!QDir().mkpath(path_)) {
        return nullptr;
    }
    auto lock = std::make_shared<QLockFile>(path_ + QStringLiteral("/.lock"));
    const bool isHeld = lock->tryLock(patience_) || (RemoveLockOfNobody(*lock) && lock->tryLock(patience_));
    return isHeld ? lock : nullptr;
}

QString BackupFolderPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Zelvor/backups");
}

} // namespace zelvor
