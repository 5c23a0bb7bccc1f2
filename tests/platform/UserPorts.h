#pragma once

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <string>

namespace zelvor {

/// The links that give port numbers to devices; all are gone with it.
class UserPorts {
public:
    UserPorts() { folder_.mkpath(QStringLiteral(".")); }
    UserPorts(const UserPorts&) = delete;
    UserPorts& operator=(const UserPorts&) = delete;
    ~UserPorts() { folder_.removeRecursively(); }

    void Link(const QString& name, const std::string& device) {
        QFile::link(QString::fromStdString(device), folder_.filePath(name));
    }
    void Unlink(const QString& name) { QFile::remove(folder_.filePath(name)); }

private:
    QDir folder_{QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QStringLiteral("/Zelvor/ports")};
};

} // namespace zelvor
