#include "platform/ToolkitSettings.h"

#include <QtGlobal>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>
#endif

namespace zelvor {

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

namespace {

constexpr int LockPatience = 250; // milliseconds

bool IsSomethingElse(const QString& file) {
    const QFileInfo info(file);
    return info.exists() && !info.isFile();
}

/// A lock that cannot be had for another reason than somebody's holding it is not waited for, nor a pipe's other end.
bool IsUsable(const QString& file) {
    const QString lockFile = file + QStringLiteral(".lock");
    if (IsSomethingElse(file) || IsSomethingElse(lockFile)) {
        return false;
    }
    QLockFile lock(lockFile);
    return lock.tryLock(LockPatience) || lock.error() != QLockFile::LockFailedError;
}

} // namespace

void ToolkitSettings::Review() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (!IsUsable(folder + QStringLiteral("/QtProject.conf"))) {
        if (!instead_) {
            instead_ = std::make_unique<QTemporaryDir>();
        }
        folder = instead_->path();
    }
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
}

#else

void ToolkitSettings::Review() {} // no lock file here

#endif

} // namespace zelvor
