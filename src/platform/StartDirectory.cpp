#include "platform/StartDirectory.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>

namespace zelvor {

namespace {

/// The folders that systems install into; on Windows their places are told by the environment.
QStringList SystemFolders() {
    QStringList folders{"/bin",  "/sbin", "/lib", "/usr",          "/opt",     "/app",
                        "/snap", "/nix",  "/gnu", "/Applications", "/Library", "/System"};
    for (const char* variable : {"ProgramFiles", "ProgramFiles(x86)", "ProgramW6432", "SystemRoot"}) {
        const QString folder = qEnvironmentVariable(variable);
        if (!folder.isEmpty()) {
            folders.append(QDir::fromNativeSeparators(folder));
        }
    }
    return folders;
}

bool IsIn(const QString& folder, const QString& directory) {
    return directory.compare(folder, Qt::CaseInsensitive) == 0 ||
           directory.startsWith(folder + u'/', Qt::CaseInsensitive);
}

} // namespace

bool IsSystemFolder(const QString& directory) {
    const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(directory));
    if (IsIn(QDir::homePath(), clean)) {
        return false;
    }
    return std::ranges::any_of(SystemFolders(), [&clean](const QString& folder) { return IsIn(folder, clean); });
}

QString StartDirectoryFor(const QString& programDirectory) {
    const QFileInfo directory(programDirectory);
    return directory.isDir() && directory.isWritable() && !IsSystemFolder(programDirectory)
               ? programDirectory
               : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace zelvor
